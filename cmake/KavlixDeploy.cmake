# SPDX-License-Identifier: MIT
# kavlix_deploy: the DLLs that a program needs, beside the program. Part of the installed package too.

# Lists the DLLs of the compiler's own run time in `result`: libstdc++, libgcc, and threads. Empty for other compilers than
# mingw-w64's.
function(kavlix_compiler_runtime result)
    set(files)
    if(MINGW)
        foreach(name libstdc++-6.dll libgcc_s_seh-1.dll libgcc_s_dw2-1.dll libwinpthread-1.dll)
            execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${name} OUTPUT_VARIABLE path
                            OUTPUT_STRIP_TRAILING_WHITESPACE)
            if(NOT IS_ABSOLUTE "${path}" AND CMAKE_FIND_ROOT_PATH)
                find_file(KAVLIX_${name} ${name} PATHS ${CMAKE_FIND_ROOT_PATH} PATH_SUFFIXES lib NO_DEFAULT_PATH
                          NO_CMAKE_FIND_ROOT_PATH)
                mark_as_advanced(KAVLIX_${name})
                set(path "${KAVLIX_${name}}")
            endif()
            if(IS_ABSOLUTE "${path}" AND EXISTS "${path}")
                list(APPEND files "${path}")
            endif()
        endforeach()
    endif()
    set(${result} "${files}" PARENT_SCOPE)
endfunction()

# Copies the DLLs beside the program `target` after each build: those that the program links, in its character set, and the
# compiler's run time, of which all modules must share one copy, because exceptions cross DLL borders.
function(kavlix_deploy target)
    # A program of a newer compiler needs the newer run time, which serves older modules too. Compilers of the same major
    # version have the same run time.
    string(REGEX MATCH "^[0-9]+" compiler "${CMAKE_CXX_COMPILER_VERSION}")
    string(REGEX MATCH "^[0-9]+" packaged "${KAVLIX_COMPILER_VERSION}")
    if(KAVLIX_RUNTIME_DLLS AND NOT compiler GREATER packaged)
        set(runtime ${KAVLIX_RUNTIME_DLLS})
    else()
        kavlix_compiler_runtime(runtime)
    endif()
    add_custom_command(
        TARGET ${target} POST_BUILD
        COMMAND ${CMAKE_COMMAND} -E copy_if_different $<TARGET_RUNTIME_DLLS:${target}> ${runtime}
                $<TARGET_FILE_DIR:${target}>
        COMMAND_EXPAND_LISTS VERBATIM)
endfunction()
