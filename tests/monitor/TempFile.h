#pragma once

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

/// A file in a folder of its own for the length of a test; both are removed at its end.
class TempFile {
public:
    /// @param name the file's name, which must be unique within the test.
    TempFile(const std::string& name, std::string_view content) {
        static int s_count = 0;
        const auto unique = reinterpret_cast<std::uintptr_t>(this) + static_cast<std::uintptr_t>(++s_count);
        m_folder = std::filesystem::temp_directory_path() /
                   ("kavlix" +
                    std::to_string(std::filesystem::file_time_type::clock::now().time_since_epoch().count()) +
                    "-" + std::to_string(unique));
        std::filesystem::create_directories(m_folder);
        m_path = (m_folder / name).string();
        std::ofstream stream(m_path, std::ios::binary);
        stream.write(content.data(), static_cast<std::streamsize>(content.size()));
    }

    ~TempFile() {
        std::error_code ignored;
        std::filesystem::remove_all(m_folder, ignored);
    }

    TempFile(const TempFile&) = delete;
    TempFile& operator=(const TempFile&) = delete;

    const std::string& Path() const { return m_path; }

private:
    std::filesystem::path m_folder;
    std::string m_path;
};
