#!/usr/bin/env bash
# desk_alone.sh SOURCE FOLDER CMAKE: the desk is configured without tools and practice, and
# nothing of theirs is among its targets.
set -euo pipefail
source=$1 folder=$2 cmake=$3

rm -rf "$folder"
"$cmake" -S "$source" -B "$folder" -G Ninja -DTARN_BUILD_TOOLS=OFF \
    -DCMAKE_DISABLE_FIND_PACKAGE_GTest=ON -DCMAKE_DISABLE_FIND_PACKAGE_benchmark=ON \
    -DCMAKE_DISABLE_FIND_PACKAGE_X11=ON >"$folder.log" 2>&1 || {
    cat "$folder.log"
    exit 1
}
targets=$("$cmake" --build "$folder" --target help)
grep -q '^tarnemissao:' <<<"$targets" || {
    echo "the desk is no target"
    exit 1
}
if grep -E '^(tarnim|tarnservidor|tarnroteiro|tarnemissao-treino|tarn_(dotmatrix|paper|forms|printer|practice)|[a-z_]*_test)[a-z]*:' \
    <<<"$targets"; then
    echo "these are no part of the desk"
    exit 1
fi
if grep -E '^(Qt6Sql|Qt6Test|Qt6Network|GTest|benchmark)_DIR:' "$folder/CMakeCache.txt" |
    grep -v NOTFOUND; then
    echo "these the desk doesn't need"
    exit 1
fi
rm -rf "$folder"
