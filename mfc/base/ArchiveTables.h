#pragma once

#include <afx.h>

#include <unordered_map>
#include <vector>

/// What an archive remembers of the classes and objects that passed through it. Both count in one row, from
/// 1; 0 is the null pointer.
struct CArchive::Tables {
    struct Loaded {
        CRuntimeClass* runtimeClass;
        UINT schema;
        CObject* object;
    };

    /// Index by address of the class or object; of use when storing.
    std::unordered_map<const void*, DWORD> stored;
    /// The class or object of each index, less one; of use when loading. An entry without a class is an
    /// object.
    std::vector<Loaded> loaded;
    DWORD count = 0;
};
