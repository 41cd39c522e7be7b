# SPDX-License-Identifier: MIT
# The MFC of Visual C++, as a shared DLL, under the names that our own class library's targets have.
set(CMAKE_MFC_FLAG 2)
foreach(set IN ITEMS "" U)
    add_library(kavlix_mfc${set} INTERFACE)
    target_compile_definitions(kavlix_mfc${set} INTERFACE _AFXDLL)
    add_library(kavlix_mfc_main${set} INTERFACE)
    target_link_libraries(kavlix_mfc_main${set} INTERFACE kavlix_mfc${set})
endforeach()
target_compile_definitions(kavlix_mfcU INTERFACE UNICODE _UNICODE)
