# The Debian packages that Zentaro needs, with what each is for. Sourced by ./run, ./test and bench/launch.
# Names hold for Debian 12 and newer, and for Ubuntu 24.04. Libraries that a -dev package of the build brings are not
# named again: their own names differ from release to release.

packages_run='
vlc-plugin-base         the readers, decoders and sound outputs of the engine
vlc-plugin-video-output its picture outputs
ffmpeg                  reads what is inside a file, makes thumbnails, the demo clip and the JPG pictures
mpgtx                   reads MPEG program streams
'
# What is only better with them: no start fails where they cannot be had.
packages_help='
ccache                  makes the second build quick
fonts-inter             the typeface of the windows, and of the icons
libvlc-bin              the plug-in cache of the engine: without it every start costs a tenth of a second more
qt6-translations-l10n   the texts of the file dialogs in other languages
qt6-wayland             shows the windows where there is no X server beside a Wayland display
xdg-utils               opens the help and web pages in the browser
'
packages_build='
g++                     the compiler
cmake                   describes the build
ninja-build             runs the build
pkg-config              finds the libraries
qt6-base-dev            the windows
libvlc-dev              the engine that plays
libxcb1-dev             window states that Qt has no call for
libsystemd-dev          sd-bus: speaks to the login manager, the disk service and the session
libdvdread-dev          finds the video folder of a disc that is not mounted
qt6-l10n-tools          compiles the texts of other languages
libsqlite3-dev          keeps what is known of files that were seen
libkissfft-dev          a header that takes sound apart into its tones, for the bars that move with music
nlohmann-json3-dev      prints what zentaro-inspect knows as JSON
librsvg2-bin            draws the SVG sources of all pictures
icoutils                packs the icons of Windows
'
packages_package='
dpkg-dev                finds what the .deb depends on
'
packages_windows='
nasm                    the assembler of ffmpeg
libz-mingw-w64-dev      zlib for ffmpeg
dpkg-dev                unpacks the sources of Qt and ffmpeg
xz-utils                unpacks a kit that was given
nsis                    makes the installer
'
packages_screenless='
xvfb                    a display in memory
openbox                 a window manager for it
xdotool                 finds the window, presses its keys and closes it
'
packages_test='
libgtest-dev            GoogleTest
libgmock-dev            GoogleMock
googletest              their sources, cross-built for Windows
libx11-dev              the tests of the real window look at windows
dbus                    a session bus of the tests own
desktop-file-utils      checks and collects desktop entries
shared-mime-info        the types of files, and what adds to them
libglib2.0-bin          asks and opens as a file manager does
dvdauthor               makes a video DVD with a menu
genisoimage             makes images of discs
appstream               checks the metadata of the package
lintian                 checks the package
playerctl               a client of the media controls
systemd                 busctl, another one
at-spi2-core            the bus of screen readers
python3-pyatspi         reads the window as they do
orca                    one of them, whose words are read instead of heard
weston                  a Wayland display in memory
clang                   builds the fuzz targets
libclang-rt-dev         libFuzzer and the sanitizers of clang
g++-mingw-w64-x86-64-posix  builds for Windows
binutils-mingw-w64-x86-64   its linker and resource compiler
fp-utils                chmcmd, which compiles the help for Windows
wine                    runs the Windows tests
wine64                  its 64-bit half
'
packages_bench='
libbenchmark-dev        Google Benchmark
vlc                     what we compare with
mpv                     what we compare with
'

# missing_of NAME...: those that neither are installed nor are provided by an installed package of another name.
missing_of() {
  local missing
  # A package of the right architecture and fully installed prints one line "name installed".
  missing=$(comm -23 <(printf '%s\n' "$@" | sort -u) \
                     <(dpkg-query -W -f '${Package} ${db:Status-Status}\n' "$@" 2>/dev/null | sed -n 's/ installed$//p' | sort -u))
  [[ -z $missing ]] && return
  # As "libdvdread8" by "libdvdread8t64". A list of provided names looks like "name (= 1.2), other".
  comm -23 <(echo "$missing") \
           <(dpkg-query -W -f '${db:Status-Status}, ${Provides}\n' 2>/dev/null | sed -n 's/^installed, //p' |
             tr ',' '\n' | sed 's/^ *//; s/ .*//' | sort -u) | tr '\n' ' '
}

names_of() {
  local group list
  for group in "$@"; do
    list="packages_$group"
    sed -n 's/[[:space:]].*//; /./p' <<<"${!list}"
  done
}

# run_apt COMMAND...: as the administrator. Another installation may hold its locks; one of them apt does not wait for.
run_apt() {
  local as_root=() tries=40 code
  ((EUID == 0)) || as_root=(sudo)
  while true; do
    code=0
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -o DPkg::Lock::Timeout=600 -qq "$@" \
      </dev/null >&2 2>"$apt_errors" || code=$?
    cat "$apt_errors" >&2
    ((code == 0)) && return
    grep -q 'Could not get lock' "$apt_errors" && ((tries-- > 0)) || return $code
    echo "Waiting for another installation to end ..." >&2
    sleep 3
  done
}

# fetch_packages NAME...: installs them all, or none.
fetch_packages() {
  local apt_errors code=0
  apt_errors=$(mktemp)
  apt-cache show --no-all-versions "$@" >/dev/null 2>&1 || run_apt update || code=$?
  # Package lists that have grown old name versions that are gone: then new lists and once more.
  if ((code == 0)); then
    run_apt install -y --no-install-recommends "$@" ||
      { run_apt update && run_apt install -y --no-install-recommends "$@"; } || code=$?
  fi
  rm -f "$apt_errors"
  return $code
}

# install_packages GROUP...: installs what is missing of these groups and says so. Fails when something needed is still
# missing then. What only helps is asked for once: where it cannot be had, nobody hears of it again.
install_packages() {
  local needed helping known="$root/build/packages-tried" name
  if ! command -v dpkg-query >/dev/null; then
    echo "This is no Debian system; please see to these packages yourself:" $(names_of "$@" help) >&2
    return 0
  fi
  needed=$(missing_of $(names_of "$@"))
  helping=
  for name in $(missing_of $(names_of help)); do
    grep -qsx "$name" "$known" || helping+="$name "
  done
  [[ -z $needed$helping ]] && return 0
  if ((EUID != 0)) && ! command -v sudo >/dev/null; then
    [[ -z $needed ]] || echo "Missing packages; as root, please run: apt-get install --no-install-recommends $needed$helping" >&2
    [[ -z $needed ]]
    return
  fi
  echo "Installing: $needed$helping" >&2
  [[ -z $needed ]] || fetch_packages $needed || return
  if [[ -n $helping ]] && ! fetch_packages $helping; then
    echo "Going on without these, which only help: $helping" >&2
    mkdir -p "$(dirname "$known")" && printf '%s\n' $helping >>"$known"
  fi
}
