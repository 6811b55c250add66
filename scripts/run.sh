#!/usr/bin/env bash
# Builds the project (installing its packages first) and starts it on DSNBrenal.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/build.sh
cat <<'MSG'
Sistema de control de cuenta corriente
Las pantallas llegan con un cambio posterior. Mientras tanto, la consola de sentencias trabaja sobre
el origen de datos DSNBrenal:

    build/tools/cuentacorriente-sql/cuentacorriente-sql -e "Select * From Banco"
MSG
