#!/usr/bin/env bash
# Installs, from Debian 12's packages, everything the project needs to build, run and test.
# Safe to run again: apt-get skips what is already there.
set -euo pipefail

packages=(
    build-essential cmake ninja-build pkg-config
    qt6-base-dev libqt6sql6-odbc qt6-svg-dev fonts-dejavu-core fonts-liberation2 xvfb xauth
    unixodbc unixodbc-dev odbcinst libsqliteodbc sqlite3 libsqlite3-dev
    mount
    libbenchmark-dev
    clang libclang-rt-14-dev
)

missing=()
for p in "${packages[@]}"; do
    dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed' || missing+=("$p")
done
if [ "${#missing[@]}" -gt 0 ]; then
    echo "== Instalando ${#missing[@]} paquetes de Debian (la primera vez tarda unos minutos): ${missing[*]}"
    sudo_cmd=()
    [ "$(id -u)" -eq 0 ] || sudo_cmd=(sudo)
    "${sudo_cmd[@]}" apt-get update -qq
    DEBIAN_FRONTEND=noninteractive "${sudo_cmd[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}"
fi
