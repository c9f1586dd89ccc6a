#!/usr/bin/env bash
# Installs what is missing, builds everything with the sanitizers and runs all
# tests without a screen. Ends with ctest's summary; fails when a test fails.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/lib.sh

install_packages test
if ! locale -a | grep -qix 'tr_TR\.utf-\?8'; then
    say "Making the Turkish locale"
    as_root localedef -i tr_TR -f UTF-8 tr_TR.UTF-8
fi
build dev

say "Testing"
exec ctest --preset dev -j "$(nproc)"
