#!/usr/bin/env bash
# Builds the project (installing its packages first) and starts it on DSNBrenal.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/build.sh
echo "Las pantallas llegan con un cambio posterior; mientras tanto, la consola de sentencias sobre DSNBrenal:"
exec build/tools/cuentacorriente-sql/cuentacorriente-sql "$@"
