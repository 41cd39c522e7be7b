# SPDX-License-Identifier: MIT
# cmake --install, and cpack, which packs the installed files as a ZIP.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(KAVLIX_CMAKE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/Kavlix)
set(KAVLIX_DOC_DIR ${CMAKE_INSTALL_DATADIR}/doc/Kavlix)

# ---- Libraries and headers ----

install(TARGETS Kavlix KavlixU EXPORT KavlixTargets INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
if(NOT KAVLIX_GENUINE_MFC)
    install(TARGETS kavlix_mfc kavlix_mfcU kavlix_mfc_main kavlix_mfc_mainU EXPORT KavlixTargets
            INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/kavlix-mfc)
endif()
if(TARGET KavlixMonitor)
    install(TARGETS KavlixMonitor)
endif()
install(DIRECTORY include/kavlix TYPE INCLUDE FILES_MATCHING PATTERN "*.h")
install(FILES ${PROJECT_BINARY_DIR}/generated/include/kavlix/Version.h DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/kavlix)
if(NOT KAVLIX_GENUINE_MFC)
    install(DIRECTORY mfc/include/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/kavlix-mfc)
endif()
kavlix_compiler_runtime(runtime)
install(PROGRAMS ${runtime} TYPE BIN)

# ---- find_package(Kavlix) ----

install(EXPORT KavlixTargets NAMESPACE Kavlix:: DESTINATION ${KAVLIX_CMAKE_DIR})
configure_package_config_file(cmake/KavlixConfig.cmake.in generated/KavlixConfig.cmake
                              INSTALL_DESTINATION ${KAVLIX_CMAKE_DIR})
write_basic_package_version_file(generated/KavlixConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/generated/KavlixConfig.cmake
              ${PROJECT_BINARY_DIR}/generated/KavlixConfigVersion.cmake cmake/KavlixDeploy.cmake
        DESTINATION ${KAVLIX_CMAKE_DIR})
if(MINGW)
    install(FILES cmake/mingw.cmake cmake/mingw-${CMAKE_SYSTEM_PROCESSOR}.cmake DESTINATION ${KAVLIX_CMAKE_DIR})
endif()

# ---- Documents and licences ----

install(FILES README.md DESTINATION ${KAVLIX_DOC_DIR})
install(FILES LICENSE CHANGES.md DESTINATION ${KAVLIX_DOC_DIR} OPTIONAL)
# Not those for people who change Kavlix: they speak of the sources.
install(DIRECTORY docs DESTINATION ${KAVLIX_DOC_DIR} PATTERN house.md EXCLUDE PATTERN Doxyfile EXCLUDE)

# The compiler's run time has licences of its own, which Debian's packages contain.
if(runtime)
    set(debian /usr/share/doc)
    set(gcc_licence ${debian}/gcc-mingw-w64-base/copyright)
    set(mingw_licence ${debian}/mingw-w64-common/copyright)
    set(gpl /usr/share/common-licenses/GPL-3)
    foreach(file ${gcc_licence} ${mingw_licence} ${gpl})
        if(NOT EXISTS ${file})
            message(STATUS "Without ${file} an installation lacks the licence of the compiler's run time")
        endif()
    endforeach()
    install(FILES cmake/runtime-licences.txt DESTINATION ${KAVLIX_DOC_DIR}/licences RENAME README.txt)
    install(FILES ${gcc_licence} DESTINATION ${KAVLIX_DOC_DIR}/licences RENAME gcc.txt OPTIONAL)
    install(FILES ${mingw_licence} DESTINATION ${KAVLIX_DOC_DIR}/licences RENAME mingw-w64.txt OPTIONAL)
    install(FILES ${gpl} DESTINATION ${KAVLIX_DOC_DIR}/licences RENAME gpl-3.txt OPTIONAL)
endif()

# ---- cpack ----

set(CPACK_GENERATOR ZIP)
set(CPACK_PACKAGE_VENDOR Kavlix)
set(CPACK_PACKAGE_FILE_NAME Kavlix-${PROJECT_VERSION}-windows-${CMAKE_SYSTEM_PROCESSOR})
set(CPACK_STRIP_FILES ON)
configure_file(cmake/ZipTop.cmake.in generated/ZipTop.cmake @ONLY)
set(CPACK_PRE_BUILD_SCRIPTS ${PROJECT_BINARY_DIR}/generated/ZipTop.cmake)
set(CPACK_VERBATIM_VARIABLES ON)
include(CPack)
