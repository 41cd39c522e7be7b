// SPDX-License-Identifier: MIT
// The exception handler that counts accesses.
#include "tests/support/ForbiddenPages.h"

namespace testkit {

int ForbiddenPages::s_touched = 0;
std::vector<ForbiddenPages::Block> ForbiddenPages::s_blocks;

LONG CALLBACK ForbiddenPages::OnException(EXCEPTION_POINTERS* exception) {
    const EXCEPTION_RECORD& record = *exception->ExceptionRecord;
    if (record.ExceptionCode != EXCEPTION_ACCESS_VIOLATION)
        return EXCEPTION_CONTINUE_SEARCH;
    auto* const touched = reinterpret_cast<char*>(record.ExceptionInformation[1]);
    for (const Block& block : s_blocks) {
        if (touched < block.begin || touched >= block.begin + block.size)
            continue;
        ++s_touched;
        DWORD former = 0;
        ::VirtualProtect(block.begin, block.size, PAGE_READWRITE, &former);
        return EXCEPTION_CONTINUE_EXECUTION;
    }
    return EXCEPTION_CONTINUE_SEARCH;
}

} // namespace testkit
