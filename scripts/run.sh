#!/usr/bin/env bash
# Opens the window with the given items; without a display, says how to use the CLI instead.
set -euo pipefail
build_dir=$1
shift

if [ -z "${DISPLAY:-}" ] && [ -z "${WAYLAND_DISPLAY:-}" ]; then
  echo "No display found; from a terminal use: $build_dir/src/cli/tavrin-cli list ${*:-PATH...}" >&2
  exit 1
fi
exec "$build_dir/src/gui/tavrin" "$@"
