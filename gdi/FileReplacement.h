// SPDX-License-Identifier: MIT
// FileReplacement: a file that replaces another one when it is complete.
#pragma once

#include <afxwin.h>

#include <string>

namespace kavlix {

/// A temporary file in the folder of `path`. PutInPlace renames it to `path`; without PutInPlace the destructor deletes
/// it. So an existing file at `path` is either replaced by a complete file or unchanged.
class FileReplacement {
public:
    explicit FileReplacement(const CString& path);
    ~FileReplacement();
    FileReplacement(const FileReplacement&) = delete;
    FileReplacement& operator=(const FileReplacement&) = delete;

    /// False when the file could not be created, or the bytes cannot be written.
    bool Write(const void* pBytes, std::size_t count);
    /// False when a Write failed or the file cannot be renamed.
    bool PutInPlace();

private:
    bool Close();

    std::wstring m_path;
    std::wstring m_name; ///< of the temporary file
    HANDLE m_file;
    bool m_isWhole = true;
};

} // namespace kavlix
