#!/usr/bin/env bash
# Prints the line and branch coverage of src/core and src/cli from a build made with
# -DTAVRIN_COVERAGE=ON whose tests have run.
set -euo pipefail
build_dir=${1:-build-coverage}
cd "$(dirname "$0")/.."
# The detailed report goes to a scratch file: gcovr replaces its output file, so it must
# never be pointed at a device such as /dev/null.
report=$(mktemp)
trap 'rm -f "$report"' EXIT
for area in core cli; do
  summary=$(gcovr --root . --filter "src/$area/" --exclude-throw-branches \
    --exclude-unreachable-branches --print-summary --output "$report" "$build_dir")
  lines=$(grep '^lines:' <<<"$summary" | sed 's/^lines: *//')
  branches=$(grep '^branches:' <<<"$summary" | sed 's/^branches: *//')
  printf 'src/%-5s lines %s   branches %s\n' "$area" "$lines" "$branches"
done
