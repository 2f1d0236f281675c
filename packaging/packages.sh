# The Debian packages that Zentaro needs, with what each is for. Sourced by ./run, ./test and bench/launch.
# Names hold for Debian 12 and newer.

packages_run='
libqt6widgets6          the windows
libvlc5                 the engine that plays
libvlc-bin              its plug-in cache: without it every start costs a tenth of a second more
vlc-plugin-base         its readers, decoders and sound outputs
vlc-plugin-video-output its picture outputs
ffmpeg                  reads what is inside a file, makes thumbnails, the demo clip and the JPG pictures
mpgtx                   reads MPEG program streams
libsystemd0             speaks to the login manager, the disk service and the session; Qt brings it anyway
libdvdread8             finds the video folder of a disc that is not mounted; the disc reader of the engine brings it anyway
fonts-inter             the typeface of the windows
xdg-utils               opens the help and web pages in the browser
'
packages_build='
g++                     the compiler
cmake                   describes the build
ninja-build             runs the build
ccache                  makes the second build quick
pkg-config              finds the libraries
qt6-base-dev            the windows
libvlc-dev              the engine
libxcb1-dev             window states that Qt has no call for
libsystemd-dev          sd-bus: restart, power off, drives, sleep, media keys
libdvdread-dev          reads the folders of a disc
nlohmann-json3-dev      prints what zentaro-inspect knows as JSON
librsvg2-bin            draws the SVG sources of all pictures
icoutils                packs the icons of Windows
fonts-inter             the letters on the icons
'
packages_package='
dpkg-dev                finds what the .deb depends on
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
libxtst-dev             and move the pointer
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

# install_packages GROUP...: installs what is missing of these groups and says so.
install_packages() {
  local group list names missing
  for group in "$@"; do
    list="packages_$group"
    names+=" $(sed 's/[[:space:]].*//' <<<"${!list}")"
  done
  if ! command -v dpkg-query >/dev/null; then
    echo "This is no Debian system; please see to these packages yourself:" $names >&2
    return 0
  fi
  # A package of the right architecture and fully installed prints one line "name installed".
  missing=$(comm -23 <(tr -s ' \n' '\n\n' <<<"$names" | sed '/^$/d' | sort -u) \
                     <(dpkg-query -W -f '${Package} ${db:Status-Status}\n' $names 2>/dev/null | sed -n 's/ installed$//p' | sort -u))
  [[ -z $missing ]] && return 0
  missing=$(tr '\n' ' ' <<<"$missing")

  local as_root=()
  if ((EUID != 0)); then
    if ! command -v sudo >/dev/null; then
      echo "Missing packages; as root, please run: apt-get install --no-install-recommends $missing" >&2
      return 1
    fi
    as_root=(sudo)
  fi
  echo "Installing: $missing" >&2
  local install=("${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends)
  if ! apt-cache show --no-all-versions $missing >/dev/null 2>&1; then
    "${as_root[@]}" apt-get update -qq >&2 || return 1
  fi
  # Package lists that have grown old name versions that are gone: then new lists and once more.
  "${install[@]}" $missing </dev/null >&2 || { "${as_root[@]}" apt-get update -qq >&2 && "${install[@]}" $missing </dev/null >&2; }
}
