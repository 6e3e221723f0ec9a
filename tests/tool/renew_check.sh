#!/usr/bin/env bash
# Shows how what `vyrcfd check` finds differs from the files expected.txt in data/check/wrong/, and with --write takes
# the new ones.
#
#     tests/tool/renew_check.sh build/release/bin/tool_test [--write]
set -euo pipefail

if [ $# -lt 1 ] || [ $# -gt 2 ] || [ "${2---write}" != --write ]; then
    echo "usage: renew_check.sh TOOL_TEST [--write]" >&2
    exit 2
fi
data=$(cd "$(dirname "${BASH_SOURCE[0]}")/data/check/wrong" && pwd)
renewed=$(mktemp -d)
trap 'rm -rf "$renewed"' EXIT

VYR_RENEWED_CHECKS=$renewed "$1" --gtest_filter='*WrongInstallations*' --gtest_brief=1 >&2
for file in "$renewed"/*/expected.txt; do
    name=${file#"$renewed"/}
    diff -uN --label "$name" --label "renewed" "$data/$name" "$file" || true
    [ "${2-}" != --write ] || cp "$file" "$data/$name"
done
