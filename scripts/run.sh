#!/usr/bin/env bash
# Installs what is missing, builds the program, makes the demo company once and
# opens the program on it. Without a display: makes the demo and prints a slip.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/lib.sh

install_packages run
build release

kuyum=build/release/src/app/kuyum
demo=demo-data/database
if [ ! -e $demo/sirket.kuyum ]; then
    say "Making the demo company"
    $kuyum demo demo-data
fi

if [ -n "${DISPLAY:-}" ] || [ -n "${WAYLAND_DISPLAY:-}" ]; then
    say "Opening the program (user Admin, password 1234)"
    exec $kuyum --sirket $demo/sirket.kuyum
fi

say "There is no display, so the program does its main job without one"
order=$($kuyum sorgu $demo/atolye.kuyum "Select Max(Sipnum) as Sonuncu From SiparisB" | tail -n 1)
slip=demo-data/siparis-$order.pdf
$kuyum fis $demo/atolye.kuyum "$order" --pdf "$slip"
echo "The slip of order $order: $PWD/$slip"
