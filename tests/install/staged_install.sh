#!/usr/bin/env bash
# Installs the build tree given as argument under a temporary prefix and checks what a desktop and a person would
# meet there: valid desktop files, and a program that finds its own tool and passes its self-test.
set -euo pipefail
build=$1
stage=$(mktemp -d)
trap 'rm -rf "$stage"' EXIT
prefix=$stage/prefix

cmake --install "$build" --strip --prefix "$prefix" >/dev/null

fail() { echo "FAIL: $*"; exit 1; }
for file in bin/quorbel lib/quorbel/modules/quorbel-images.so share/quorbel/exiftool/exiftool share/applications/app.quorbel.Quorbel.desktop \
    share/metainfo/app.quorbel.Quorbel.metainfo.xml share/icons/hicolor/scalable/apps/app.quorbel.Quorbel.svg \
    share/doc/quorbel/copyright share/man/man1/quorbel.1.gz; do
    [ -e "$prefix/$file" ] || fail "$file is not installed"
done
for file in "$prefix"/share/quorbel/translations/quorbel_*.qm; do
    language=$(basename "$file" .qm)
    language=${language#quorbel_}
    [ -e "$prefix/share/man/$language/man1/quorbel.1.gz" ] || fail "no manual page in $language"
    grep -q "^Comment\[$language\]=" "$prefix/share/applications/app.quorbel.Quorbel.desktop" \
        || fail "the desktop entry has no $language"
    grep -q "<summary xml:lang=\"${language/_/-}\">" "$prefix/share/metainfo/app.quorbel.Quorbel.metainfo.xml" \
        || fail "the software center's page has no $language"
done
help=$(LC_ALL=de_DE.UTF-8 LANGUAGE=de_DE:de QT_QPA_PLATFORM=offscreen HOME=$stage "$prefix/bin/quorbel" --help)
grep -q "Fotos" <<<"$help" || fail "a German desktop is not answered in German: $help"
desktop-file-validate "$prefix/share/applications/app.quorbel.Quorbel.desktop" || fail "desktop entry"
appstreamcli validate --no-net "$prefix/share/metainfo/app.quorbel.Quorbel.metainfo.xml" || fail "metainfo"
grep -rlF "$build" "$prefix/bin" "$prefix/lib" && fail "the installed program names the build tree"

# A photo of one grey pixel, made here, in a folder with blanks and an accent in its name.
photos="$stage/été à la mer"
mkdir "$photos"
base64 -d > "$photos/a photo.jpg" <<'JPEG'
/9j/4AAQSkZJRgABAQEASABIAAD/2wBDAAMCAgICAgMCAgIDAwMDBAYEBAQEBAgGBgUGCQgKCgkI
CQkKDA8MCgsOCwkJDRENDg8QEBEQCgwSExIQEw8QEBD/yQALCAABAAEBAREA/8wABgAQEAX/2gAI
AQEAAD8A0s8g/9k=
JPEG

cd "$stage"
unset QUORBEL_EXIFTOOL
status=0
output=$(env -u DISPLAY -u WAYLAND_DISPLAY QUORBEL_SELFTEST="$photos" "$prefix/bin/quorbel" 2>&1) || status=$?
echo "$output"
[ $status -eq 0 ] || fail "self-test of the installed program ended with $status"
grep -qxF "SELFTEST exiftool: $prefix/share/quorbel/exiftool/exiftool" <<<"$output" || fail "the tool of another place was used"
grep -qxF "SELFTEST PASS" <<<"$output" || fail "no PASS"
echo "staged install passed"
