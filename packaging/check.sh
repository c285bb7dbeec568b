#!/usr/bin/env bash
# Checks the Debian package with the ecosystem's own tools, then unpacks it and runs the
# unpacked brevaro-cli. Usage: packaging/check.sh PACKAGE.deb
set -euo pipefail
cd "$(dirname "$0")/.."

deb=$(realpath "${1:?usage: packaging/check.sh PACKAGE.deb}")
app_id=io.github.brevaro.Brevaro
passed=0
failed=0

check() {
    local name=$1; shift
    if "$@"; then
        echo "PASS $name"
        passed=$((passed + 1))
    else
        echo "FAIL $name"
        failed=$((failed + 1))
    fi
}

tmp=$(mktemp -d)
trap 'rm -rf "$tmp"' EXIT
dpkg-deb -x "$deb" "$tmp/root"
root=$tmp/root
version=$(dpkg-deb -f "$deb" Version)

check "desktop entry" desktop-file-validate "$root/usr/share/applications/$app_id.desktop"
# validate-tree also checks that the metainfo's launchable names the installed desktop entry.
# --no-net: the metadata's web addresses are the product site's, which is not reachable here.
check "appstream metainfo" appstreamcli validate-tree --no-net --explain "$root"
# Lintian refuses errors; its warnings and infos are printed for the record.
check "lintian" lintian --fail-on error --display-info "$deb"

package_contents() {
    local f
    for f in usr/bin/brevaro usr/bin/brevaro-cli \
        usr/share/icons/hicolor/scalable/apps/$app_id.svg \
        usr/share/man/man1/brevaro.1.gz usr/share/man/man1/brevaro-cli.1.gz \
        usr/share/bash-completion/completions/brevaro-cli usr/share/doc/brevaro/copyright \
        usr/share/doc/brevaro/changelog.gz; do
        [ -f "$root/$f" ] || { echo "missing $f"; return 1; }
    done
}
check "package contents" package_contents

# The manual pages format without complaints from groff.
man_warnings() {
    local page out
    for page in "$root"/usr/share/man/man1/*.1.gz; do
        out=$(LC_ALL=C.UTF-8 MANWIDTH=80 man --warnings -l "$page" 2>&1 >/dev/null)
        [ -z "$out" ] || { echo "$page: $out"; return 1; }
    done
}
check "manual pages" man_warnings

# The unpacked executables find their libraries on the system and run.
libraries_found() {
    ! ldd "$root/usr/bin/brevaro" "$root/usr/bin/brevaro-cli" | grep "not found"
}
check "libraries" libraries_found

cli=$root/usr/bin/brevaro-cli
check "version" test "$("$cli" --version)" = "brevaro-cli $version"

home=$tmp/home
cli_in_home() {
    "$cli" --home "$home" new-company X >/dev/null &&
        [ "$("$cli" --home "$home" list)" = "$(printf '1\tX')" ] &&
        [ -f "$home/data/company.dta" ]
}
check "new company in --home" cli_in_home

# Without --home or BREVARO_HOME the installed program uses the user's data folder and
# writes nothing beside itself; a data folder beside it makes it portable.
user_data_folder() {
    env -u BREVARO_HOME -u XDG_DATA_HOME HOME="$tmp/user" "$cli" new-company Y >/dev/null &&
        [ -f "$tmp/user/.local/share/brevaro/data/company.dta" ] &&
        [ -z "$(find "$root/usr/bin" -mindepth 1 ! -name brevaro ! -name brevaro-cli)" ]
}
check "user data folder" user_data_folder
portable_folder() {
    mkdir "$root/usr/bin/data" &&
        env -u BREVARO_HOME HOME="$tmp/user2" "$cli" new-company Z >/dev/null &&
        [ -f "$root/usr/bin/data/company.dta" ] && [ ! -e "$tmp/user2/.local/share/brevaro" ]
}
check "portable data folder" portable_folder

# The window starts (it keeps running until the timeout ends it).
window_starts() {
    local status=0
    mkdir -m 0700 "$tmp/runtime"
    XDG_RUNTIME_DIR=$tmp/runtime QT_QPA_PLATFORM=offscreen timeout 3 "$root/usr/bin/brevaro" ||
        status=$?
    [ "$status" -eq 124 ] || [ "$status" -eq 0 ]
}
check "window starts" window_starts

completion() {
    [ -f /usr/share/bash-completion/bash_completion ] || { echo "bash-completion missing"; return 1; }
    bash -c '
        source /usr/share/bash-completion/bash_completion
        source "$1"
        complete_words() {
            COMP_WORDS=("$@"); COMP_CWORD=$(($# - 1)); COMP_LINE="$*"; COMP_POINT=${#COMP_LINE}
            COMPREPLY=(); _brevaro_cli brevaro-cli "${COMP_WORDS[-1]}" "${COMP_WORDS[-2]}"
            echo "${COMPREPLY[*]}"
        }
        [ "$(complete_words brevaro-cli p)" = pad ] || exit 1
        [ "$(complete_words brevaro-cli --home /tmp ver)" = verify ] || exit 1
        [ "$(complete_words brevaro-cli pad -)" = "-c -p -o --format --check" ] || exit 1
        [ "$(complete_words brevaro-cli check -)" = "-c -p --format --json --no-spelling" ] || exit 1
        [ "$(complete_words brevaro-cli release -)" = \
            "-c -p --version --file --date --changes --out --dry-run --verify-urls" ] || exit 1
        [ "$(complete_words brevaro-cli export --format "")" = "appstream winget jsonld" ] || exit 1
        [ "$(complete_words brevaro-cli --v)" = --version ] || exit 1' _ \
        "$root/usr/share/bash-completion/completions/brevaro-cli"
}
check "bash completion" completion

# A program's AppStream metainfo, as the unpacked brevaro-cli writes it, passes the validator.
exported_metainfo() {
    local h=$tmp/release-home
    "$cli" --home "$h" new-company "Example Software" >/dev/null &&
        "$cli" --home "$h" new-program -c 1 "Example Tool" >/dev/null &&
        "$cli" --home "$h" set -c 1 -p 1 ProgramVersion=1.0 ReleaseMonth=11 ReleaseDay=24 \
            ReleaseYear=2026 "CharDesc45[0]=Tool for examples" \
            "CharDesc250[0]=Example Tool shows what a release writes for a product." \
            Application_Identifier=com.example.ExampleTool >/dev/null &&
        "$cli" --home "$h" export --format appstream -c 1 -p 1 -o "$tmp/tool.metainfo.xml" &&
        appstreamcli validate --no-net "$tmp/tool.metainfo.xml"
}
check "exported metainfo" exported_metainfo

echo "$passed passed, $failed failed"
[ "$failed" -eq 0 ]
