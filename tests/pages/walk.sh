# SPDX-FileCopyrightText: The Kelto developers
# SPDX-License-Identifier: MIT
# shellcheck shell=bash

# Begins the script that page.py makes of a page.

set -euo pipefail

at=start
trap 'printf "%s: this did not work.\n" "$at" >&2' ERR
set -o errtrace

library_dir=$(dirname "$(find "$KELTO_PREFIX" -name libkelto.so)")
export PATH=$KELTO_PREFIX/bin:$PATH
export CMAKE_PREFIX_PATH=$KELTO_PREFIX
export PKG_CONFIG_PATH=$library_dir/pkgconfig
export QT_QPA_PLATFORM=offscreen
export LC_ALL=C.UTF-8
unset LANGUAGE

# put FILE: the input becomes the file.
put() {
    mkdir -p "$(dirname "$1")"
    cat >"$1"
}

# expect: the first line of the input is a command, the others are what it prints, on either
# channel and whatever its exit code.
expect() {
    local command wanted printed
    IFS= read -r command
    wanted=$(cat)
    printed=$(bash -c "$command" 2>&1) || true
    diff <(echo "$wanted") <(echo "$printed") ||
        { printf '%s: "%s" prints what is to the right, and the page says what is to the left.\n' \
            "$at" "$command" >&2; return 1; }
}

# compile: the input is a source file.
compile() {
    cat >page.cpp
    # shellcheck disable=SC2046 # the flags are words
    "${CXX:-c++}" -std=c++17 -fPIC -fsyntax-only page.cpp $(pkg-config --cflags kelto-forms)
}

