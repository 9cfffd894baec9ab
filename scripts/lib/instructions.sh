# SPDX-FileCopyrightText: The Kelto developers
# SPDX-License-Identifier: MIT
# shellcheck shell=bash

# Counts the instructions of loading and saving, by the library and by QSettings
# alone. Unlike times, they are nearly the same in every run.

# count PROGRAM STEP FILE KEYS: the instructions of one step.
count() {
    # Names are resolved and hashes are seeded alike in each run.
    LD_BIND_NOW=1 QT_HASH_SEED=0 valgrind --tool=callgrind --callgrind-out-file=/dev/null \
        --toggle-collect=loadOrSave "$@" 2>&1 | awk '/Collected/ { print $4 } !/^==/'
}

# compare PROGRAM STEP TITLE KEYS [FILE]: prints one line; both sides get a copy of FILE, if any.
compare() {
    local program=$1 step=$2 title=$3 keys=$4 file=${5:-} side counts=()
    for side in kelto qsettings; do
        rm -f "$scratch"/used*
        [ -z "$file" ] || cp "$file" "$scratch/used.ini"
        counts+=("$(count "$program" "$step-$side" "$scratch/used.ini" "$keys")")
    done
    awk -v title="$title" -v keys="$keys" -v kelto="${counts[0]}" -v other="${counts[1]}" 'BEGIN {
        printf "%-26s %8d %12.2f M %12.2f M %8.3f\n", title, keys, kelto / 1e6, other / 1e6,
               kelto / other }'
}

# print_instructions PROGRAM KEYS...: prints the table.
print_instructions() {
    local program=$1 keys
    scratch=$(mktemp -d)
    trap 'rm -rf "$scratch"' EXIT
    printf '%-26s %8s %14s %14s %8s\n' instructions keys Kelto QSettings ratio
    shift
    for keys in "$@"; do
        "$program" save-qsettings "$scratch/input.ini" "$keys"
        compare "$program" load "loading" "$keys" "$scratch/input.ini"
        compare "$program" save "saving into a new file" "$keys"
        compare "$program" save "saving into the same file" "$keys" "$scratch/input.ini"
        compare "$program" change "saving one changed value" "$keys" "$scratch/input.ini"
    done
}
