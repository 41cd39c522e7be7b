# Settings that all targets share.

# Warnings, sanitizers and platform definitions of the project's own code.
function(kavlix_compile_options target)
    if(MSVC)
        target_compile_options(${target} PRIVATE /W4 /utf-8)
    else()
        target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic $<$<BOOL:${KAVLIX_WERROR}>:-Werror>)
        if(KAVLIX_SANITIZE)
            target_compile_options(${target} PRIVATE -fsanitize=${KAVLIX_SANITIZE} -fno-omit-frame-pointer)
            if(KAVLIX_SANITIZE_TRAP)
                target_compile_options(${target} PRIVATE -fsanitize-undefined-trap-on-error)
            else()
                target_compile_options(${target} PRIVATE -fno-sanitize-recover=all)
                target_link_options(${target} PRIVATE -fsanitize=${KAVLIX_SANITIZE})
            endif()
        endif()
    endif()
    if(WIN32)
        target_compile_definitions(${target} PRIVATE NOMINMAX _WIN32_WINNT=0x0601 WINVER=0x0601
                                                     $<$<CONFIG:Debug>:_DEBUG>)
    endif()
endfunction()

# Resource scripts are read by windres, which knows the include roots only when told, and does not tell what it has
# included.
function(kavlix_resources target script)
    target_sources(${target} PRIVATE ${script})
    file(GLOB included CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/module/*.rc ${PROJECT_SOURCE_DIR}/module/resource.h
         ${PROJECT_SOURCE_DIR}/monitor/*.rc ${PROJECT_SOURCE_DIR}/monitor/*.manifest
         ${PROJECT_SOURCE_DIR}/monitor/resource.h ${PROJECT_SOURCE_DIR}/include/kavlix/GraphNotify.h)
    set_source_files_properties(
        ${script} PROPERTIES INCLUDE_DIRECTORIES "${PROJECT_SOURCE_DIR};${PROJECT_SOURCE_DIR}/mfc/include"
                             OBJECT_DEPENDS "${included}")
endfunction()

# The DLLs of the compiler's own run time stand beside the programs: exceptions cross DLL borders here, so
# every module must share one copy of them.
function(kavlix_copy_compiler_runtime)
    if(NOT MINGW)
        return()
    endif()
    foreach(name libstdc++-6.dll libgcc_s_seh-1.dll libgcc_s_dw2-1.dll libwinpthread-1.dll)
        execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${name} OUTPUT_VARIABLE path
                        OUTPUT_STRIP_TRAILING_WHITESPACE)
        if(NOT IS_ABSOLUTE "${path}" AND CMAKE_FIND_ROOT_PATH)
            find_file(KAVLIX_${name} ${name} PATHS ${CMAKE_FIND_ROOT_PATH} PATH_SUFFIXES lib NO_DEFAULT_PATH
                      NO_CMAKE_FIND_ROOT_PATH)
            set(path "${KAVLIX_${name}}")
        endif()
        if(IS_ABSOLUTE "${path}" AND EXISTS "${path}")
            file(COPY "${path}" DESTINATION ${CMAKE_RUNTIME_OUTPUT_DIRECTORY})
        endif()
    endforeach()
endfunction()
