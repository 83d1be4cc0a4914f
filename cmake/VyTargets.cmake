# SPDX-License-Identifier: MIT
# What every target of this project has in common.
include(${CMAKE_CURRENT_LIST_DIR}/VyHardening.cmake)

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

# vy_shared_library(<name>): versioned, and complete in itself.
function(vy_shared_library name)
    set_target_properties(${name} PROPERTIES
        VERSION ${PROJECT_VERSION}
        SOVERSION ${PROJECT_VERSION_MAJOR})
    vy_complete_library(${name})
endfunction()

# vy_complete_library(<name>): names all libraries that it needs. Those of ours
# that are installed lie beside it.
function(vy_complete_library name)
    # The sanitizers' runtime comes with the executable.
    if(NOT APPLE AND NOT VY_SANITIZERS)
        target_link_options(${name} PRIVATE LINKER:-z,defs)
    endif()
    if(NOT APPLE)
        set_target_properties(${name} PROPERTIES INSTALL_RPATH "$ORIGIN")
    endif()
endfunction()
