#!/usr/bin/env bash
# Shows how what the sample's configurations and Choices do differs from what data/ holds of it, and with --write takes
# what they do now.
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

# The tests are run as they are, so that nothing is renewed that fails otherwise; each of the two main files once.
export VYR_RENEWED_GOLDENS=$renewed
"$1" --gtest_brief=1 >&2
VYRCfd_USE_DxSLOPE_CONVG_CRIT=1 "$1" --gtest_brief=1 >&2
diff -ruN "$data" "$renewed" | sed -E -e '/^diff /d' -e 's:^(---|[+]{3}) .*/([^/\t]*)\t.*:\1 \2:' || true
if [ "${2-}" = --write ]; then
    rm -f "$data"/*.txt
    cp "$renewed"/*.txt "$data/"
fi
