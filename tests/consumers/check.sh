#!/usr/bin/env bash
# SPDX-FileCopyrightText: The Kelto developers
# SPDX-License-Identifier: MIT

# Checks the installed package from outside. The second library, with forms, is checked
# where it is built.
# check.sh CHECK SOURCE-DIR BUILD-DIR WORK-DIR [ARGUMENT...]
# Ends with 77 where a tool is missing.

set -euo pipefail
# shellcheck source=tests/consumers/messages.sh
. "$(dirname "$0")/messages.sh"

source_dir=$2
build_dir=$3
work_dir=$4
shift 4
prefix=${KELTO_PREFIX:-$work_dir/moved} # another one for a Kelto that is installed already

configure() {
    local from=$1 to=$2
    shift 2
    cmake -S "$from" -B "$to" "$@" >cmake.log 2>&1 || { cat cmake.log; fail "configuring failed."; }
}

files_below() {
    (cd "$1" && find . ! -type d | sort)
}

# A program that runs takes the library alone; all components are all there is.
check_components() {
    local parts=$work_dir/components component
    cmake --install "$build_dir" --prefix "$parts" --component Runtime >/dev/null
    if files_below "$parts" | grep -vE '/libkelto(-forms)?\.so\.1(\.[0-9]+)*$'; then
        fail "the component Runtime holds the files above, and should hold the libraries alone."
    fi
    for component in Development Documentation; do
        cmake --install "$build_dir" --prefix "$parts" --component "$component" >/dev/null
    done
    if files_below "$parts" | grep -E '/kelto$|Tools'; then
        fail "the component Development holds the files above, which belong to the command."
    fi
    cmake --install "$build_dir" --prefix "$parts" --component Tools >/dev/null
    diff <(files_below "$work_dir/prefix") <(files_below "$parts") ||
        fail "the components together (right) differ from an installation without components (left)."
}

install_package() {
    prefix=$work_dir/moved # never one that others use
    rm -rf "$work_dir/prefix" "$work_dir/components" "$prefix"
    cmake --install "$build_dir" --prefix "$work_dir/prefix" >/dev/null
    check_components
    # Nothing in an installed tree may depend on where it was put first.
    mv "$work_dir/prefix" "$prefix"
    if grep -rIl -e "$source_dir" -e "$work_dir" "$prefix"; then
        fail "the files above hold a path of the build."
    fi
}

library_dir() {
    dirname "$(find "$prefix" -name libkelto.so)"
}

# The first block of the page $1 in language $2, as a reader would paste it.
page_block() {
    awk -v start="\`\`\`$2" '$0 == start { inside = 1; next } /^```$/ { if (inside) exit } inside' \
        "$source_dir/$1"
}

# An empty directory for a host, which becomes the current one.
start_host() {
    local host_dir=$work_dir/$what
    rm -rf "$host_dir"
    mkdir -p "$host_dir"
    cd "$host_dir"
}

write_host() {
    start_host
    cat "$source_dir/tests/consumers/"{host,acceptdialog}.cpp >main.cpp
}

# Runs ./host, whose dialog is accepted.
run_host() {
    LD_LIBRARY_PATH=$(library_dir) QT_QPA_PLATFORM=offscreen timeout 60 ./host >output ||
        fail "the host failed, or its dialog did not close within a minute."
    local expected="Host:Statics:Cantilever"
    [ "$(cat output)" = "$expected" ] || fail "expected '$expected', the host printed '$(cat output)'."
}

build_with_cmake() {
    cat >CMakeLists.txt <<EOF
cmake_minimum_required(VERSION 3.16)
project(host LANGUAGES CXX)
find_package(Kelto 1 REQUIRED CONFIG)
add_executable(host main.cpp)
target_link_libraries(host PRIVATE Kelto::Kelto)
EOF
    configure . build -DCMAKE_PREFIX_PATH="$prefix"
    cmake --build build
    cp build/host host
}

build_with_pkgconfig() {
    need pkg-config
    PKG_CONFIG_PATH=$(library_dir)/pkgconfig
    export PKG_CONFIG_PATH
    # shellcheck disable=SC2046 # the flags are words
    "${CXX:-c++}" main.cpp -o host $(pkg-config --cflags --libs kelto)
    local version
    version=$(sed -n 's/.*KELTO_VERSION_STRING "\(.*\)"/\1/p' "$prefix/include/Kelto/kelto_version.h")
    [ "$(pkg-config --modversion kelto)" = "$version" ] || fail "the versions of package and header differ."
}

write_qmake_project() {
    cat >host.pro <<EOF
SOURCES += main.cpp
TARGET = host
CONFIG += c++17 link_pkgconfig
PKGCONFIG += $1
EOF
}

build_with_qmake() {
    need qmake make pkg-config g++
    PKG_CONFIG_PATH=$(library_dir)/pkgconfig
    export PKG_CONFIG_PATH
    write_qmake_project kelto
    QT_SELECT=5 qmake host.pro
    make
}

# The README's host as a reader would paste it, with somebody who works with it.
write_forms_host() {
    start_host
    page_block README.md cpp >main.cpp
    diff <(tail -n +4 "$source_dir/examples/minimal/main.cpp") main.cpp ||
        fail "the README's host (right) differs from examples/minimal (left)."
    cat "$source_dir/tests/examples/minimaldriver.cpp" >>main.cpp
    cp "$source_dir/examples/minimal/cantilever.ini" .
}

# Runs ./host, which needs both libraries, for the first time and again.
run_forms_host() {
    local time
    for time in first again; do
        LD_LIBRARY_PATH=$(library_dir) QT_QPA_PLATFORM=offscreen timeout 60 ./host "$time" ||
            fail "the host failed."
    done
}

build_forms_with_cmake() {
    page_block README.md cmake >CMakeLists.txt
    configure . build -DCMAKE_PREFIX_PATH="$prefix"
    cmake --build build
    cp build/host host
}

build_forms_with_pkgconfig() {
    need pkg-config
    PKG_CONFIG_PATH=$(library_dir)/pkgconfig
    export PKG_CONFIG_PATH
    # shellcheck disable=SC2046 # the flags are words
    "${CXX:-c++}" main.cpp -o host $(pkg-config --cflags --libs kelto-forms)
    [ "$(pkg-config --modversion kelto-forms)" = "$(pkg-config --modversion kelto)" ] ||
        fail "the versions of the two libraries differ."
}

build_forms_with_qmake() {
    need qmake make pkg-config g++
    PKG_CONFIG_PATH=$(library_dir)/pkgconfig
    export PKG_CONFIG_PATH
    page_block docs/install.md qmake >host.pro
    QT_SELECT=5 qmake host.pro
    make
}

# A component that is not there is not found, and without REQUIRED the caller is told so.
check_unknown_component() {
    rm -rf unknown
    mkdir unknown
    cat >unknown/CMakeLists.txt <<EOF
cmake_minimum_required(VERSION 3.16)
project(host LANGUAGES CXX)
find_package(Kelto 1.1 QUIET COMPONENTS Forms Plots)
if(Kelto_FOUND OR NOT Kelto_Forms_FOUND OR Kelto_Plots_FOUND)
    message(FATAL_ERROR "Kelto was found with a component that does not exist.")
endif()
if(NOT Kelto_NOT_FOUND_MESSAGE MATCHES "\"Plots\"" OR Kelto_NOT_FOUND_MESSAGE MATCHES "Forms")
    message(FATAL_ERROR "The message does not name the missing component alone.")
endif()
find_package(Kelto 1.1 QUIET COMPONENTS Forms OPTIONAL_COMPONENTS Plots)
if(NOT Kelto_FOUND OR NOT TARGET Kelto::Forms)
    message(FATAL_ERROR "Kelto was not found for lack of an optional component.")
endif()
find_package(Kelto 1.2 QUIET)
if(Kelto_FOUND)
    message(FATAL_ERROR "A later version than the installed one was found.")
endif()
EOF
    configure unknown unknown/build -DCMAKE_PREFIX_PATH="$prefix"
}

# check_symbols NAME EXPORTED...
check_symbols() {
    need objdump nm
    local name=$1 library
    shift
    library=$(library_dir)/$name.so
    objdump -p "$library" | grep -q "SONAME *${name}\\.so\\.1\$" || fail "the SONAME is not $name.so.1."
    if objdump -p "$library" | grep -E 'R(UN)?PATH' | grep -v ' [$]ORIGIN$'; then
        fail "the library holds the search path above, and should look beside itself at most."
    fi
    local public
    public=$(printf '%s\n' "$@" | grep -v '\.h$' | paste -sd '|')
    # Templates of Qt and of the standard library come out weak and belong to nobody.
    local unexpected
    unexpected=$(nm --dynamic --defined-only --demangle "$library" |
        grep -E ' [TDBR] ' | cut -d' ' -f3- |
        grep -vE "^(vtable for |typeinfo for |typeinfo name for |non-virtual thunk to )?($public)(::|\$)" |
        grep -vE '^(_init|_fini|_edata|_end|__bss_start)$' || true)
    [ -z "$unexpected" ] || fail "these symbols are exported and not public: $unexpected"
    if nm --dynamic --defined-only --demangle "$library" | grep -E 'Private::'; then
        fail "the private members above are exported."
    fi
}

check_headers() {
    diff <(printf '%s\n' "$@" | sort) <(find "$prefix/include/Kelto" -printf '%P\n' | sed '/^$/d' | sort) ||
        fail "the installed headers differ from those that are public (left: expected)."
}

# A project that takes Kelto in gets the library, and nothing of it among its own files.
check_subproject() {
    rm -rf subproject
    mkdir subproject
    cat >subproject/CMakeLists.txt <<EOF
cmake_minimum_required(VERSION 3.16)
project(outside LANGUAGES CXX)
add_subdirectory("$source_dir" kelto)
add_executable(outside outside.cpp)
target_link_libraries(outside PRIVATE Kelto::Kelto)
if(TARGET Kelto::Forms)
    target_link_libraries(outside PRIVATE Kelto::Forms)
endif()
install(FILES CMakeLists.txt DESTINATION share/outside)
EOF
    echo 'int main() { }' >subproject/outside.cpp
    configure subproject subproject/build
    cmake --install subproject/build --prefix "$PWD/subproject/prefix" >/dev/null
    [ "$(files_below subproject/prefix)" = ./share/outside/CMakeLists.txt ] ||
        fail "more is installed than the outer project's file: $(files_below subproject/prefix)"
}

# A library directory outside the prefix is named as it is.
check_absolute() {
    need pkg-config
    rm -rf absolute
    configure "$source_dir" absolute -DBUILD_TESTING=OFF \
        -DCMAKE_INSTALL_PREFIX=/opt/kelto -DCMAKE_INSTALL_LIBDIR=/opt/lib/kelto
    local expected="/opt/kelto /opt/lib/kelto /opt/kelto/include" actual
    actual=$(PKG_CONFIG_PATH=absolute/src pkg-config --variable=prefix kelto
        PKG_CONFIG_PATH=absolute/src pkg-config --variable=libdir kelto
        PKG_CONFIG_PATH=absolute/src pkg-config --variable=includedir kelto)
    [ "$(xargs <<<"$actual")" = "$expected" ] || fail "expected $expected, kelto.pc holds $actual"
}

case $what in
install) install_package ;;
cmake | pkgconfig | qmake)
    write_host
    "build_with_$what"
    run_host
    ;;
forms_cmake | forms_pkgconfig | forms_qmake)
    write_forms_host
    "build_forms_with_${what#forms_}"
    run_forms_host
    ;;
symbols | forms_symbols)
    cd "$work_dir"
    check_symbols "$@"
    ;;
headers | subproject | absolute | unknown_component)
    cd "$work_dir"
    "check_$what" "$@"
    ;;
*) fail "no such check." ;;
esac
