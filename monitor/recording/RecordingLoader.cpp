// SPDX-License-Identifier: MIT
// Opens the files one after another, feeds their bytes to a table reader, and joins the tables.

#include "monitor/recording/RecordingLoader.h"

#include <algorithm>
#include <cerrno>
#include <fstream>
#include <new>
#include <stdexcept>
#include <system_error>
#include <utility>

#include "monitor/recording/FilePath.h"
#include "monitor/recording/TableJoin.h"
#include "monitor/recording/TableReader.h"

namespace kavlix::recording {
namespace {

constexpr std::size_t kBufferSize = std::size_t{1} << 18; // most bytes read from a file at once

std::string LastSystemError() {
    const int error = errno;
    return error != 0 ? std::generic_category().message(error) : std::string("it cannot be opened");
}

/// Size of a file in bytes; 0 when the system gives none (a device, a folder, no such file).
std::uint64_t SizeOf(const std::string& path) {
    constexpr std::uint64_t kLargestPlausible = std::uint64_t{1} << 60;
    std::ifstream stream(PathOf(path), std::ios::binary | std::ios::ate);
    const std::streamoff size = stream ? static_cast<std::streamoff>(stream.tellg()) : 0;
    return size > 0 && static_cast<std::uint64_t>(size) < kLargestPlausible ? static_cast<std::uint64_t>(size)
                                                                            : 0;
}

} // namespace

int Progress::Percent() const {
    if (finished)
        return 100;
    if (bytesTotal == 0)
        return 0;
    const double share = static_cast<double>(bytesDone) / static_cast<double>(bytesTotal);
    return std::min(99, static_cast<int>(share * 100.0));
}

struct RecordingLoader::State {
    Recording recording;
    std::vector<Table> tables;
    std::vector<std::uint64_t> sizes;
    std::vector<char> buffer;
    std::ifstream stream;
    std::unique_ptr<TableReader> reader;
    Progress progress;
    std::uint64_t bytesBefore = 0; ///< size of the files before the current one, in bytes
    std::size_t seriesTaken = 0;

    FileSummary& File() { return recording.files[progress.file]; }

    /// Opens the current file; false, with a message, when it cannot be opened.
    bool Open() {
        FileSummary& file = File();
        reader = std::make_unique<TableReader>(file, kMaxSeries - seriesTaken);
        errno = 0;
        stream = std::ifstream(PathOf(file.path), std::ios::binary);
        if (!stream) {
            Refuse("expected a file that can be read: " + LastSystemError());
            return false;
        }
        return true;
    }

    void Refuse(const std::string& text) {
        if (File().log.Count(Complaint::File))
            File().log.Add(Complaint::File, 0, 0, text);
    }

    /// Reads at most `most` bytes of the current file into the buffer. Returns their number; 0 at the end, on
    /// a read error, and when the reader has stopped.
    std::size_t ReadPiece(std::size_t most) {
        if (reader->Stopped())
            return 0;
        errno = 0;
        stream.read(buffer.data(), static_cast<std::streamsize>(std::min(most, buffer.size())));
        const std::size_t got = static_cast<std::size_t>(stream.gcount());
        if (got == 0 && (stream.bad() || errno != 0))
            Refuse("expected a file that can be read to its end: " + LastSystemError());
        return got;
    }

    void EndFile() {
        Table table = reader->Finish();
        seriesTaken += table.columns.size();
        tables.push_back(std::move(table));
        bytesBefore += sizes[progress.file];
        progress.bytesDone = std::max(progress.bytesDone, bytesBefore);
        progress.bytesTotal = std::max(progress.bytesTotal, progress.bytesDone);
        CloseFile();
        ++progress.file;
    }

    void CloseFile() {
        reader.reset();
        stream.close();
        stream.clear();
    }

    void Advance(std::size_t bytes, std::uint64_t rowsBefore) {
        File().bytes += bytes;
        progress.bytesDone += bytes;
        progress.bytesTotal = std::max(progress.bytesTotal, progress.bytesDone);
        progress.rows += reader->Rows() - rowsBefore;
    }

    /// Reads and parses the next piece of the current file. Returns the number of bytes read. 0 when the file
    /// has no more bytes, cannot be opened or read, or is not read further, and when memory runs out. This
    /// function has then ended the file, and the next call goes on with the next file.
    std::size_t ReadSome(std::size_t budget) {
        if (!reader && !Open()) {
            EndFile();
            return 0;
        }
        const std::uint64_t rowsBefore = reader->Rows();
        std::size_t got = 0;
        try {
            got = ReadPiece(budget);
            reader->Feed(buffer.data(), got);
        } catch (const std::bad_alloc&) {
            reader->RecoverFromLowMemory();
            got = 0;
        } catch (const std::length_error&) {
            reader->RecoverFromLowMemory();
            got = 0;
        }
        Advance(got, rowsBefore);
        if (got == 0)
            EndFile();
        return got;
    }

    void Join() {
        tables.resize(recording.files.size());
        JoinTables(std::move(tables), recording);
        tables.clear();
        progress.finished = true;
    }
};

RecordingLoader::RecordingLoader(std::vector<std::string> paths) : m_state(std::make_unique<State>()) {
    m_state->buffer.resize(kBufferSize);
    for (std::string& path : paths) {
        m_state->sizes.push_back(SizeOf(path));
        m_state->progress.bytesTotal += m_state->sizes.back();
        FileSummary summary;
        summary.log = MessageLog(path);
        summary.path = std::move(path);
        m_state->recording.files.push_back(std::move(summary));
    }
}

RecordingLoader::~RecordingLoader() = default;

Progress RecordingLoader::Step(std::size_t budgetBytes) {
    State& state = *m_state;
    std::size_t budget = std::max<std::size_t>(budgetBytes, 1);
    while (!state.progress.finished && budget > 0)
        if (state.progress.file == state.recording.files.size())
            state.Join();
        else
            budget -= std::min(budget, state.ReadSome(budget));
    return state.progress;
}

Progress RecordingLoader::GetProgress() const {
    return m_state->progress;
}

void RecordingLoader::Cancel() {
    State& state = *m_state;
    if (state.progress.finished)
        return;
    state.recording.cancelled = true;
    if (state.reader)
        state.EndFile();
    for (; state.progress.file < state.recording.files.size(); ++state.progress.file)
        state.File().leftOut = true;
    state.Join();
}

Recording RecordingLoader::Take() {
    Cancel();
    return std::exchange(m_state->recording, Recording());
}

Recording RecordingLoader::Load(std::vector<std::string> paths) {
    RecordingLoader loader(std::move(paths));
    while (!loader.Step(kSlice).finished) {
    }
    return loader.Take();
}

} // namespace kavlix::recording
