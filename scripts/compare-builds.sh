#!/usr/bin/env bash
# Compares what two builds of the program compute and print: every table, report,
# slip, sheet and label of the demo company and of the legacy companies at hand.
#
#     scripts/compare-builds.sh OLD-KUYUM NEW-KUYUM [FOLDER-WITH-MDB-FILES]
#
# Ends with 1 and the differing outputs' names when they are not equal byte by
# byte. PDFs are compared as the pages that come out, spreadsheets as their parts.
set -euo pipefail
old=$(realpath "$1") new=$(realpath "$2")
legacy=${3:-}
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
export XDG_RUNTIME_DIR=$work QT_QPA_PLATFORM=offscreen LC_ALL=C.UTF-8 ASAN_OPTIONS=detect_leaks=0

# told FILE COMMAND...: what the command says, and how it ends.
told() {
    local file=$1
    shift
    { "$@" && echo "= 0" || echo "= $?"; } >"$file" 2>&1
}

# pages NAME COMMAND...: the pages of the PDF that the command makes.
pages() {
    local name=$1
    shift
    told "$name.txt" "$@" --pdf "$name.pdf"
    [ ! -e "$name.pdf" ] || { pdftotext -layout "$name.pdf" "$name.layout" && pdftoppm -r 50 "$name.pdf" "$name"; }
    rm -f "$name.pdf"
}

sheet() {
    local name=$1
    shift
    told "$name.txt" "$@" --xlsx "$name.xlsx"
    [ ! -e "$name.xlsx" ] || { unzip -p "$name.xlsx" -x docProps/core.xml >"$name.parts"; }
    rm -f "$name.xlsx"
}

# outputs KUYUM DATABASE PICTURES: everything of one company, into this folder.
outputs() {
    local kuyum=$1 db=$2 pictures=$3 table order model range="--bas 1.1.2000 --bit 31.12.2035"
    told denetle "$kuyum" denetle "$db"
    for table in Firma Ulkeler UrunTipi Tas Kalip Model Renkler Ayar SiparisB SiparisD Durum1 Durum2 DovizB DovizD \
        Users Menuler MenuKisit Katalog Barkodtip BarkodtipAlanlar XXX; do
        told "tablo-$table" "$kuyum" sorgu "$db" "Select * From $table"
    done
    for report in tas kalip model; do
        # shellcheck disable=SC2086
        told "rapor-$report" "$kuyum" rapor $report "$db" $range --csv "rapor-$report.csv"
        # shellcheck disable=SC2086
        sheet "rapor-$report" "$kuyum" rapor $report "$db" $range
        # shellcheck disable=SC2086
        pages "rapor-$report" "$kuyum" rapor $report "$db" $range
    done
    # shellcheck disable=SC2086
    told rapor-model-tip "$kuyum" rapor model "$db" $range --bol tip --csv rapor-model-tip.csv
    for order in $("$kuyum" sorgu "$db" "Select Top 12 Sipnum From SiparisB Order by Sipnum desc" | tail -n +2); do
        pages "fis-$order" "$kuyum" fis "$db" "$order"
        pages "fis7-$order" "$kuyum" fis "$db" "$order" --resimli 7 --resim "$pictures"
        pages "fis12-$order" "$kuyum" fis "$db" "$order" --resimli 12 --resim "$pictures"
        told "taslar-$order" "$kuyum" rapor siparis-tas "$db" "$order" --tarih 20.11.2026 --csv "taslar-$order.csv"
        told "yarimamul-$order" "$kuyum" rapor yarimamul "$db" "$order" --csv "yarimamul-$order.csv"
        # shellcheck disable=SC2086
        pages "uretim-$order" "$kuyum" uretim "$db" "$order" $range --resimli --resim "$pictures"
    done
    "$kuyum" sorgu "$db" "Select Model, M_Uruntip From Model Group by Model, M_Uruntip" 2>/dev/null | tail -n +2 | head -n 12 >modeller || true
    while IFS=, read -r model type; do
        model=${model#\"} model=${model%\"}
        told "etiket-$model-$type" "$kuyum" etiket "$db" "$model" "$type" --png "etiket-${model//\//_}-$type.png" --dpi 203
        pages "model-${model//\//_}-$type" "$kuyum" model "$db" "$model" "$type" --resim "$pictures"
    done <modeller
}

# build-in KUYUM FOLDER: all outputs of that build.
all_outputs() {
    local kuyum=$1 folder=$2 source name
    mkdir -p "$folder/demo-cikti"
    (cd "$folder" && "$kuyum" demo demo >/dev/null)
    (cd "$folder/demo-cikti" && outputs "$kuyum" ../demo/database/atolye.kuyum ../demo/database/resim)
    [ -n "$legacy" ] || return 0
    for source in "$legacy"/*.mdb; do
        name=$(basename "$source" .mdb)
        mkdir -p "$folder/$name-cikti"
        cp "$source" "$folder/$name.mdb"
        (cd "$folder" && told "$name.aktar" "$kuyum" aktar "$name.mdb" "$name.kuyum")
        [ "$name" = sirket ] || (cd "$folder/$name-cikti" && outputs "$kuyum" "../$name.kuyum" "$(realpath "$legacy")/resim")
    done
}

all_outputs "$old" "$work/a"
all_outputs "$new" "$work/b"
find "$work" \( -name '*.kuyum' -o -name '*.mdb' \) -delete
count=$(find "$work/a" -type f | wc -l)
if (cd "$work" && diff -rq a b); then
    echo "$count outputs are equal."
else
    echo "Not all of the $count outputs are equal." >&2
    exit 1
fi
