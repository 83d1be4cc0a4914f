# SPDX-License-Identifier: MIT
# What every target of this project has in common.
include(${CMAKE_CURRENT_LIST_DIR}/VyHardening.cmake)

# The folder of a library or program, as the dynamic linker writes it.
set(vy_origin $<IF:$<PLATFORM_ID:Darwin>,@loader_path,$ORIGIN>)

# vy_target(<name>): language level, warnings, hidden symbols, moc, and the
# instrumentation that the cache asks for.
function(vy_target name)
    set_target_properties(${name} PROPERTIES
        CXX_STANDARD 17
        CXX_STANDARD_REQUIRED ON
        CXX_EXTENSIONS OFF
        CXX_VISIBILITY_PRESET hidden
        OBJCXX_STANDARD 17
        OBJCXX_STANDARD_REQUIRED ON
        OBJCXX_EXTENSIONS OFF
        OBJCXX_VISIBILITY_PRESET hidden
        VISIBILITY_INLINES_HIDDEN ON
        POSITION_INDEPENDENT_CODE ON
        AUTOMOC ON)
    target_compile_definitions(${name} PRIVATE
        QT_NO_KEYWORDS QT_USE_QSTRINGBUILDER QT_DISABLE_DEPRECATED_BEFORE=0x050f00)
    target_compile_options(${name} PRIVATE
        -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wconversion
        -Wsign-conversion $<$<BOOL:${VY_WARNINGS_AS_ERRORS}>:-Werror>)
    if(VY_COVERAGE)
        target_compile_options(${name} PRIVATE --coverage -fprofile-update=atomic)
        target_link_options(${name} PRIVATE --coverage)
    endif()
    if(VY_SANITIZERS)
        target_compile_options(${name} PRIVATE
            -fsanitize=${VY_SANITIZERS} -fno-sanitize-recover=all -fno-omit-frame-pointer)
        target_link_options(${name} PRIVATE -fsanitize=${VY_SANITIZERS})
    endif()
endfunction()

# vy_product(<name>): a target that users get. The checks of sources look at these alone.
function(vy_product name)
    vy_target(${name})
    vy_harden(${name})
    set_target_properties(${name} PROPERTIES EXPORT_COMPILE_COMMANDS ON)
endfunction()

# vy_many_sources(<name>): a product of so many that Qt's headers are read beforehand, in
# builds that are made to be tested alone. The others tell of a header that is not included.
function(vy_many_sources name)
    if(VY_SANITIZERS OR VY_COVERAGE)
        target_precompile_headers(${name} PRIVATE
            "$<$<COMPILE_LANGUAGE:CXX>:<QtWidgets$<ANGLE-R>>")
    endif()
endfunction()

# vy_shared_library(<name>): versioned, and complete in itself.
function(vy_shared_library name)
    set_target_properties(${name} PROPERTIES
        VERSION ${PROJECT_VERSION}
        SOVERSION ${PROJECT_VERSION_MAJOR})
    vy_complete_library(${name})
endfunction()

# vy_complete_library(<name>): names all libraries that it needs. Those of ours lie
# beside it, and the translations where it looks for them: built as installed.
function(vy_complete_library name)
    # The sanitizers' runtime comes with the executable.
    if(NOT APPLE AND NOT VY_SANITIZERS)
        target_link_options(${name} PRIVATE LINKER:-z,defs)
    endif()
    set_target_properties(${name} PROPERTIES
        LIBRARY_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/${CMAKE_INSTALL_LIBDIR}
        INSTALL_RPATH ${vy_origin})
endfunction()

# vy_program(<name>): an executable that finds the installed libraries from where it
# is installed itself, wherever both are moved to.
function(vy_program name)
    vy_product(${name})
    set(folder ${CMAKE_INSTALL_BINDIR})
    get_target_property(is_bundle ${name} MACOSX_BUNDLE)
    if(APPLE AND is_bundle)
        string(APPEND folder /${name}.app/Contents/MacOS)
    endif()
    file(RELATIVE_PATH libraries /${folder} /${CMAKE_INSTALL_LIBDIR})
    set_target_properties(${name} PROPERTIES INSTALL_RPATH ${vy_origin}/${libraries})
    install(TARGETS ${name}
        RUNTIME COMPONENT tools
        BUNDLE DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT tools)
endfunction()

# vy_install_library(<name> <name in packages> <header>...): installs it with what a
# program needs to be compiled with it.
function(vy_install_library name exported)
    set_target_properties(${name} PROPERTIES EXPORT_NAME ${exported})
    add_library(VyFileDialogs::${exported} ALIAS ${name})
    target_sources(${name} PUBLIC FILE_SET HEADERS FILES ${ARGN})
    target_compile_features(${name} PUBLIC cxx_std_17)
    install(TARGETS ${name} EXPORT ${name}Targets
        LIBRARY COMPONENT runtime NAMELINK_COMPONENT development
        FILE_SET HEADERS DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/${name} COMPONENT development
        # Once more, for the CMake before 3.23 of a host.
        INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/${name})
endfunction()
