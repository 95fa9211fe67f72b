#!/usr/bin/env bash
# Builds everything and runs every test: the normal build, then the core
# library and its tests again under AddressSanitizer and UBSan.
set -euo pipefail
cd "$(dirname "$0")/.."
bash tools/install-deps.sh
JOBS=$(nproc)
export QT_QPA_PLATFORM=offscreen

cmake -S . -B build -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
cmake --build build -j "$JOBS"
(cd build && ctest --output-on-failure -j "$JOBS")

cmake -S . -B build-asan -G Ninja -DCMAKE_BUILD_TYPE=Debug -DLUMETA_CORE_ONLY=ON -DLUMETA_SANITIZE=ON >/dev/null
cmake --build build-asan -j "$JOBS"
export ASAN_OPTIONS=detect_leaks=1:abort_on_error=1
export UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1
(cd build-asan && ctest --output-on-failure -j "$JOBS")
