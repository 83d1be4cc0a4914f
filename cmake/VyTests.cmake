# SPDX-License-Identifier: MIT
# How a test is added.
set(vy_tests ${CMAKE_CURRENT_LIST_DIR}/../tests)

# Many programs, each with all of the module: most linkers take longer than the compiler.
if(NOT APPLE)
    find_program(VY_LLD ld.lld)
    mark_as_advanced(VY_LLD)
endif()

# vy_test_library(<name> <header>...): what the programs of a folder share. They
# are compiled again and again and run once, hence without optimisation, and with
# Qt's headers read beforehand.
function(vy_test_library name)
    vy_target(${name})
    target_compile_options(${name} PUBLIC -O0)
    if(VY_LLD)
        target_link_options(${name} PUBLIC -fuse-ld=lld)
    endif()
    target_precompile_headers(${name} PRIVATE ${ARGN})
endfunction()

# vy_add_test(<name> <sources>... [LINK <libraries>...] [DISPLAY]): one Qt Test
# program, run on the offscreen platform, or with DISPLAY in real windows on a
# virtual display, with settings and home folder of its own. It is linked with
# VY_TEST_LIBRARY, which a folder of tests sets for all of its own.
function(vy_add_test name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "DISPLAY" "" "LINK")
    add_executable(${name} ${arg_UNPARSED_ARGUMENTS})
    vy_target(${name})
    # QSKIP(text) leaves a variadic macro without arguments.
    target_compile_options(${name} PRIVATE
        $<$<CXX_COMPILER_ID:Clang,AppleClang>:-Wno-gnu-zero-variadic-macro-arguments>)
    target_link_libraries(${name} PRIVATE ${VY_TEST_LIBRARY} ${arg_LINK} Qt5::Test)
    target_precompile_headers(${name} REUSE_FROM ${VY_TEST_LIBRARY})
    # It is all but empty: moc's output is included where it belongs.
    set_source_files_properties(${CMAKE_CURRENT_BINARY_DIR}/${name}_autogen/mocs_compilation.cpp
        PROPERTIES SKIP_PRECOMPILE_HEADERS ON)
    if(arg_DISPLAY)
        add_test(NAME ${name}
            COMMAND ${vy_tests}/support/with-display.sh
                    ${CMAKE_CURRENT_BINARY_DIR}/${name}.display $<TARGET_FILE:${name}>)
        # The long ones start first, lest the last of them run alone.
        set_tests_properties(${name} PROPERTIES SKIP_RETURN_CODE 77 COST 10)
    else()
        add_test(NAME ${name} COMMAND ${name})
    endif()
    vy_test_environment(${name})
endfunction()

# vy_test_environment(<test>): what every test runs in.
function(vy_test_environment name)
    set(home ${CMAKE_CURRENT_BINARY_DIR}/${name}.home)
    file(MAKE_DIRECTORY ${home})
    set(sanitizing "")
    if(VY_SANITIZERS)
        # Nothing is drawn with OpenGL, whose drivers leak.
        string(CONCAT sanitizing "QT_XCB_GL_INTEGRATION=none;UBSAN_OPTIONS=print_stacktrace=1;"
            "LSAN_OPTIONS=suppressions=${vy_tests}/support/lsan.supp:print_suppressions=0;"
            # Qt was not built with it: its locks are not seen, so what they protect, and Qt
            # reads, writes and frees through the C library, is not looked at either. How
            # threads wait for one another and wake is seen.
            "TSAN_OPTIONS=ignore_noninstrumented_modules=1")
    endif()
    set_tests_properties(${name} PROPERTIES
        TIMEOUT 300
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;DISPLAY=;VY_TEMPLATE_FOLDER=;VY_EXPERT_LEVEL=;HOME=${home};XDG_CONFIG_HOME=${home}/config;XDG_DATA_HOME=${home}/data;LC_ALL=C.UTF-8;QT_LOGGING_RULES=;${sanitizing}"
        SKIP_REGULAR_EXPRESSION "^SKIP[ ]+:.*the folder shared/samples is not there")
endfunction()
