#!/usr/bin/env bash
# Installs the build tree into a temporary DESTDIR, as a package build does, and checks what a
# desktop needs from it: the desktop entry, the AppStream metainfo, the MIME types of rule and
# profile files and the hicolor icons, each with the validator the distributions use.
#
#   check-install.sh BUILD_DIR PROJECT_VERSION [CMAKE]
#
# Exit status: 0 all good, 1 a check failed, 77 a validator is not installed (CTest: skipped).
set -uo pipefail

build_dir=${1:?usage: check-install.sh BUILD_DIR PROJECT_VERSION}
version=${2:?usage: check-install.sh BUILD_DIR PROJECT_VERSION}
cmake=${3:-cmake}

app_id=com.palisadesoft.Tavrin
app_icon_sizes=(16 22 24 32 48 64 128 256 512)
mime_icon_sizes=(16 22 24 32 48 64 128 256)
own_mime_types=(application/x-tavrin-rule application/x-tavrin-profile)
declare -A mime_globs=([application/x-tavrin-rule]='*.tnrule' [application/x-tavrin-profile]='*.tnprofile')

failures=0
fail() {
  echo "FAIL: $*"
  failures=$((failures + 1))
}

for tool in desktop-file-validate update-mime-database xmllint; do
  if ! command -v "$tool" >/dev/null; then
    echo "SKIP: $tool is not installed (scripts/install-deps.sh installs it)"
    exit 77
  fi
done
if command -v appstreamcli >/dev/null; then
  appstream='appstreamcli'
elif command -v appstream-util >/dev/null; then
  appstream='appstream-util'
else
  echo "SKIP: neither appstreamcli nor appstream-util is installed"
  exit 77
fi

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
root="$work/root"
usr="$root/usr"
share="$usr/share"

if ! DESTDIR="$root" "$cmake" --install "$build_dir" --prefix /usr >"$work/install.log" 2>&1; then
  cat "$work/install.log"
  echo "FAIL: cmake --install did not finish (is the build complete?)"
  exit 1
fi

# ---- what was installed, and where --------------------------------------------------------
for binary in tavrin tavrin-cli; do
  [ -x "$usr/bin/$binary" ] || fail "usr/bin/$binary is not installed"
done
# A package ships programs and data only: no static libraries, headers or test programs.
stray=$(cd "$root" && find . -type f ! -path './usr/bin/*' ! -path './usr/share/*')
[ -z "$stray" ] || fail "files installed outside usr/bin and usr/share: $stray"

# ---- desktop entry ------------------------------------------------------------------------
desktop="$share/applications/$app_id.desktop"
if [ ! -f "$desktop" ]; then
  fail "no desktop entry at usr/share/applications/$app_id.desktop"
else
  # desktop-file-validate exits 0 on some errors ("will be fatal in the future"): read what
  # it says. Hints are advice, not faults.
  report=$(desktop-file-validate "$desktop" 2>&1)
  status=$?
  echo "desktop-file-validate: ${report:-no issues}"
  if [ $status -ne 0 ] || grep -qE ': (error|warning):' <<<"$report"; then
    fail "desktop-file-validate rejects the desktop entry"
  fi

  entry() { sed -n "s/^$1=//p" "$desktop" | head -n 1; }
  [ "$(entry Exec)" = 'tavrin %F' ] || fail "Exec is '$(entry Exec)', expected 'tavrin %F'"
  [ "$(entry Name)" = Tavrin ] || fail "Name is '$(entry Name)'"
  [ "$(entry GenericName)" = 'Batch Renamer' ] || fail "GenericName is '$(entry GenericName)'"
  [ -x "$usr/bin/$(entry TryExec)" ] || fail "TryExec names '$(entry TryExec)', not an installed program"
  [ -f "$share/icons/hicolor/scalable/apps/$(entry Icon).svg" ] ||
    fail "Icon=$(entry Icon) has no scalable icon in hicolor/apps"
  categories=";$(entry Categories)"
  for category in Utility FileTools; do
    [[ $categories == *";$category;"* ]] || fail "Categories lacks $category"
  done
  mime_list=";$(entry MimeType)"
  for type in inode/directory image/jpeg audio/mpeg video/mp4 application/pdf "${own_mime_types[@]}"; do
    [[ $mime_list == *";$type;"* ]] || fail "MimeType lacks $type"
  done
  # A handler of every file type is offered for everything a file manager selects.
  [[ $mime_list == *";application/octet-stream;"* ]] && fail "MimeType claims application/octet-stream"
  servicemenu="$share/kio/servicemenus/$app_id.desktop"
  grep -q '^Exec=tavrin %F$' "$servicemenu" 2>/dev/null || fail "no Dolphin service menu running tavrin"
fi

# ---- AppStream metainfo -------------------------------------------------------------------
metainfo="$share/metainfo/$app_id.metainfo.xml"
if [ ! -f "$metainfo" ]; then
  fail "no metainfo at usr/share/metainfo/$app_id.metainfo.xml"
else
  if [ "$appstream" = appstreamcli ]; then
    # --strict fails on infos and warnings too; validate-tree also follows the launchable to
    # the desktop entry and looks for the icon.
    appstreamcli validate --no-net --strict --explain "$metainfo" || fail "appstreamcli validate"
    appstreamcli validate-tree --no-net --strict --explain "$root" || fail "appstreamcli validate-tree"
  else
    appstream-util validate-relax --nonet "$metainfo" || fail "appstream-util validate-relax"
  fi

  xpath() { xmllint --xpath "string($1)" "$metainfo" 2>/dev/null; }
  [ "$(xpath /component/id)" = "$app_id" ] || fail "metainfo id is '$(xpath /component/id)'"
  # The newest release is listed first; it must be the version being built.
  [ "$(xpath '/component/releases/release[1]/@version')" = "$version" ] ||
    fail "newest release in the metainfo is '$(xpath '/component/releases/release[1]/@version')', the project is $version"
  launchable=$(xpath '/component/launchable[@type="desktop-id"]')
  [ -f "$share/applications/$launchable" ] || fail "launchable '$launchable' is not installed"
  for binary in $(xmllint --xpath '/component/provides/binary/text()' "$metainfo" 2>/dev/null); do
    [ -x "$usr/bin/$binary" ] || fail "metainfo provides binary '$binary', which is not installed"
  done
fi

# ---- MIME types ---------------------------------------------------------------------------
mime_xml="$share/mime/packages/$app_id.xml"
if [ ! -f "$mime_xml" ]; then
  fail "no MIME definitions at usr/share/mime/packages/$app_id.xml"
else
  xmllint --noout "$mime_xml" || fail "the MIME XML is not well-formed"

  # Build a MIME database of our own from the freedesktop.org types plus ours, as
  # shared-mime-info's trigger does for /usr/share/mime, and read what it made of ours.
  mime_db="$work/mime"
  mkdir -p "$mime_db/packages"
  cp "$mime_xml" "$mime_db/packages/"
  freedesktop=/usr/share/mime/packages/freedesktop.org.xml
  [ -f "$freedesktop" ] && cp "$freedesktop" "$mime_db/packages/"
  report=$(XDG_DATA_DIRS="$work:/usr/share" update-mime-database -V "$mime_db" 2>&1)
  status=$?
  if [ $status -ne 0 ] || grep -qiE '(error|warning)' <<<"$report"; then
    grep -iE '(error|warning)' <<<"$report"
    fail "update-mime-database rejects the MIME XML"
  fi

  for type in "${own_mime_types[@]}"; do
    glob=${mime_globs[$type]}
    grep -qxF "50:$type:$glob" "$mime_db/globs2" || fail "$glob does not map to $type"
    grep -qxF "$type application/xml" "$mime_db/subclasses" || fail "$type is not a kind of application/xml"
    [ -f "$mime_db/$type.xml" ] || fail "the database has no entry for $type"
    comment=$(xmllint --xpath "string(//*[local-name()='mime-type'][@type='$type']/*[local-name()='comment'][not(@xml:lang)])" "$mime_xml")
    [ -n "$comment" ] || fail "$type has no English comment"

    # The icon a desktop looks up for the type: the one the XML names, else the type's own.
    icon=$(sed -n "s|^$type:||p" "$mime_db/icons" 2>/dev/null)
    icon=${icon:-${type//\//-}}
    [ -f "$share/icons/hicolor/scalable/mimetypes/$icon.svg" ] || fail "no scalable icon $icon for $type"
    for size in "${mime_icon_sizes[@]}"; do
      [ -f "$share/icons/hicolor/${size}x${size}/mimetypes/$icon.png" ] ||
        fail "no ${size}x${size} icon $icon for $type"
    done
  done
fi

# ---- icons --------------------------------------------------------------------------------
# png_size FILE: "WIDTHxHEIGHT" from the IHDR chunk, or nothing when FILE is not a PNG.
png_size() {
  local bytes
  read -r -a bytes < <(od -An -v -tu1 -w24 -N24 "$1")
  [ "${#bytes[@]}" -eq 24 ] || return
  [ "${bytes[*]:0:8}" = '137 80 78 71 13 10 26 10' ] || return
  echo "$(((bytes[16] << 24) | (bytes[17] << 16) | (bytes[18] << 8) | bytes[19]))x$(((bytes[20] << 24) | (bytes[21] << 16) | (bytes[22] << 8) | bytes[23]))"
}

check_pngs() {
  local context=$1 name=$2
  shift 2
  for size in "$@"; do
    local png="$share/icons/hicolor/${size}x${size}/$context/$name.png"
    if [ ! -f "$png" ]; then
      fail "missing icon hicolor/${size}x${size}/$context/$name.png"
      continue
    fi
    local actual
    actual=$(png_size "$png")
    [ "$actual" = "${size}x${size}" ] ||
      fail "hicolor/${size}x${size}/$context/$name.png is ${actual:-not a PNG}"
  done
}

xmllint --noout "$share/icons/hicolor/scalable/apps/$app_id.svg" 2>/dev/null ||
  fail "no valid scalable app icon hicolor/scalable/apps/$app_id.svg"
check_pngs apps "$app_id" "${app_icon_sizes[@]}"
for type in "${own_mime_types[@]}"; do
  check_pngs mimetypes "${type//\//-}" "${mime_icon_sizes[@]}"
done

if [ $failures -ne 0 ]; then
  echo "$failures check(s) failed"
  exit 1
fi
echo "installed tree is valid: desktop entry, metainfo, MIME types and icons"
exit 0
