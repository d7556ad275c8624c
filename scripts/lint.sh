#!/usr/bin/env bash
# Runs clang-tidy over the sources of a cross build (build/mingw-debug by default), which must be built, for they
# include what it generates. A source that has passed is not linted again until it, a header or the checks
# change. tests/ and benchmarks/ are left to the compilers.
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

compiled_files() {
    sed -n 's/^ *"file": "\(.*\)",*$/\1/p' "$build/compile_commands.json"
}

sources() {
    local newer=()
    if [ -e "$stamp" ] && [ -z "$(shared_files_newer_than_stamp)" ]; then newer=(-newer "$stamp"); fi
    find "$PWD" \( -path "$PWD/build" -o -path "$PWD/tests" -o -path "$PWD/benchmarks" \) -prune -o \
        -name '*.cpp' "${newer[@]}" -print | { grep -xFf <(compiled_files) || [ $? = 1 ]; }
}

# Each source by itself, without the precompiled headers: those are another compiler's, and would hide that a source
# lacks an include.
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
for argument in -Xclang -analyzer-config -Xclang mode=shallow; do arguments+=("--extra-arg=$argument"); done
while read -r folder; do arguments+=("--extra-arg=-isystem$folder"); done < <(system_includes)
sources | xargs -r -P "$(nproc)" -n 1 clang-tidy --quiet -p "$commands" "${arguments[@]}" \
    2> >(grep -vE 'warnings?( and .*)? generated' >&2)
mv "$started" "$stamp"
