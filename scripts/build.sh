#!/usr/bin/env bash
# Configures and builds the project in build/ (installs its packages first). With target names, builds
# only those (and what they need); without, everything: the program, its tools, tests and benchmarks.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/install-deps.sh
if [ ! -f build/build.ninja ]; then
    echo "== Configurando la compilación en build/ ..."
fi
cmake -S . -B build -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
if [ "$#" -gt 0 ]; then
    echo "== Compilando: $* ..."
    cmake --build build --parallel "$(nproc)" --target "$@"
else
    echo "== Compilando todo (programa, herramientas, pruebas, mediciones) ..."
    cmake --build build --parallel "$(nproc)"
fi
