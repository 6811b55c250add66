#!/usr/bin/env bash
# Builds the project (installing its packages first) and starts the application on DSNBrenal.
# The first run creates the store's database and registers DSNBrenal; with --demo that new database
# holds the sample store. An existing database is never touched.
set -euo pipefail
cd "$(dirname "$0")/.."

demo=()
for arg in "$@"; do
    case "$arg" in
        --demo) demo=(--demo) ;;
        *) echo "Uso: bash scripts/run.sh [--demo]" >&2; exit 1 ;;
    esac
done

# Only the program and the set-up tool: the tests and benchmarks are built by scripts/test.sh.
scripts/build.sh cuentacorriente cuentacorriente-db

db=build/tools/cuentacorriente-db/cuentacorriente-db
if ! "$db" status >/dev/null 2>&1; then
    echo "== Creando la base de datos de la tienda y registrando DSNBrenal ..."
    "$db" init "${demo[@]}"
elif [ "${#demo[@]}" -gt 0 ]; then
    echo "DSNBrenal ya tiene su base de datos; los datos de ejemplo solo se cargan en una base nueva."
fi
app=build/app/cuentacorriente
if [ -z "${DISPLAY:-}" ] && [ -z "${WAYLAND_DISPLAY:-}" ]; then
    echo "No hay pantalla (DISPLAY vacío); para abrirlo en una virtual: xvfb-run -a $app" >&2
    exit 1
fi
echo "== Iniciando $app"
exec "$app"
