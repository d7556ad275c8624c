#!/usr/bin/env bash
# Runs clang-tidy over the sources of a cross build (build/mingw-debug by default), which must be built, for they
# include what it generates. The units that the build compiles are linted: sources compiled together are read
# together, which takes a fifth of the time. A unit that has passed is not linted again until one of its sources, a
# header or the checks change. tests/ and benchmarks/ are left to the compilers.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
build=${1:-build/mingw-debug}
stamp=$build/lint.stamp
commands=$build/lint

# The cross compiler's own folders, less those of its built-in headers: clang has its own.
system_includes() {
    x86_64-w64-mingw32-g++-posix -E -v -x c++ /dev/null 2>&1 |
        sed -n '/search starts here:/,/^End of/s/^ //p' | grep -vE '/lib/gcc/[^/]+/[^/]+/include(-fixed)?$'
}

shared_files_newer_than_stamp() {
    find . -path ./build -prune -o \( -name '*.h' -o -name '*.idl' -o -name .clang-tidy \) -newer "$stamp" -print
}

# Without what CMake and the tests bring along. The largest come first, so that no processor waits at the end.
units() {
    sed -n 's/^ *"file": "\(.*\.c[px][px]\)",*$/\1/p' "$build/compile_commands.json" | sort -u |
        grep -vE "/(tests|benchmarks|googletest|precompiled|CMakeFiles/qz_precompiled\.dir)/|/cmake_pch\." |
        while read -r unit; do echo "$(sources_of "$unit" | tr '\n' '\0' | wc -c --files0-from=- | tail -n 1)" "$unit"; done |
        sort -rn | sed -E 's/.* //'
}

# What a unit compiles: the sources that it includes, or itself.
sources_of() {
    case $1 in
        */Unity/*) sed -n 's/^#include "\(.*\)"$/\1/p' "$1" ;;
        *) echo "$1" ;;
    esac
}

changed_units() {
    local unit all=
    if [ ! -e "$stamp" ] || [ -n "$(shared_files_newer_than_stamp)" ]; then all=yes; fi
    while read -r unit; do
        if [ -n "$all" ] || [ -n "$(sources_of "$unit" | tr '\n' '\0' | xargs -0 -I{} find {} -newer "$stamp")" ]; then
            echo "$unit"
        fi
    done < <(units)
}

# Without the precompiled headers, which are another compiler's.
write_commands() {
    mkdir -p "$commands"
    sed -E 's/ -Winvalid-pch( -include [^ ]*cmake_pch\.hxx)?//' "$build/compile_commands.json" >"$commands/compile_commands.json"
}

write_commands
started=$(mktemp "$build/lint.XXXXXX")
trap 'rm -f "$started"' EXIT
arguments=(--extra-arg-before=--target=x86_64-w64-mingw32 --extra-arg=-fms-extensions
           --extra-arg=-Wno-everything)
# Left out, as they take more than half of the time: the processor's intrinsics, which windows.h brings along and
# nobody here uses, and the analyzer's deeper paths.
arguments+=(--extra-arg=-D__IMMINTRIN_H --extra-arg=-D__X86INTRIN_H)
# The analyzer has to be told that included sources are not mere headers.
for argument in -Xclang -analyzer-config -Xclang mode=shallow -Xclang -analyzer-opt-analyze-headers; do arguments+=("--extra-arg=$argument"); done
while read -r folder; do arguments+=("--extra-arg=-isystem$folder"); done < <(system_includes)
changed_units | xargs -r -P "$(nproc)" -n 1 clang-tidy --quiet -p "$commands" "${arguments[@]}" \
    2> >(grep -vE 'warnings?( and .*)? generated' >&2)
mv "$started" "$stamp"
