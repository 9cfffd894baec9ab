#!/usr/bin/env bash
# SPDX-FileCopyrightText: The Kelto developers
# SPDX-License-Identifier: MIT

# Builds hosts with module items of their own against the installed package: with CMake and with
# what docs/build-items.md advises for other tools.
# items.sh CHECK SOURCE-DIR WORK-DIR
# Ends with 77 where a tool is missing.

set -euo pipefail
# shellcheck source=tests/consumers/messages.sh
. "$(dirname "$0")/messages.sh"

source_dir=$2
prefix=$3/moved
# Neither a space nor a letter of any language may matter, even without a locale.
host_dir="$3/items $what/höst"
export LC_ALL=C
rm -rf "${host_dir%/*}"
mkdir -p "$host_dir"
cd "$host_dir"

library_dir=$(dirname "$(find "$prefix" -name libkelto.so)")

# write_item FILE NAME: an item that names no function.
write_item() {
    sed "s|@name@|$2|g" "$source_dir/tests/consumers/item.ini" >"$1"
}

# expect TEXT...: what the host prints, one line each.
expect() {
    local expected actual
    expected=$(printf '%s\n' "$@")
    actual=$(LD_LIBRARY_PATH=$library_dir timeout 60 "${host:-build/host}") || fail "the host failed."
    [ "$actual" = "$expected" ] || fail "expected '$expected', the host printed '$actual'."
}

quietly() {
    "$@" >log 2>&1 || {
        cat log
        fail "'$*' failed."
    }
}

# block LANGUAGE: what docs/build-items.md says for a tool, as a reader would paste it.
block() {
    awk -v start="\`\`\`$1" '$0 == start { inside = 1; next } /^```$/ { if (inside) exit } inside' \
        "$source_dir/docs/build-items.md"
}

start_host() {
    mkdir items
    cp "$source_dir/tests/consumers/items.cpp" main.cpp
    write_item "items/beam 梁.ini" Beam
}

# --- CMake ------------------------------------------------------------------------

# write_project ARGUMENT...: a project with these arguments of kelto_add_items.
write_project() {
    cat >CMakeLists.txt <<END
cmake_minimum_required(VERSION 3.16)
project(host LANGUAGES CXX)
find_package(Kelto 1.1 REQUIRED CONFIG)
add_executable(host main.cpp)
target_compile_features(host PRIVATE cxx_std_17)
target_compile_options(host PRIVATE -Wall -Wextra -Wpedantic -Wshadow -Werror)
target_link_libraries(host PRIVATE Kelto::Kelto)
kelto_add_items(host NAME keltoitems $*)
END
}

# Which files of the build have changed since the last call, without their directory.
changed() {
    find build \( -name '*.o' -o -name '*.stamp' -o -name 'keltoitems.*' -o -name host \
        -o -name 'qrc_*' \) -type f ! -name '*.d' -printf '%f %T@\n' | sort >now
    comm -13 before now | cut -d' ' -f1 | sort | xargs
    mv now before
}

# expect_changed FILE...: builds, and nothing but these files changes.
expect_changed() {
    quietly cmake --build build
    local actual
    actual=$(changed)
    [ "$actual" = "$*" ] || fail "expected to change: '$*', has changed: '$actual'."
}

expect_nothing_to_do() {
    quietly cmake --build build
    [ -z "$(changed)" ] || fail "a second build has changed something."
    [ "$generator" != Ninja ] || grep -q 'no work to do' log || fail "a second build has work to do."
}

first_build() {
    : >before
    quietly cmake -S . -B build -G "$generator" -DCMAKE_PREFIX_PATH="$prefix"
    quietly cmake --build build
    changed >/dev/null
    expect_nothing_to_do
}

# The text of an item is in the source.
check_change() {
    start_host
    write_project 'ITEMS "items/beam 梁.ini"'
    first_build
    expect Beam "Between the ends"
    touch "items/beam 梁.ini"
    expect_changed keltoitems.stamp
    expect_nothing_to_do
    sed -i 's/Between the ends/Of the beam/' "items/beam 梁.ini"
    expect_changed host keltoitems.cpp keltoitems.cpp.o keltoitems.stamp
    expect Beam "Of the beam"
    expect_nothing_to_do
}

# Its severities are settings beside the items and above them.
check_settings() {
    local settings=items/.kelto-lint.ini
    printf '[Rules]\n' >"$settings"
    quietly cmake -S . -B build
    quietly cmake --build build
    changed >/dev/null
    expect_nothing_to_do
    printf '[no section]\n' >"$settings"
    if cmake --build build >log 2>&1; then
        fail "settings have changed, and the items were not checked again."
    fi
    rm "$settings"
    expect_changed keltoitems.stamp
    expect_nothing_to_do
}

# Everything that can become of an item. Its function is in the header.
check_life() {
    local second="items/spring 弹簧.ini"
    check_change
    check_settings

    write_item "$second" Spring
    sed -i 's/^Tr_ObjectName=.*/&\ncodeFunctionName=spring/' "$second"
    write_project 'ITEMS "items/beam 梁.ini"' "\"$second\""
    expect_changed host keltoitems.cpp keltoitems.cpp.o keltoitems.h keltoitems.stamp main.cpp.o
    expect Beam Spring "Of the beam"
    expect_nothing_to_do

    cp "$second" good
    sed -i 's/^name=.*/name="2\\" spring"/' "$second"
    if cmake --build build >log 2>&1; then
        fail "an item with a double quote was built."
    fi
    grep -q "$PWD/$second:2:6: " log || { cat log && fail "the error has no place."; }
    [ -z "$(changed)" ] || fail "an item with an error has changed something."
    cp good "$second"
    expect_changed keltoitems.stamp
    expect_nothing_to_do

    write_project 'ITEMS "items/beam 梁.ini"'
    rm "$second"
    expect_changed host keltoitems.cpp keltoitems.cpp.o keltoitems.h keltoitems.stamp main.cpp.o
    expect Beam "Of the beam"
    expect_nothing_to_do
}

# The same host with items in its resources, which may hold any text.
check_embed() {
    start_host
    write_project 'ITEMS "items/beam 梁.ini"' EMBED
    first_build
    expect Beam "Between the ends"
    sed -i 's/^name=.*/name="2\\" beam"/' "items/beam 梁.ini"
    expect_changed host keltoitems.cpp keltoitems.cpp.o keltoitems.stamp \
        qrc_keltoitems.cpp qrc_keltoitems.cpp.o
    expect '2" beam' "Between the ends"
    sed -i 's/^number=.*/number=7/' "items/beam 梁.ini"
    expect_changed host keltoitems.stamp qrc_keltoitems.cpp qrc_keltoitems.cpp.o
    expect_nothing_to_do
}

# Nothing is built yet, and some files of the target cannot be read before that.
check_first_lupdate() {
    write_item items/spring.ini Spring
    write_project 'ITEMS "items/beam 梁.ini"' TRANSLATIONS zh_CN
    cat >>CMakeLists.txt <<END
kelto_add_items(host NAME more ITEMS items/spring.ini EMBED)
add_custom_command(OUTPUT made.cpp COMMAND \${CMAKE_COMMAND} -E touch made.cpp)
target_sources(host PRIVATE made.cpp)
set_target_properties(host PROPERTIES AUTOMOC ON)
END
    quietly cmake -S . -B build -G "$generator" -DCMAKE_PREFIX_PATH="$prefix"
    quietly cmake --build build --target keltoitems_lupdate
    local text
    for text in Beam Spring; do
        grep -q "<source>$text</source>" translations/host_zh_CN.ts ||
            fail "'$text' was not collected before the first build."
    done
    rm -r build translations
}

# One .ts file holds the texts of items and of their hints, whichever way they come in.
check_translations() {
    start_host
    check_first_lupdate
    write_project 'ITEMS "items/beam 梁.ini"' TRANSLATIONS zh_CN
    first_build
    quietly cmake --build build --target keltoitems_lupdate
    sed -i '/<source>Beam</{n;s/ type.*/>横梁<\/translation>/}
        /<source>Between the ends</{n;s/ type.*/>两端之间<\/translation>/}' translations/host_zh_CN.ts
    local way
    for way in "" EMBED; do
        write_project 'ITEMS "items/beam 梁.ini"' TRANSLATIONS zh_CN $way
        quietly cmake -S . -B build
        quietly cmake --build build
        expect 横梁 两端之间
        cp translations/host_zh_CN.ts "$way.ts"
        quietly cmake --build build --target keltoitems_lupdate
        diff "$way.ts" translations/host_zh_CN.ts || fail "collecting the texts again has changed them."
    done
    quietly cmake --build build
    changed >/dev/null
    expect_nothing_to_do
    sed -i 's/横梁/梁/' translations/host_zh_CN.ts
    quietly cmake --build build
    expect 梁 两端之间
}

# expect_refused TEXT ARGUMENT...
expect_refused() {
    local text=$1
    shift
    write_project "$@"
    if cmake -S . -B build -DCMAKE_PREFIX_PATH="${package:-$prefix}" >log 2>&1; then
        fail "'$*' was accepted."
    fi
    # CMake divides messages into lines.
    tr -s ' \n' ' ' <log | grep -qF "$text" || { cat log && fail "the message does not say '$text'."; }
}

check_mistakes() {
    start_host
    expect_refused 'needs ITEMS' ''
    expect_refused 'there is no file' ITEMS items/none.ini
    expect_refused 'there is no file' ITEMS items
    expect_refused 'takes no "EMBEDDED"' 'EMBEDDED ITEMS "items/beam 梁.ini"'
    expect_refused 'NAME cannot be "a b"' 'ITEMS "items/beam 梁.ini" NAME "a b"'
    expect_refused 'CONTEXT cannot be "A::"' 'ITEMS "items/beam 梁.ini" CONTEXT A::'
    mkdir one two
    echo '<TS version="2.1"/>' | tee one/same.ts >two/same.ts
    expect_refused 'the name keltoitems is taken' 'ITEMS "items/beam 梁.ini")' $'\n' \
        'kelto_add_items(host NAME keltoitems ITEMS "items/beam 梁.ini"'
    expect_refused 'called "same.ts"' 'ITEMS "items/beam 梁.ini" TRANSLATIONS one/same.ts two/same.ts'
    expect_refused 'at least one file or directory' 'ITEMS "items/beam 梁.ini")' \
        $'\n' 'kelto_lint_test(items'
    mkdir ../elsewhere
    cp -r "$prefix" ../elsewhere/package
    find ../elsewhere/package -name 'KeltoToolsTargets*' -delete
    rm -r build
    package=$PWD/../elsewhere/package
    expect_refused 'the component Tools' 'ITEMS "items/beam 梁.ini"'
    write_project 'ITEMS "items/beam 梁.ini"'
    sed -i 's/add_executable.*/&\nadd_subdirectory(sub)/; /kelto_add_items/d' CMakeLists.txt
    mkdir sub
    echo 'kelto_add_items(host ITEMS ../items/none.ini)' >sub/CMakeLists.txt
    if cmake -S . -B build -DCMAKE_PREFIX_PATH="$prefix" >log 2>&1; then
        fail "a target of another directory was accepted."
    fi
}

# A warning fails the test.
check_lint_test() {
    start_host
    write_project 'ITEMS "items/beam 梁.ini"'
    printf 'enable_testing()\nkelto_lint_test(sound items "items/beam 梁.ini")\n' >>CMakeLists.txt
    quietly cmake -S . -B build -DCMAKE_PREFIX_PATH="$prefix"
    (cd build && quietly ctest -R sound)
    sed -i '2i host=1' "items/beam 梁.ini"
    if (cd build && ctest -V) >log 2>&1 || ! grep -q 'warning: ' log; then
        cat log
        fail "an item with a warning has passed."
    fi
}

# write_library DIRECTORY KIND: a library of this kind that has items in two ways and is installed.
write_library() {
    mkdir -p "$1/items"
    write_item "$1/items/beam.ini" "$2 beam"
    write_item "$1/items/spring.ini" "$2 spring"
    cat >"$1/CMakeLists.txt" <<END
add_library($2_items $2 library.cpp)
target_link_libraries($2_items PUBLIC Kelto::Kelto)
target_sources($2_items PRIVATE \$<\$<CONFIG:Debug>:debug.cpp>)
kelto_add_items($2_items NAME $2_first ITEMS items/beam.ini EMBED TRANSLATIONS zh_CN)
kelto_add_items($2_items NAME $2_second ITEMS items/spring.ini TRANSLATIONS)
install(TARGETS $2_items EXPORT hostTargets DESTINATION lib)
END
    cat >"$1/library.cpp" <<END
#include "$2_first.h"
#include "$2_second.h"
QVector<AUTH_INF> $2Items();
QVector<AUTH_INF> $2Items()
{
    Q_INIT_RESOURCE($2_first_translations);
    return $2_first::allItems() + $2_second::allItems();
}
END
    echo 'extern int onlyToDebug;' >"$1/debug.cpp"
}

# Libraries of all kinds in subdirectories, and several configurations.
check_libraries() {
    local kind configuration
    for kind in STATIC OBJECT; do
        write_library "$kind" $kind
    done
    cat >CMakeLists.txt <<END
cmake_minimum_required(VERSION 3.5...3.16)
project(host LANGUAGES CXX)
set(CMAKE_CXX_STANDARD 17)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
find_package(Kelto 1.1 REQUIRED CONFIG)
add_subdirectory(STATIC)
add_subdirectory(OBJECT)
add_executable(host main.cpp)
target_link_libraries(host PRIVATE STATIC_items OBJECT_items)
install(EXPORT hostTargets DESTINATION lib/cmake/host)
END
    cat >main.cpp <<END
#include <AUTH_INF>
#include <cstdio>
QVector<AUTH_INF> STATICItems();
QVector<AUTH_INF> OBJECTItems();
int main()
{
    for (const AUTH_INF &item : STATICItems() + OBJECTItems())
        std::puts(item.name.toUtf8().constData());
}
END
    quietly cmake -S . -B build -G "Ninja Multi-Config" -DCMAKE_PREFIX_PATH="$prefix"
    for configuration in Debug Release; do
        quietly cmake --build build --config $configuration
        if grep -i warning log; then
            fail "the build warns of the above."
        fi
        host=build/$configuration/host
        expect "STATIC beam" "STATIC spring" "OBJECT beam" "OBJECT spring"
    done
    quietly cmake --build build --target STATIC_first_lupdate
    grep -q '<source>STATIC spring</source>' STATIC/translations/STATIC_items_zh_CN.ts ||
        fail "a text of the second call was not collected."
    quietly cmake -S . -B build
    quietly cmake --build build --config Debug
    cmake --install build --config Debug --prefix installed >/dev/null
    if grep -rn "$PWD" installed/lib/cmake; then
        fail "the exported targets hold the directories of the build above."
    fi
}

# --- Other tools --------------------------------------------------------------------

use_package() {
    PKG_CONFIG_PATH=$library_dir/pkgconfig
    PATH=$prefix/bin:$PATH
    export PKG_CONFIG_PATH PATH
}

check_qmake() {
    need qmake make pkg-config g++
    use_package
    start_host
    mv "items/beam 梁.ini" items/beam.ini # qmake divides lists at spaces
    block qmake >host.pro
    host=./host
    QT_SELECT=5 quietly qmake host.pro
    quietly make -j2
    expect Beam "Between the ends"
    sed -i 's/^name=.*/name=Girder/' items/beam.ini
    quietly make
    expect Girder "Between the ends"
    make | grep -q 'Nothing to be done' || fail "a second build has work to do."
}

check_meson() {
    need meson ninja pkg-config
    use_package
    start_host
    block meson >meson.build
    LC_ALL=C.UTF-8 quietly meson setup build
    quietly ninja -C build
    expect Beam "Between the ends"
    sed -i 's/^name=.*/name=Girder/' "items/beam 梁.ini"
    quietly ninja -C build
    expect Girder "Between the ends"
    ninja -C build | grep -q 'no work to do' || fail "a second build has work to do."
}

# A commit with a bad item is not made.
check_pre-commit() {
    need git pre-commit
    use_package
    start_host
    block yaml >.pre-commit-config.yaml
    export HOME=$PWD/home GIT_AUTHOR_NAME=host GIT_AUTHOR_EMAIL=host GIT_COMMITTER_NAME=host \
        GIT_COMMITTER_EMAIL=host GIT_CONFIG_NOSYSTEM=1 LC_ALL=C.UTF-8
    mkdir home
    quietly git init
    quietly pre-commit install
    git add .
    quietly git commit -m "Add an item"
    sed -i 's/^name=/names=/' "items/beam 梁.ini"
    if git commit -am "Break it" >log 2>&1; then
        fail "a bad item was committed."
    fi
    grep -q 'items/beam 梁.ini:2:1: error:' log || { cat log && fail "the error has no place."; }
}

# Kelto in a subdirectory: the command is built first.
check_subproject() {
    need ninja
    start_host
    cat >CMakeLists.txt <<END
cmake_minimum_required(VERSION 3.16)
project(host LANGUAGES CXX)
set(KELTO_BUILD_FORMS OFF)
add_subdirectory("$source_dir" kelto)
add_executable(host main.cpp)
target_link_libraries(host PRIVATE Kelto::Kelto)
kelto_add_items(host NAME keltoitems ITEMS "items/beam 梁.ini")
END
    if cmake -S . -B build -G Ninja >log 2>&1 || ! grep -q KELTO_BUILD_TOOLS log; then
        cat log
        fail "what to set was not said."
    fi
    quietly cmake -S . -B build -DKELTO_BUILD_TOOLS=ON
    # Building all of it would take long.
    ninja -C build -n host >log
    grep -q 'Linking CXX executable kelto/tools/kelto/kelto' log || fail "the command is not built first."
}

case $what in
libraries)
    need ninja
    check_libraries
    ;;
life | embed | translations)
    need ninja
    generator=Ninja
    "check_$what"
    ;;
make)
    need make
    generator="Unix Makefiles"
    check_change
    ;;
mistakes | lint_test | subproject | qmake | meson | pre-commit) "check_$what" ;;
*) fail "no such check." ;;
esac
