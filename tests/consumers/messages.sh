# SPDX-FileCopyrightText: The Kelto developers
# SPDX-License-Identifier: MIT
# shellcheck shell=bash

# How the checks of hosts end early.

what=$1

fail() {
    printf '%s %s: %s\n' "${0##*/}" "$what" "$*" >&2
    exit 1
}

# Ends the check as skipped where one of these tools is missing.
need() {
    local tool
    for tool in "$@"; do
        command -v "$tool" >/dev/null || {
            printf '%s %s: skipped, there is no %s\n' "${0##*/}" "$what" "$tool"
            exit 77
        }
    done
}
