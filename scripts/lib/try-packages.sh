#!/bin/sh
# SPDX-FileCopyrightText: The Kelto developers
# SPDX-License-Identifier: MIT

# Installs the packages that lie in /kelto, and runs the tests of debian/tests. For a root that is
# thrown away.

set -eu
cd /kelto

say() {
    printf '\n== %s\n' "$*"
}

dependencies=$(sed -n 's/^Depends: //p' debian/tests/control | tr , '\n' | grep -v kelto | sort -u)
export DEBIAN_FRONTEND=noninteractive
# shellcheck disable=SC2086 # the dependencies are words
apt-get install -y --no-install-recommends ./*.deb $dependencies
say "Installed: $(dpkg-query -W -f '${Package} ' '*kelto*')"

# try NAME COMMAND...
try() {
    name=$1
    shift
    AUTOPKGTEST_TMP=$(mktemp -d)
    export AUTOPKGTEST_TMP
    "$@"
    say "Passed: $name"
}

sed -n 's/^Tests: //p' debian/tests/control | tr -s ', ' '\n' >/tmp/tests
sed -n 's/^Test-Command: //p' debian/tests/control >/tmp/commands
while read -r test; do
    try "$test" "debian/tests/$test" </dev/null
done </tmp/tests
while read -r command; do
    # shellcheck disable=SC2086 # the command is words
    try "$command" $command </dev/null
done </tmp/commands

say "Removing the packages"
apt-get purge -y '*kelto*'
left=$(find /etc /usr /var -iname '*kelto*' ! -path '/var/log/*' ! -path '/var/cache/*')
if [ -n "$left" ]; then
    say "Left behind: $left"
    exit 1
fi
