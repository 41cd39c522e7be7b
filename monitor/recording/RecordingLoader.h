#pragma once

#include "monitor/recording/Recording.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace kavlix::recording {

/// How far a RecordingLoader is.
struct Progress {
    std::uint64_t bytesDone = 0;
    std::uint64_t bytesTotal = 0; ///< of all files, as found when loading began; never less than bytesDone
    std::size_t file = 0;         ///< index of the file being read
    std::uint64_t rows = 0;       ///< rows kept so far, of all files
    bool finished = false;

    /// Done share in percent, 0 to 100; 100 only when finished.
    int Percent() const;
};

/// Reads recordings in slices, so that a window lives meanwhile:
///
///     RecordingLoader loader(paths);
///     while (!loader.Step(RecordingLoader::kSlice).finished) { pump messages; show progress; }
///     Recording recording = loader.Take();
///
/// It never throws for what the files hold or for files that are missing: that ends in the messages.
class RecordingLoader {
public:
    /// A slice that takes some milliseconds.
    static constexpr std::size_t kSlice = std::size_t{1} << 20;

    /// @param paths file names in the process code page, shown in messages as they are given.
    explicit RecordingLoader(std::vector<std::string> paths);
    ~RecordingLoader();

    RecordingLoader(const RecordingLoader&) = delete;
    RecordingLoader& operator=(const RecordingLoader&) = delete;

    /// Reads about `budgetBytes` more (at least one byte's worth). The last step also joins the files. After
    /// the end it changes nothing.
    Progress Step(std::size_t budgetBytes);

    /// Where loading stands, without reading.
    Progress GetProgress() const;

    /// Ends loading with what has been read; files not yet begun are left out.
    void Cancel();

    /// The recording, after the end; the loader is empty then. Before the end it cancels first.
    Recording Take();

    /// Reads all files at once.
    static Recording Load(std::vector<std::string> paths);

private:
    struct State;
    std::unique_ptr<State> m_state;
};

} // namespace kavlix::recording
