#!/usr/bin/env bash
# Sets up the machine, builds Vorn with its tests and runs them all.
#   --sanitize   build the headless core and its tests with AddressSanitizer
#                and UndefinedBehaviorSanitizer instead
# Tests are switched on explicitly (build/ may have been configured by
# run.sh without them) and ctest fails when no test ran.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/setup.sh

export QT_QPA_PLATFORM=offscreen
if [ "$(id -u)" -eq 0 ]; then export QTWEBENGINE_DISABLE_SANDBOX=1; fi
launcher=()
if command -v ccache >/dev/null; then launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache); fi

if [ "${1:-}" = "--sanitize" ]; then
  cmake -S . -B build-asan -G Ninja -DCMAKE_BUILD_TYPE=Debug -DVORN_SANITIZE=ON -DVORN_CORE_ONLY=ON \
    -DVORN_BUILD_TESTS=ON -DVORN_BUILD_BENCH=OFF -DVORN_WERROR=ON "${launcher[@]}" >/dev/null
  cmake --build build-asan
  export ASAN_OPTIONS=detect_leaks=1:abort_on_error=1 UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1
  ctest --test-dir build-asan --output-on-failure --no-tests=error -j2
else
  # Continuous integration builds only what the tests need; at a desk the
  # benchmarks are built too, so they keep compiling.
  bench=ON
  [ -n "${CI:-}" ] && bench=OFF
  cmake -S . -B build -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DVORN_BUILD_TESTS=ON \
    -DVORN_BUILD_BENCH=$bench -DVORN_WERROR=ON "${launcher[@]}" >/dev/null
  cmake --build build
  ctest --test-dir build --output-on-failure --no-tests=error -j2
fi
