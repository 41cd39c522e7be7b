// SPDX-License-Identifier: MIT
// A folder for the files of one test.
#pragma once

#include <chrono>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

namespace testkit {

/// A new folder, removed with all files in it at the end. Names and paths are in UTF-8.
class TempFolder {
public:
    TempFolder() {
        static int count = 0;
        const auto now = std::chrono::system_clock::now().time_since_epoch().count();
        m_path = std::filesystem::temp_directory_path() /
                 ("kavlix-" + std::to_string(now) + "-" + std::to_string(++count));
        std::filesystem::create_directory(m_path);
    }
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;
    ~TempFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }

    /// Path of a file in the folder, or of the folder itself.
    std::string Path(const std::string& name = {}) const {
        return (name.empty() ? m_path : m_path / std::filesystem::u8path(name)).u8string();
    }
    /// Writes a file; returns its path.
    std::string Write(const std::string& name, std::string_view content) const {
        std::ofstream(std::filesystem::u8path(Path(name)), std::ios::binary) << content;
        return Path(name);
    }

private:
    std::filesystem::path m_path;
};

} // namespace testkit
