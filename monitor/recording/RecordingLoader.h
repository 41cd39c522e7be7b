// SPDX-License-Identifier: MIT
// Reads recordings from files, piece by piece.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "monitor/recording/Recording.h"

namespace kavlix::recording {

/// How far a RecordingLoader is.
struct Progress {
    std::uint64_t bytesDone = 0;
    std::uint64_t bytesTotal = 0; ///< size of all files when loading began, or bytesDone if that is more
    std::size_t file = 0;         ///< index of the current file
    std::uint64_t rows = 0;       ///< rows kept so far, without a file's last row if that has no line end
    bool finished = false;

    /// The share of the bytes that were read, in percent. Only a finished loader returns 100.
    int Percent() const;
};

/// Reads recordings in slices, so that a window can process messages between two slices:
///
///     RecordingLoader loader(paths);
///     while (!loader.Step(RecordingLoader::kSlice).finished) { pump messages; show progress; }
///     Recording recording = loader.Take();
///
/// Missing files and wrong contents never throw: they cause messages in the file's summary.
class RecordingLoader {
public:
    /// Size of a slice in bytes. Reading a slice takes a few milliseconds.
    static constexpr std::size_t kSlice = std::size_t{1} << 20;

    /// `paths` are file names as PathOf takes them. Messages show them as given.
    explicit RecordingLoader(std::vector<std::string> paths);
    ~RecordingLoader();

    RecordingLoader(const RecordingLoader&) = delete;
    RecordingLoader& operator=(const RecordingLoader&) = delete;

    /// Reads at most `budgetBytes` more bytes; 0 counts as 1. The last step also joins the files. Does
    /// nothing once loading has finished.
    Progress Step(std::size_t budgetBytes);

    /// How far loading is, without reading.
    Progress GetProgress() const;

    /// Ends loading and keeps what was read. The remaining files are left out.
    void Cancel();

    /// Hands over the recording; the loader is empty afterwards. If loading has not finished, calls Cancel
    /// first.
    Recording Take();

    /// Reads all files in a single call.
    static Recording Load(std::vector<std::string> paths);

private:
    struct State;
    std::unique_ptr<State> m_state;
};

} // namespace kavlix::recording
