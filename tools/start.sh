#!/usr/bin/env bash
# Builds the editor and starts it (on a machine without a display, under Xvfb).
set -euo pipefail
cd "$(dirname "$0")/.."
bash tools/install-deps.sh
cmake -S . -B build -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
cmake --build build -j "$(nproc)" --target lumetaedit lumetaedit-cli
if [ -z "${DISPLAY:-}" ] && [ -z "${WAYLAND_DISPLAY:-}" ]; then
  exec xvfb-run -a -s "-screen 0 1280x800x24" ./build/lumetaedit "$@"
fi
exec ./build/lumetaedit "$@"
