#!/usr/bin/env bash
# The whole test run on a fresh Debian 12 machine: packages, configure, build, CTest.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/build.sh
export QT_QPA_PLATFORM=offscreen
ctest --test-dir build --output-on-failure --parallel "$(nproc)" "$@"
