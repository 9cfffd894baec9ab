#!/usr/bin/env bash
# SPDX-FileCopyrightText: The Kelto developers
# SPDX-License-Identifier: MIT

# Checks the installed package from outside.
# check.sh install|cmake|pkgconfig|qmake|symbols|headers SOURCE-DIR BUILD-DIR WORK-DIR

set -euo pipefail

what=$1
source_dir=$2
build_dir=$3
work_dir=$4
prefix=$work_dir/moved

fail() {
    printf 'check.sh %s: %s\n' "$what" "$*" >&2
    exit 1
}

install_package() {
    rm -rf "$work_dir/prefix" "$prefix"
    cmake --install "$build_dir" --prefix "$work_dir/prefix" >/dev/null
    # Nothing in an installed tree may depend on where it was put first.
    mv "$work_dir/prefix" "$prefix"
    if grep -rIl -e "$source_dir" -e "$work_dir" "$prefix"; then
        fail "the files above hold a path of the build."
    fi
}

library_dir() {
    dirname "$(find "$prefix" -name libkelto.so)"
}

# The first C++ block of the README, as a reader would paste it.
write_host() {
    local host_dir=$work_dir/$what
    rm -rf "$host_dir"
    mkdir -p "$host_dir"
    cd "$host_dir"
    awk '/^```cpp$/ { inside = 1; next } /^```$/ { if (inside) exit } inside' \
        "$source_dir/README.md" >main.cpp
    [ -s main.cpp ] || fail "README.md holds no C++ block."
}

# Runs ./host on a display of its own, accepts its dialog with the Enter key and
# expects the line that the README promises.
run_host() {
    # shellcheck disable=SC2016 # expanded by the inner shell
    LD_LIBRARY_PATH=$(library_dir) timeout 60 xvfb-run --auto-servernum \
        env QT_QPA_PLATFORM=xcb sh -c '
            ./host >output &
            xdotool search --sync --onlyvisible --name "^Dialog$" windowfocus --sync key Return
            wait $!' ||
        fail "the host did not end well."
    local expected="Host:Statics:Cantilever"
    [ "$(cat output)" = "$expected" ] || fail "expected '$expected', the host printed '$(cat output)'."
}

build_with_cmake() {
    awk '/^```cmake$/ { inside = 1; next } /^```$/ { if (inside) exit } inside' \
        "$source_dir/README.md" >CMakeLists.txt
    cmake -S . -B build -DCMAKE_PREFIX_PATH="$prefix" >cmake.log || { cat cmake.log; fail "configuring failed."; }
    cmake --build build
    cp build/host host
}

build_with_pkgconfig() {
    PKG_CONFIG_PATH=$(library_dir)/pkgconfig
    export PKG_CONFIG_PATH
    # shellcheck disable=SC2046 # the flags are words
    c++ main.cpp -o host $(pkg-config --cflags --libs kelto)
    local version
    version=$(sed -n 's/.*KELTO_VERSION_STRING "\(.*\)"/\1/p' "$prefix/include/Kelto/kelto_version.h")
    [ "$(pkg-config --modversion kelto)" = "$version" ] || fail "the versions of package and header differ."
}

build_with_qmake() {
    PKG_CONFIG_PATH=$(library_dir)/pkgconfig
    export PKG_CONFIG_PATH
    awk '/^```qmake$/ { inside = 1; next } /^```$/ { if (inside) exit } inside' \
        "$source_dir/README.md" >host.pro
    QT_SELECT=5 qmake host.pro
    make
}

check_symbols() {
    local library
    library=$(library_dir)/libkelto.so
    objdump -p "$library" | grep -q 'SONAME *libkelto\.so\.1$' || fail "the SONAME is not libkelto.so.1."
    if objdump -p "$library" | grep -E 'R(UN)?PATH'; then
        fail "the library looks for others in the place above."
    fi
    local public='AUTH_INF|AUTH_SET|KeltoItemParameterTransform|KeltoItemParameterVerify|VDataItem|VIniSettings|VParameter|UTaskSelectDialog'
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
    local expected='AUTH_INF AUTH_SET Kelto KeltoItemParameterTransform KeltoItemParameterVerify
        UTaskSelectDialog VDataItem VIniSettings VParameter auth_inf.h auth_set.h kelto.h
        kelto_export.h kelto_version.h keltoitemparametertransform.h keltoitemparameterverify.h
        utaskselectdialog.h vdataitem.h vinisettings.h vparameter.h'
    diff <(xargs -n 1 <<<"$expected") <(ls "$prefix/include/Kelto") ||
        fail "the installed headers differ from those that are public (left: expected)."
}

case $what in
install) install_package ;;
cmake | pkgconfig | qmake)
    write_host
    "build_with_$what"
    run_host
    ;;
symbols) check_symbols ;;
headers) check_headers ;;
*) fail "no such check." ;;
esac
