#!/usr/bin/env bash
# installed.sh BUILD SOURCE CMAKE VERSION: each component is installed by itself and holds the
# files of its list; what is installed runs, reads and completes.
set -euo pipefail
build=$1 source=$2 cmake=$3 version=$4
here=$(dirname "$(readlink -f "$0")")
failed=0

complain() {
    echo "$*"
    failed=1
}

for tool in rsvg-convert man lexgrog; do
    command -v "$tool" >/dev/null || {
        echo "without $tool not all of it can be installed or read"
        exit 77
    }
done
[[ -d $build/share/tarnemissao/manual ]] || {
    echo "the manual isn't made: python3-markdown is missing, or not all is built"
    exit 77
}

root=$(mktemp -d)
trap 'rm -rf "$root"' EXIT

for component in desk tools practice; do
    prefix=$root/$component/usr
    "$cmake" --install "$build" --prefix "$prefix" --component "$component" >"$root/log"
    # The pictures of the manual are those of its source; the vendor's name is the build's.
    (cd "$prefix" && find . -type f ! -path './share/tarnemissao/manual/figuras/*') |
        sed 's|metainfo/.*tarnemissao|metainfo/VENDOR.tarnemissao|' | LC_ALL=C sort |
        diff -u "$here/$component.txt" - || complain "$component holds other files"
    mkdir -p "$root/usr"
    cp -a "$prefix/." "$root/usr"
done

for program in "$root"/usr/bin/*; do
    name=${program##*/}
    [[ $("$program" --versao) == "TarnEmissao $version" ]] || complain "$name: no version"
    ! readelf -d "$program" | grep -E 'RPATH|RUNPATH' || complain "$name: holds a folder of libraries"
    page=$root/usr/share/man/man1/$name.1.gz
    told=$(LC_ALL=C.UTF-8 MANWIDTH=200 man -l --warnings "$page" 2>"$root/warnings" | col -b)
    [[ ! -s $root/warnings ]] || complain "$name: $(<"$root/warnings")"
    lexgrog "$page" >/dev/null || complain "$name: whatis finds no name in its page"
    for option in $("$program" --ajuda | grep -oE '^ +(-h,)?--[a-z-]+' | sed 's/.*--/--/'); do
        grep -q -e "$option" <<<"$told" || complain "$name: its page lacks $option"
    done
done

# What the logon doesn't need comes with the desk's parts.
! readelf -d "$root/usr/bin/tarnemissao" | grep -E 'NEEDED.*(curl|cups|PrintSupport)' ||
    complain "tarnemissao: links what its parts bring"

# completes WANTED WORD...: what bash offers for the last word.
completes() {
    local wanted=$1 got
    shift
    got=$(
        source "$root/usr/share/bash-completion/completions/$1"
        COMP_WORDS=("$@")
        COMP_CWORD=$(($# - 1))
        "_${1//-/_}"
        echo "${COMPREPLY[*]}"
    )
    [[ $got == "$wanted" ]] || complain "completion of '${*}': '$got', not '$wanted'"
}
completes "pdf ops" tarnimprime --formato ""
completes "digito10 digito11" tarnimprime di
completes "850 860" tarnemissao --pagina-de-codigo 8
completes "--impressora-virtual" tarnemissao --im
completes "850" tarnemissao --pagina-de-codigo = 85
completes "--confere" tarnimprime nota --con
completes "--pasta" tarnemissao-treino --p
completes "" tarnservidor --porta ""

# Menu entries start what is installed, under icons that are there.
for entry in "$root"/usr/share/applications/*.desktop; do
    [[ -x $root/usr/bin/$(sed -n 's/^Exec=//p' "$entry") ]] || complain "$entry: starts nothing"
    icon=$(sed -n 's/^Icon=//p' "$entry")
    for size in scalable 48x48 64x64 128x128; do
        compgen -G "$root/usr/share/icons/hicolor/$size/apps/$icon.*" >/dev/null ||
            complain "$entry: no icon of size $size"
    done
done
for picture in $(sed -n 's|.*<image>.*/\(.*\)</image>.*|\1|p' "$root"/usr/share/metainfo/*.xml); do
    [[ -f $source/docs/manual/$picture ]] || complain "the catalogue shows $picture, which isn't there"
done
[[ ! -x $(command -v desktop-file-validate) ]] ||
    desktop-file-validate "$root"/usr/share/applications/*.desktop || complain "menu entries"
[[ ! -x $(command -v appstreamcli) ]] ||
    appstreamcli validate --no-net "$root"/usr/share/metainfo/*.xml || complain "metainfo"

# Every screen of the desk has its chapter.
for screen in $(sed -n 's|.*<class>\(MDIMenu\|[Ff]rm[A-Za-z]*\)</class>.*|\1|p' "$source"/src/*/*.ui); do
    [[ -f $root/usr/share/tarnemissao/manual/telas/$screen.html ]] ||
        complain "F1 knows no chapter of $screen"
done
exit "$failed"
