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

# cpack -G DEB. The files that Debian wants besides come from debian/.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME vyfiledialogs)
set(CPACK_PACKAGE_VENDOR "VyFileDialogs maintainers")
set(CPACK_PACKAGE_CONTACT "VyFileDialogs maintainers <maintainers@vyfiledialogs.invalid>" CACHE STRING
    "Who answers for the packages, with the address")
set(CPACK_RESOURCE_FILE_LICENSE ${PROJECT_SOURCE_DIR}/LICENSE)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES TRUE)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_LIST_DIR}/debian/VyDebianFiles.cmake)

set(CPACK_COMPONENTS_GROUPING IGNORE)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR}/${CMAKE_INSTALL_LIBDIR})
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")

# vy_debian_package(<component> <name> <section> <summary> <what is in it>)
macro(vy_debian_package component name section summary contents)
    string(TOUPPER ${component} vy_component)
    list(APPEND CPACK_COMPONENTS_ALL ${component})
    set(CPACK_DEBIAN_${vy_component}_PACKAGE_NAME ${name})
    set(CPACK_DEBIAN_${vy_component}_PACKAGE_SECTION ${section})
    set(CPACK_COMPONENT_${vy_component}_DESCRIPTION
        "${summary}
Asks the user of a CAD application which drawings to open, where to save and
which template to start from, in one of two styles.
.
This package has ${contents}.")
endmacro()

set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "") # it would be put before each of these
set(CPACK_COMPONENTS_ALL)
vy_debian_package(runtime libvyfiledialogs1 libs
    "file dialogs for CAD applications"
    "the libraries and their translations")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_RECOMMENDS qttranslations5-l10n)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA ${CMAKE_CURRENT_LIST_DIR}/debian/triggers)

vy_debian_package(development libvyfiledialogs-dev libdevel
    "file dialogs for CAD applications (development files)"
    "the headers, and what CMake and pkg-config need")
set(CPACK_COMPONENT_DEVELOPMENT_DEPENDS runtime)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS qtbase5-dev)

vy_debian_package(tools vyfiledialog utils
    "file dialogs for CAD applications (programs)"
    "the dialogs as a command, and a sample application")
set(CPACK_COMPONENT_TOOLS_DEPENDS runtime)

if(TARGET VyFileDialogsNative)
    # Of its own, so that a host of the Qt dialog need not have GNUstep.
    vy_debian_package(native libvyfiledialogs1-gnustep libs
        "file dialogs for CAD applications (GNUstep's panels)"
        "the style that shows GNUstep's panels")
    set(CPACK_COMPONENT_NATIVE_DEPENDS runtime)
    string(APPEND CPACK_DEBIAN_RUNTIME_PACKAGE_RECOMMENDS
        ", libvyfiledialogs1-gnustep (= ${PROJECT_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE})")
endif()
include(CPack)
