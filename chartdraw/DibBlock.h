// SPDX-License-Identifier: MIT
// Guards for blocks of global memory that hold packed DIBs.
#pragma once

#include <windows.h>

namespace kavlix {

/// Owns a block of global memory and frees it in the destructor.
class DibBlock {
public:
    explicit DibBlock(HGLOBAL block) : m_block(block) {}
    ~DibBlock() {
        if (m_block != nullptr)
            ::GlobalFree(m_block);
    }
    DibBlock(const DibBlock&) = delete;
    DibBlock& operator=(const DibBlock&) = delete;

    HGLOBAL Get() const { return m_block; }
    /// Passes the ownership to the caller.
    HGLOBAL Detach() {
        const HGLOBAL block = m_block;
        m_block = nullptr;
        return block;
    }
    /// Changes the block's size, which can change its handle and address. False, with the block unchanged,
    /// when memory runs out.
    bool Resize(SIZE_T bytes) {
        const HGLOBAL block = ::GlobalReAlloc(m_block, bytes, GMEM_MOVEABLE);
        if (block == nullptr)
            return false;
        m_block = block;
        return true;
    }

private:
    HGLOBAL m_block;
};

/// Locks a block of global memory, so that its address stays the same, until the destructor unlocks it.
class DibLock {
public:
    explicit DibLock(HGLOBAL block)
        : m_block(block), m_bytes(block != nullptr ? static_cast<char*>(::GlobalLock(block)) : nullptr) {}
    ~DibLock() {
        if (m_bytes != nullptr)
            ::GlobalUnlock(m_block);
    }
    DibLock(const DibLock&) = delete;
    DibLock& operator=(const DibLock&) = delete;

    /// The block's bytes; null when there is no block or it cannot be locked.
    char* Bytes() const { return m_bytes; }
    BITMAPINFOHEADER& Header() const { return *reinterpret_cast<BITMAPINFOHEADER*>(m_bytes); }
    BITMAPINFO* Info() const { return reinterpret_cast<BITMAPINFO*>(m_bytes); }

private:
    HGLOBAL m_block;
    char* m_bytes;
};

} // namespace kavlix
