# What the launchers of the document converters share. Reads the arguments --type, --temp, --out and
# --in into variables of those names, makes the scratch folder $work, and refuses to go on without
# LibreOffice. A profile of its own keeps a LibreOffice that the user has open out of it.

fail() {
    echo "$1" >&2
    exit "$2"
}

type= temp= out= in=
while [ $# -gt 0 ]; do
    case $1 in
    --type | --temp | --out | --in)
        [ $# -gt 1 ] || fail "The value of $1 is missing." 2
        eval "${1#--}=\$2"
        shift 2
        ;;
    *) fail "Unknown argument: $1" 2 ;;
    esac
done
[ -n "$out" ] && [ -n "$in" ] || fail "The arguments --out and --in are needed." 2
[ -f "$in" ] || fail "The file does not exist: $in" 1
command -v soffice >/dev/null ||
    fail "LibreOffice is not installed (Debian package libreoffice-writer)." 127
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

office() {
    soffice "-env:UserInstallation=file://$work/profile" --headless --norestore "$@" >&2
}

# Puts what LibreOffice made in its place.
deliver() {
    [ -s "$1" ] || fail "LibreOffice could not convert: $in" 1
    mv -f -- "$1" "$out"
}
