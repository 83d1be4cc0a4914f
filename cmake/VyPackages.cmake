# SPDX-License-Identifier: MIT
# How other projects find what was installed (CMake's packages, pkg-config), and what
# CPack makes of it: Debian packages.
include(CMakePackageConfigHelpers)

set(vy_config_folder ${CMAKE_INSTALL_LIBDIR}/cmake/VyFileDialogs)
configure_package_config_file(
    ${CMAKE_CURRENT_LIST_DIR}/VyFileDialogsConfig.cmake.in
    ${PROJECT_BINARY_DIR}/VyFileDialogsConfig.cmake
    INSTALL_DESTINATION ${vy_config_folder}
    NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/VyFileDialogsConfigVersion.cmake
    COMPATIBILITY SameMajorVersion)
install(FILES
    ${PROJECT_BINARY_DIR}/VyFileDialogsConfig.cmake
    ${PROJECT_BINARY_DIR}/VyFileDialogsConfigVersion.cmake
    DESTINATION ${vy_config_folder} COMPONENT development)

file(RELATIVE_PATH VY_PREFIX_FROM_PKGCONFIG /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
string(REGEX REPLACE "/$" "" VY_PREFIX_FROM_PKGCONFIG ${VY_PREFIX_FROM_PKGCONFIG})
foreach(library IN ITEMS VyFileDialogs VyHostKernel)
    install(EXPORT ${library}Targets NAMESPACE VyFileDialogs::
        DESTINATION ${vy_config_folder} COMPONENT development)
    configure_file(${CMAKE_CURRENT_LIST_DIR}/${library}.pc.in
        ${PROJECT_BINARY_DIR}/${library}.pc @ONLY)
    install(FILES ${PROJECT_BINARY_DIR}/${library}.pc
        DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT development)
endforeach()
