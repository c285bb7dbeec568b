#!/usr/bin/env bash
# Writes the documentation's pictures of the window to docs/screenshots: a made-up company and
# product are entered with brevaro-cli, and the window opens a copy of that home.
set -euo pipefail
cd "$(dirname "$0")/.."
out=${1:-docs/screenshots}
size=("${@:2:2}") # optional WIDTH HEIGHT of the main window
tmp=$(mktemp -d)
trap 'rm -rf "$tmp"' EXIT
cli() { build/bin/brevaro-cli --home "$tmp/home" "$@" >/dev/null; }
cli new-company "Northwind Tools"
cli set -c 1 Address1="12 Harbour Road" CityTown="Portsmouth" StateProvince="Hampshire" \
    ZipPostalCode="PO1 2AB" Country="United Kingdom" CompanyWebSiteURL="http://www.northwind.example" \
    AuthorFirstName=Ada AuthorLastName=Marsh AuthorEmail=ada@northwind.example \
    ContactFirstName=Ada ContactLastName=Marsh ContactEmail=ada@northwind.example \
    SalesEmail=sales@northwind.example SupportEmail=help@northwind.example \
    GeneralEmail=info@northwind.example SalesPhone="+44 23 9200 0000"
cli new-program -c 1 "Harbour Notes"
cli set -c 1 -p 1 ProgramVersion=2.4.1 ReleaseMonth=11 ReleaseDay=02 ReleaseYear=2026 \
    CostDollars=19.95 ProgramType=Shareware ReleaseStatus="Major Update" \
    InstallSupport="Install and Uninstall" SpecificCategory="Productivity" \
    ChangeInfo="Notes sync between machines; faster search." \
    SystemRequirements="Any desktop with 2 GB of memory" \
    FilenameVersioned=hnote241.zip FilenamePrevious=hnote240.zip FilenameGeneric=hnotes.zip \
    FilenameLong="harbour-notes-2.4.1.zip" \
    "DescriptionActive[0]=1" "Keywords[0]=notes,outliner,journal,sync" \
    "CharDesc45[0]=Notes that follow you from port to port" \
    "CharDesc80[0]=An outliner for notes, journals and lists that syncs between your machines" \
    "CharDesc250[0]=Harbour Notes keeps notes, journals and lists in one outline. Everything is searchable as you type, and your notes follow you between machines." \
    ApplicationInfoURL=http://www.northwind.example/notes \
    ApplicationOrderURL=http://www.northwind.example/notes/buy \
    ApplicationScreenshotURL=http://www.northwind.example/notes/shot.png \
    ApplicationXMLFileURL=http://www.northwind.example/notes/pad.xml \
    PrimaryDownloadURL=http://www.northwind.example/notes/hnotes241.zip
cli set -c 1 -p 1 LinkedinPage=https://www.linkedin.example/northwind \
    TwitterCompanyPage=https://twitter.example/northwind \
    "Program_Category_Class=Business::PIMS & Calendars" "Program_OS_Support=Linux,WinOther" \
    Video_Link_1_URL=https://video.example/harbour-notes \
    "Headline=Harbour Notes 2.4 syncs your notes between machines" \
    "Summary=The outliner for notes, journals and lists now keeps every machine in step." \
    NewsFeed_Feed_URL=https://www.northwind.example/news.xml "NewsFeed_Type=RSS 2.0"
cli set -c 1 -p 1 PAD_Version=4.0 "Windows_Versions=Windows 10,Windows 11" "Linux_Packages=deb,AppImage" \
    Application_Identifier=example.northwind.HarbourNotes
mkdir -p "$out"
# The windows that fetch (keywords, site list, browser) use the demo maker's server.
port=8765 # the port the demo data names
python3 demo/serve.py "$port" >/dev/null 2>&1 &
server=$!
trap 'kill $server 2>/dev/null; rm -rf "$tmp"' EXIT
sleep 1
# The window is drawn by a real X server so that fonts and themes are those of a desktop.
QTWEBENGINE_CHROMIUM_FLAGS=--disable-gpu BREVARO_SERVER="http://127.0.0.1:$port" xvfb-run -a build/bin/brevaro-screenshots "$out" "$tmp/home" "${size[@]}"
ls "$out"
