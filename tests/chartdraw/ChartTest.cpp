#include "tests/chartdraw/ChartTest.h"

#include <algorithm>

TempFolder::TempFolder() {
    char folder[MAX_PATH] = "", path[MAX_PATH] = "";
    ::GetTempPathA(MAX_PATH, folder);
    ::GetTempFileNameA(folder, "kvx", 0, path);
    ::DeleteFileA(path);
    ::CreateDirectoryA(path, nullptr);
    m_path = path;
}

TempFolder::~TempFolder() {
    for (const std::string& name : Names()) {
        ::SetFileAttributesA(Path(name).c_str(), FILE_ATTRIBUTE_NORMAL);
        ::DeleteFileA(Path(name).c_str());
    }
    ::RemoveDirectoryA(m_path.c_str());
}

Strings TempFolder::Names() const {
    Strings names;
    WIN32_FIND_DATAA found = {};
    const HANDLE search = ::FindFirstFileA(Path("*").c_str(), &found);
    if (search == INVALID_HANDLE_VALUE)
        return names;
    do {
        if ((found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0)
            names.push_back(found.cFileName);
    } while (::FindNextFileA(search, &found));
    ::FindClose(search);
    std::sort(names.begin(), names.end());
    return names;
}

std::vector<unsigned char> FileBytes(const std::string& path) {
    CFile file;
    if (!file.Open(path.c_str(), CFile::modeRead))
        return {};
    std::vector<unsigned char> bytes(static_cast<std::size_t>(file.GetLength()));
    bytes.resize(file.Read(bytes.data(), static_cast<UINT>(bytes.size())));
    return bytes;
}

DWORD OpenHandles() {
    DWORD count = 0;
    ::GetProcessHandleCount(::GetCurrentProcess(), &count);
    return count;
}
