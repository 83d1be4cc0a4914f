# SPDX-License-Identifier: MIT
# shellcheck shell=bash
# Tools that read the product's sources, or look over the tests' shoulders, and fail when
# they find something.

# start_reading, and finish_reading later: the tools have what others leave of the processors.
start_reading() {
    (
        renice -n 19 "$BASHPID" >/dev/null
        check_with_cppcheck
        check_with_clang_tidy
        check_with_clazy
    ) >build/reading.log 2>&1 &
    reading=$!
}

finish_reading() {
    wait "$reading" || {
        cat build/reading.log
        return 1
    }
}

check_with_cppcheck() {
    cppcheck --quiet -j "$(nproc)" --std=c++17 --language=c++ --library=qt --inline-suppr \
        --enable=warning,performance,portability --error-exitcode=1 \
        -I VyFileDialogs -I HostKernel {VyFileDialogs,HostKernel,SampleHost}/*.cpp
}

check_with_clang_tidy() { read_each '.*' clang-tidy --quiet -p build/clang; }

# Left out of the second level: parents, which nothing has here that a smart pointer, a
# thread pool or the stack owns; small structures that are named by reference; Q_OBJECT
# in classes without signals, and other ways to connect, for which what the meta-objects
# list would have to change; "return" with a call that returns nothing.
clazy_checks=level0,level1,level2,no-ctor-missing-parent-argument,no-function-args-by-value
clazy_checks+=,no-missing-qobject-macro,no-old-style-connect,no-returning-void-expression

check_with_clazy() {
    read_each '.*\.cpp' clazy-standalone -p build/clang --checks="$clazy_checks" --extra-arg=-Werror
}

# read_each PATTERN COMMAND...: gives each of the product's sources whose names
# match it to the command, as many at a time as there are processors. Shown is what
# is written of those that fail.
read_each() {
    local pattern=$1
    shift
    # shellcheck disable=SC2016 # the shell inside expands it
    sources_compiled | grep -x "$pattern" | xargs -P "$(nproc)" -I {} bash -c \
        'said=$("${@:2}" "$1" 2>&1) || { printf "%s\n" "$said"; exit 1; }' - {} "$@"
}

# Without those that moc and CMake write.
sources_compiled() {
    sed -n 's/^ *"file": "\(.*\)",*$/\1/p' build/clang/compile_commands.json | grep -v "^$PWD/build/"
}

# valgrind reads what g++ writes for debuggers, but not all that clang++ does.
check_with_valgrind() {
    rm -f build/gcc/Testing/Temporary/MemoryChecker.*
    (cd build/gcc && ctest -T memcheck -L memcheck -j "$(nproc)" --no-tests=error) || {
        cat build/gcc/Testing/Temporary/MemoryChecker.*
        return 1
    }
}
