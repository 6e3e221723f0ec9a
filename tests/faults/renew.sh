#!/usr/bin/env bash
# Shows how what failed calls lead to differs from what data/ holds of it, and with --write takes what it is now.
#
#     tests/faults/renew.sh build/release/bin/faults_test [--write]
set -euo pipefail

if [ $# -lt 1 ] || [ $# -gt 2 ] || [ "${2---write}" != --write ]; then
    echo "usage: renew.sh FAULTS_TEST [--write]" >&2
    exit 2
fi
data=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)/data
mkdir -p "$data"
renewed=$(mktemp -d)
trap 'rm -rf "$renewed"' EXIT

VYR_RENEWED_GOLDENS=$renewed "$1" --gtest_filter='*EachCallFails*' --gtest_brief=1 >&2
diff -ruN "$data" "$renewed" | sed -E -e '/^diff /d' -e 's:^(---|[+]{3}) .*/([^/\t]*)\t.*:\1 \2:' || true
if [ "${2-}" = --write ]; then
    rm -f "$data"/*.txt
    cp "$renewed"/*.txt "$data/"
fi
