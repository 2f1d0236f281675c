# Playing under Wine. Sourced.

# unpack_windows_engine FOLDER: unpacks what ZENTARO_LIBVLC_WINDOWS names (a libVLC for Windows, as a folder or an archive)
# there; windows_engine is then the folder of its libraries, and stays empty when nothing is named.
windows_engine=
unpack_windows_engine() {
  local engine=${ZENTARO_LIBVLC_WINDOWS-} archive
  [[ -n $engine ]] || return
  mkdir "$1"
  if [[ -d $engine ]]; then cp -R "$engine/." "$1"; else tar -C "$1" -xf "$engine"; fi
  for archive in "$1"/*.tar.*; do
    [[ -f $archive ]] && tar -C "$1" -xf "$archive"
  done
  chmod -R a+rX "$1"
  windows_engine=$(dirname "$(find "$1" -name libvlc.dll | head -n 1)")
}
