# SPDX-License-Identifier: MIT
# Target package_tests: a ZIP of the test programs, of everything that they load, and of run-tests.cmd, which runs them on
# a Windows machine and writes a report.
set(KAVLIX_PACKAGE_SYSTEM win64)
if(CMAKE_SIZEOF_VOID_P EQUAL 4)
    set(KAVLIX_PACKAGE_SYSTEM win32)
endif()
set(name KavlixTests-${PROJECT_VERSION}-${KAVLIX_PACKAGE_SYSTEM})
set(stage ${CMAKE_BINARY_DIR}/${name})
set(texts ${CMAKE_CURRENT_BINARY_DIR}/package)

set(programs)
get_property(targets DIRECTORY PROPERTY BUILDSYSTEM_TARGETS)
foreach(target ${targets})
    get_target_property(type ${target} TYPE)
    get_target_property(libraries ${target} LINK_LIBRARIES)
    if(type STREQUAL EXECUTABLE AND gtest IN_LIST libraries)
        list(APPEND programs ${target})
    endif()
endforeach()
list(JOIN programs "\n" lines)

# The lines of a command file end as Windows ends them.
file(CONFIGURE OUTPUT ${texts}/programs.txt CONTENT "${lines}\n" NEWLINE_STYLE CRLF)
foreach(text run-tests.cmd README.txt)
    configure_file(package/${text} ${texts}/${text} @ONLY NEWLINE_STYLE CRLF)
endforeach()
file(GLOB runtime ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/lib*.dll)
# Beside what the programs link: what they start, and what they load as an extension module.
set(copied ${runtime} $<TARGET_FILE:KavlixMonitor> $<TARGET_FILE:Kavlix> $<TARGET_FILE:KavlixU>)
foreach(program ${programs})
    list(APPEND copied $<TARGET_FILE:${program}> $<TARGET_RUNTIME_DLLS:${program}>)
endforeach()

# Licences of what the package holds: the compiler's run time and GoogleTest, as Debian tells them.
set(licences COMMAND ${CMAKE_COMMAND} -E make_directory ${stage}/licences
             COMMAND ${CMAKE_COMMAND} -E copy ${PROJECT_SOURCE_DIR}/LICENSE ${stage}
             COMMAND ${CMAKE_COMMAND} -E copy ${PROJECT_SOURCE_DIR}/cmake/runtime-licences.txt ${stage}/licences/README.txt)
if(EXISTS /usr/share/common-licenses/GPL-3)
    list(APPEND licences COMMAND ${CMAKE_COMMAND} -E copy /usr/share/common-licenses/GPL-3 ${stage}/licences/gpl-3.txt)
endif()
foreach(package gcc-mingw-w64-base mingw-w64-common googletest)
    if(EXISTS /usr/share/doc/${package}/copyright)
        list(APPEND licences COMMAND ${CMAKE_COMMAND} -E copy /usr/share/doc/${package}/copyright
                                     ${stage}/licences/${package}.txt)
    endif()
endforeach()

add_custom_target(
    package_tests
    COMMAND ${CMAKE_COMMAND} -E rm -rf ${stage} ${stage}.zip
    COMMAND ${CMAKE_COMMAND} -E make_directory ${stage}/programs
    COMMAND ${CMAKE_COMMAND} -E copy "$<REMOVE_DUPLICATES:${copied}>" ${texts}/programs.txt ${stage}/programs
    COMMAND sh -c "${CMAKE_STRIP} ${name}/programs/*.exe ${name}/programs/*.dll"
    COMMAND ${CMAKE_COMMAND} -E copy ${texts}/run-tests.cmd ${texts}/README.txt ${stage}
    ${licences}
    COMMAND ${CMAKE_COMMAND} -E tar cf ${stage}.zip --format=zip ${name}
    COMMAND ${CMAKE_COMMAND} -E echo "The tests for Windows: ${stage}.zip"
    DEPENDS ${programs} KavlixMonitor Kavlix KavlixU
    WORKING_DIRECTORY ${CMAKE_BINARY_DIR}
    COMMAND_EXPAND_LISTS VERBATIM)
