#!/usr/bin/env bash
# Sets up the machine, builds Vorn and starts it.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/setup.sh
cmake -S . -B build -G Ninja -DCMAKE_BUILD_TYPE=Release -DVORN_BUILD_TESTS=OFF -DVORN_BUILD_BENCH=OFF >/dev/null
cmake --build build --target vorn vorn-cli
if [ "$(id -u)" -eq 0 ]; then export QTWEBENGINE_DISABLE_SANDBOX=1; fi
if [ -z "${DISPLAY:-}" ] && [ -z "${WAYLAND_DISPLAY:-}" ]; then
  exec xvfb-run -a build/bin/vorn "$@"
fi
exec build/bin/vorn "$@"
