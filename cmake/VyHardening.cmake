# SPDX-License-Identifier: MIT
# What users get reads drawings, names and settings that others made. A mistake of ours with
# memory is to end the program there, and to serve nobody.
include(CheckCompilerFlag)
include(CheckPIESupported)
check_pie_supported(OUTPUT_VARIABLE vy_pie_output LANGUAGES CXX)

# Not known to each compiler, and not made for each processor.
set(VY_HARDENING -fstack-protector-strong -fstack-clash-protection -fcf-protection)

# vy_harden(<name>): a stack that is guarded and no code, calls of the C library that know how
# much room there is, and tables of addresses that are complete and read-only before main().
function(vy_harden name)
    get_property(languages GLOBAL PROPERTY ENABLED_LANGUAGES)
    list(FILTER languages INCLUDE REGEX "^(OBJ)?CXX$")
    foreach(language IN LISTS languages)
        foreach(flag IN LISTS VY_HARDENING)
            string(MAKE_C_IDENTIFIER "VY_${language}${flag}" known)
            check_compiler_flag(${language} ${flag} ${known})
            if(${known})
                target_compile_options(${name} PRIVATE $<$<COMPILE_LANGUAGE:${language}>:${flag}>)
            endif()
        endforeach()
    endforeach()
    # The sanitizers watch the plain calls, and without optimisation nothing knows the room. A
    # host's own level gives way: two would be an error.
    if(NOT VY_SANITIZERS)
        target_compile_options(${name} PRIVATE
            $<$<CONFIG:Release,RelWithDebInfo,MinSizeRel>:-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=3>)
    endif()
    if(NOT APPLE)
        target_link_options(${name} PRIVATE
            LINKER:-z,relro LINKER:-z,now LINKER:-z,noexecstack)
    endif()
endfunction()
