# SPDX-License-Identifier: MIT
# Finds the AppKit that the native panels are built on: macOS's own, or GNUstep.
# Sets VY_APPKIT to "Mac", "GNUstep" or, where there is none, to nothing, and
# defines the target VyAppKit with what Objective-C++ sources need.

# vy_find_gnustep(): g++ cannot read Qt's headers as Objective-C++, so clang
# compiles these sources whatever compiles the rest.
macro(vy_find_gnustep)
    find_program(VY_GNUSTEP_CONFIG gnustep-config)
    if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
        set(VY_CLANGXX ${CMAKE_CXX_COMPILER})
    else()
        find_program(VY_CLANGXX clang++)
    endif()
    find_package(X11)
    # The runtime's own headers lie in a folder of gcc's.
    file(GLOB vy_gcc_includes LIST_DIRECTORIES true /usr/lib/gcc/*/*/include)
    find_path(VY_OBJC_INCLUDE_DIR objc/objc.h HINTS ${vy_gcc_includes})
    mark_as_advanced(VY_GNUSTEP_CONFIG VY_CLANGXX VY_OBJC_INCLUDE_DIR)
    if(VY_GNUSTEP_CONFIG AND VY_CLANGXX AND X11_FOUND AND VY_OBJC_INCLUDE_DIR)
        execute_process(COMMAND ${VY_GNUSTEP_CONFIG} --objc-flags
                        OUTPUT_VARIABLE vy_objc_flags COMMAND_ERROR_IS_FATAL ANY)
        execute_process(COMMAND ${VY_GNUSTEP_CONFIG} --gui-libs
                        OUTPUT_VARIABLE vy_gui_libs COMMAND_ERROR_IS_FATAL ANY)
        separate_arguments(vy_objc_flags UNIX_COMMAND "${vy_objc_flags}")
        separate_arguments(vy_gui_libs UNIX_COMMAND "${vy_gui_libs}")
        set(VY_APPKIT GNUstep)
    endif()
endmacro()

# vy_add_gnustep(): of GNUstep's flags, those that are about GNUstep;
# optimisation, warnings and dependencies are ours.
macro(vy_add_gnustep)
    set(vy_includes ${vy_objc_flags})
    list(FILTER vy_includes INCLUDE REGEX "^-I/")
    list(TRANSFORM vy_includes REPLACE "^-I" "")
    list(FILTER vy_objc_flags INCLUDE REGEX "^-(D|fobjc|fexceptions|fconstant-string)")
    list(FILTER vy_gui_libs INCLUDE REGEX "^-[lL]")
    set(vy_only_objcxx "$<COMPILE_LANGUAGE:OBJCXX>")
    target_compile_options(VyAppKit INTERFACE
        "$<${vy_only_objcxx}:-fobjc-runtime=gcc;${vy_objc_flags};SHELL:-idirafter ${VY_OBJC_INCLUDE_DIR}>")
    target_include_directories(VyAppKit SYSTEM INTERFACE "$<${vy_only_objcxx}:${vy_includes}>")
    target_link_libraries(VyAppKit INTERFACE ${vy_gui_libs} X11::X11)
endmacro()

if(APPLE)
    set(VY_APPKIT Mac)
else()
    vy_find_gnustep()
    if(VY_APPKIT AND NOT CMAKE_OBJCXX_COMPILER)
        set(CMAKE_OBJCXX_COMPILER ${VY_CLANGXX})
    endif()
endif()

if(VY_APPKIT AND VY_COVERAGE AND NOT CMAKE_CXX_COMPILER_ID MATCHES "Clang")
    message(FATAL_ERROR "VY_COVERAGE with native panels needs clang++ for C++, too: g++ counts "
                        "in another way. Set VY_NATIVE to OFF.")
endif()
if(VY_APPKIT)
    enable_language(OBJCXX)
    add_library(VyAppKit INTERFACE)
    if(VY_APPKIT STREQUAL "GNUstep")
        vy_add_gnustep()
    else()
        target_link_libraries(VyAppKit INTERFACE "-framework AppKit" "-framework CoreGraphics" "-framework Foundation")
    endif()
elseif(NOT VY_NATIVE STREQUAL "AUTO")
    message(FATAL_ERROR "VY_NATIVE is ON, but no AppKit was found: GNUstep needs gnustep-config, "
                        "clang++, libobjc's headers and Xlib.")
endif()
