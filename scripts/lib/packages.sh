# SPDX-FileCopyrightText: The Kelto developers
# SPDX-License-Identifier: MIT
# shellcheck shell=bash
# shellcheck disable=SC2034 # the lists are used by the scripts that source this

# What this project needs of Debian, by what it is needed for. Sourced by the
# other scripts; each asks for the lists that it uses.

build_packages=(
    g++ cmake ninja-build
    qtbase5-dev qttools5-dev qttools5-dev-tools # Qt 5, and its tools for translations
    libudunits2-dev # units of measurement, for the command kelto
)
host_packages=(
    libqwt-qt5-dev                       # the plots of the example host
    qttranslations5-l10n                 # the buttons of Qt's own dialogs in Chinese
    fonts-dejavu-core fonts-wqy-microhei # Latin and Chinese glyphs
)
walk_packages=(
    pkg-config libxcb1-dev libxcb-xtest0-dev # the walk sends real input events
    xvfb xauth openbox                       # where there is no display
)
test_packages=(
    make pkg-config          # hosts built with qmake and pkg-config
    meson pre-commit         # hosts with module items in their build
    clazy libclang-rt-14-dev # Clang with the checks of Qt code, and its sanitizers
    qtdeclarative5-dev qml-module-qtquick2 # a form in QML
    libbenchmark-dev clang-format-14 shellcheck codespell
    python3       # plants faults
    python3-jsonschema # compares what the command writes with its schemas
    doxygen qhelpgenerator-qt5 qtbase5-doc-dev # the reference, linked to the pages of Qt
    groff-base # formats the manual pages
    poppler-utils # reads the report of the example host
    chromium qhelpgenerator-qt5 # read the manual that the command writes
)
abi_packages=(abigail-tools dpkg-dev) # compares binary interfaces, and lists symbols
package_packages=(
    debhelper dpkg-dev fakeroot
    doxygen qhelpgenerator-qt5 qtbase5-doc-dev # the reference, as a package
    lintian appstream desktop-file-utils       # look at the packages
    mmdebstrap                                 # a clean system to install them in
)
# The trials of saving do without them.
trial_packages=(
    strace e2fsprogs                           # kills at each call, full disks
    pkg-config libkf5config-dev libglib2.0-dev # others that save, to compare with
)
fuzz_packages=(clang-14 libclang-rt-14-dev llvm-14)

say() {
    printf '\n== %s\n' "$*"
}

fail() {
    printf '%s: %s\n' "${0##*/}" "$*" >&2
    exit 1
}

is_installed() {
    [ "$(dpkg-query -W -f='${db:Status-Status}' "$1" 2>/dev/null)" = installed ]
}

as_root() {
    if [ "$(id -u)" -eq 0 ]; then
        "$@"
    elif command -v sudo >/dev/null; then
        sudo "$@"
    else
        fail "root is needed to run '$*', and there is no sudo. Run it as root, then start again."
    fi
}

# need PACKAGE...: installs those that are missing, and asks for root only then.
need() {
    if ! command -v dpkg-query >/dev/null; then
        say "This is no Debian system: make sure that it has what these packages hold: $*"
        return
    fi
    local missing=() package
    for package in "$@"; do
        is_installed "$package" || missing+=("$package")
    done
    [ ${#missing[@]} -gt 0 ] || return 0
    say "Installing ${missing[*]}"
    as_root apt-get update
    as_root env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y --no-install-recommends "${missing[@]}"
}

# build PRESET [TARGET...]: configures build/PRESET and builds the targets, or all.
build() {
    local preset=$1 targets=()
    shift
    [ $# -eq 0 ] || targets=(--target "$@")
    say "Building build/$preset"
    mkdir -p build
    cmake --preset "$preset" >"build/$preset.log" || {
        cat "build/$preset.log"
        fail "cmake could not configure the preset '$preset'; its last lines above say why."
    }
    cmake --build --preset "$preset" "${targets[@]}"
}

# run_tests PRESET: runs all tests of build/PRESET.
run_tests() {
    ctest --preset "$1" --parallel "$(nproc)"
}
