#!/usr/bin/env bash
# Shows how the sample's Choices differ from what data/ holds of them, and with --write takes what they are now.
#
#     tests/sample/renew.sh build/release/bin/sample_test [--write]
set -euo pipefail

if [ $# -lt 1 ] || [ $# -gt 2 ] || [ "${2---write}" != --write ]; then
    echo "usage: renew.sh SAMPLE_TEST [--write]" >&2
    exit 2
fi
data=$(cd "$(dirname "${BASH_SOURCE[0]}")/data" && pwd)
renewed=$(mktemp -d)
trap 'rm -rf "$renewed"' EXIT

VYR_RENEWED_GOLDENS=$renewed "$1" --gtest_filter='*Goldens*' --gtest_brief=1 >&2
diff -ruN "$data" "$renewed" | sed -E -e '/^diff /d' -e 's:^(---|[+]{3}) .*/([^/\t]*)\t.*:\1 \2:' || true
if [ "${2-}" = --write ]; then
    rm -f "$data"/*.txt
    cp "$renewed"/*.txt "$data/"
fi
