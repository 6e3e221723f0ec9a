#!/usr/bin/env bash
# Shows how the tool's answers differ from those in data/, and with --write takes the new ones.
#
#     tests/tool/renew.sh build/release/bin/tool_test [--write]
set -euo pipefail

if [ $# -lt 1 ] || [ $# -gt 2 ] || [ "${2---write}" != --write ]; then
    echo "usage: renew.sh TOOL_TEST [--write]" >&2
    exit 2
fi
data=$(cd "$(dirname "${BASH_SOURCE[0]}")/data" && pwd)
renewed=$(mktemp -d)
trap 'rm -rf "$renewed"' EXIT

VYR_RENEWED_GOLDENS=$renewed "$1" --gtest_filter='*Goldens*' --gtest_brief=1 >&2
for file in "$renewed"/*; do
    diff -uN --label "data/${file##*/}" --label "renewed" "$data/${file##*/}" "$file" || true
    [ "${2-}" != --write ] || cp "$file" "$data/"
done
