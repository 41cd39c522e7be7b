# SPDX-License-Identifier: MIT
# Settings that all targets share.

# Warnings, sanitizers and platform definitions of the project's own code.
function(kavlix_compile_options target)
    if(MSVC)
        # C4251: private members of exported classes have types that are not exported.
        target_compile_options(${target} PRIVATE /W4 /utf-8 /permissive- /bigobj /wd4251 $<$<BOOL:${KAVLIX_WERROR}>:/WX>)
        target_compile_definitions(${target} PRIVATE _CRT_SECURE_NO_WARNINGS)
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
    if(CMAKE_UNITY_BUILD)
        kavlix_compile_together(${target})
    endif()
endfunction()

# Compiles sources of a folder together, up to 20 at a time: starting the compiler and reading headers takes longer than
# the sources themselves. Names in anonymous namespaces of a folder must differ, because a new file moves the sources
# between the units. KAVLIX_COMPILED_ALONE are those that share a name with another source, and those whose macros or
# headers would change other sources.
set(KAVLIX_COMPILED_ALONE
    graph/GraphSolidBars.cpp mfc/dialog/PropertyPage.cpp mfc/window/FrameWnd.cpp mfc/window/WndDispatch.cpp
    monitor/MachineCounters.cpp monitor/PiePage.cpp monitor/ScrollPage.cpp plot/RoundScale.cpp tests/EndOnTrap.cpp
    tests/client/Thermostat.cpp tests/client/recorder/Sampler.cpp)
function(kavlix_compile_together target)
    get_target_property(sources ${target} SOURCES)
    foreach(source ${sources})
        # A target for char comes before that for UNICODE, which may leave sources out: the units are those of the first.
        get_source_file_property(unit ${source} UNITY_GROUP)
        cmake_path(ABSOLUTE_PATH source NORMALIZE OUTPUT_VARIABLE path)
        cmake_path(RELATIVE_PATH path BASE_DIRECTORY ${PROJECT_SOURCE_DIR})
        if(NOT unit AND NOT path IN_LIST KAVLIX_COMPILED_ALONE)
            cmake_path(GET path PARENT_PATH folder)
            string(MAKE_C_IDENTIFIER "${folder}" folder)
            list(APPEND in_${folder} ${path})
            list(LENGTH in_${folder} count)
            math(EXPR unit "(${count} - 1) / 20")
            set_source_files_properties(${source} PROPERTIES UNITY_GROUP ${folder}_${unit})
        endif()
    endforeach()
    set_target_properties(${target} PROPERTIES UNITY_BUILD_MODE GROUP)
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
        # For the compiler the sources are headers there, in which exported classes must not have members of such namespaces.
        target_compile_options(${target} PRIVATE -Wno-subobject-linkage)
    endif()
endfunction()

# In the build with traps the sources of the UNICODE targets compile as fast as they can: without traps, which the same
# sources have in the targets for char, and without optimizations. Targets that share precompiled headers agree on this.
function(kavlix_compile_quickly target)
    if(KAVLIX_SANITIZE_TRAP)
        target_compile_options(${target} PRIVATE -fno-sanitize=all -O0 -g0)
    endif()
endfunction()

# The DLLs and what is linked with them exist for each character set: targets named without suffix are for char, targets
# named with the suffix U are for UTF-16 (UNICODE). `set` is the suffix. Programs that link the target get the definitions;
# kavlix/Export.h and afx/Export.h compare KAVLIX_NARROW and KAVLIX_WIDE to the program's setting.
function(kavlix_character_set target set)
    if(set STREQUAL "U")
        target_compile_definitions(${target} PUBLIC UNICODE _UNICODE INTERFACE KAVLIX_WIDE)
        kavlix_compile_quickly(${target})
    else()
        target_compile_definitions(${target} INTERFACE KAVLIX_NARROW)
    endif()
endfunction()

# Gives targets the names by which hosts know them, the same as in the installed package. In another project they are built
# when a program of it links them.
function(kavlix_public_targets)
    foreach(target ${ARGN})
        get_target_property(name ${target} EXPORT_NAME)
        if(NOT name)
            set(name ${target})
        endif()
        add_library(Kavlix::${name} ALIAS ${target})
        if(NOT PROJECT_IS_TOP_LEVEL AND NOT KAVLIX_INSTALL)
            set_target_properties(${target} PROPERTIES EXCLUDE_FROM_ALL ON)
        endif()
    endforeach()
endfunction()

# Resource scripts are read by windres, which knows the include roots only when told, and does not tell what it has
# included.
function(kavlix_resources target script)
    target_sources(${target} PRIVATE ${script})
    if(MSVC)
        target_link_options(${target} PRIVATE /MANIFEST:NO) # a manifest is among the resources
    endif()
    file(GLOB included CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/module/*.rc ${PROJECT_SOURCE_DIR}/gdi/StringIds.h
         ${PROJECT_SOURCE_DIR}/mfc/*.rc
         ${PROJECT_SOURCE_DIR}/monitor/*.rc ${PROJECT_BINARY_DIR}/generated/Monitor.manifest
         ${PROJECT_SOURCE_DIR}/monitor/resource.h ${PROJECT_SOURCE_DIR}/include/kavlix/GraphNotify.h
         ${PROJECT_BINARY_DIR}/generated/include/kavlix/Version.h)
    set(folders ${PROJECT_SOURCE_DIR} ${PROJECT_SOURCE_DIR}/include ${PROJECT_BINARY_DIR}/generated
                ${PROJECT_BINARY_DIR}/generated/include ${PROJECT_SOURCE_DIR}/mfc/include)
    set_source_files_properties(${script} PROPERTIES INCLUDE_DIRECTORIES "${folders}" OBJECT_DEPENDS "${included}")
endfunction()

# Programs of the build tree run from its folder, together with the DLLs of the compiler's own run time.
function(kavlix_copy_compiler_runtime)
    if(PROJECT_IS_TOP_LEVEL)
        kavlix_compiler_runtime(files)
        if(files)
            file(COPY ${files} DESTINATION ${CMAKE_RUNTIME_OUTPUT_DIRECTORY})
        endif()
    endif()
endfunction()

# Adds the sources of all targets of a folder and its subfolders to the list `result`.
function(kavlix_compiled_sources folder result)
    get_directory_property(targets DIRECTORY ${folder} BUILDSYSTEM_TARGETS)
    get_directory_property(subfolders DIRECTORY ${folder} SUBDIRECTORIES)
    set(all ${${result}})
    foreach(target ${targets})
        get_target_property(sources ${target} SOURCES)
        get_target_property(directory ${target} SOURCE_DIR)
        foreach(source ${sources})
            cmake_path(ABSOLUTE_PATH source BASE_DIRECTORY ${directory} NORMALIZE)
            list(APPEND all ${source})
        endforeach()
    endforeach()
    foreach(subfolder ${subfolders})
        kavlix_compiled_sources(${subfolder} all)
    endforeach()
    set(${result} ${all} PARENT_SCOPE)
endfunction()

# Fails when a source of the project belongs to no target. A new folder needs a place in a list of sources.
function(kavlix_check_all_sources_are_compiled)
    file(GLOB top CONFIGURE_DEPENDS LIST_DIRECTORIES true ${PROJECT_SOURCE_DIR}/*)
    list(FILTER top EXCLUDE REGEX "/build[^/]*$")
    set(patterns)
    foreach(folder ${top})
        if(IS_DIRECTORY ${folder})
            list(APPEND patterns ${folder}/*.cpp)
        endif()
    endforeach()
    file(GLOB_RECURSE existing CONFIGURE_DEPENDS ${patterns})
    kavlix_compiled_sources(${PROJECT_SOURCE_DIR} compiled)
    list(REMOVE_ITEM existing ${compiled})
    if(existing)
        list(JOIN existing "\n  " names)
        message(FATAL_ERROR "No target compiles these sources:\n  ${names}")
    endif()
endfunction()
