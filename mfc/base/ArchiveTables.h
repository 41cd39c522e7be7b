// SPDX-License-Identifier: MIT
// The tables of classes and objects inside an archive.
#pragma once

#include <afx.h>

#include <unordered_map>
#include <vector>

/// The classes and objects that an archive has stored or loaded. Classes and objects share one sequence of
/// indexes, which starts at 1; index 0 is the null pointer.
struct CArchive::Tables {
    struct Loaded {
        CRuntimeClass* runtimeClass;
        UINT schema;
        CObject* object;
    };

    /// For storing: the index of each class or object, by address.
    std::unordered_map<const void*, DWORD> stored;
    /// For loading: element i is the class or object with index i + 1. An element with a null class is an
    /// object.
    std::vector<Loaded> loaded;
    DWORD count = 0;
};
