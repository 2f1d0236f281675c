# What the side-by-side measurements share: a folder with the built player, and an ordinary user. Sourced.
root=$(dirname "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")")
build="$root/build/linux-release"
source "$root/packaging/packages.sh"
source "$root/tools/screenless.sh"

clean_up() {
  local running=($(jobs -p))
  ((${#running[@]})) && kill "${running[@]}" 2>/dev/null
  [[ -s $stage/bus.pid ]] && kill "$(<"$stage/bus.pid")" 2>/dev/null
  wait
  rm -rf "$stage"
}

# prepare_stage TARGET...: builds the player and these programs and copies them to $stage, which the ordinary user can
# read; $stage/home is the user's.
prepare_stage() {
  install_packages build run screenless test bench || exit 1
  (cd "$root" && cmake --preset linux-release -DZENTARO_TESTS=ON >/dev/null) || exit 1
  ninja -C "$build" program "$@" || exit 1
  stage=$(mktemp -d "${TMPDIR:-/tmp}/zentaro-bench.XXXXXX")
  display_pids=()
  trap clean_up EXIT
  trap 'exit 1' INT TERM HUP
  # vlc refuses root; and all must have the same world.
  user=()
  ((EUID == 0)) && user=(setpriv --reuid=nobody --regid="$(id -gn nobody)" --clear-groups --no-new-privs)
  cp -R "$build/bin" "$stage/bin"
  cp "${@/#/$build/bench/}" "$stage/"
  mkdir -p "$stage/home/run"
}

# open_stage: to be called when all files are there.
open_stage() {
  chmod -R a+rX "$stage"
  chmod 700 "$stage/home/run"
  ((${#user[@]})) && chown -R nobody: "$stage/home" "$stage/bin"
}

# open_bus: a session bus, for all that as_user starts from now on.
open_bus() {
  as_user dbus-daemon --session --fork --nopidfile --print-pid --address="unix:path=$stage/home/run/bus" \
    >"$stage/bus.pid" 2>"$stage/bus.log" </dev/null
  session_bus="unix:path=$stage/home/run/bus"
  local tries=200
  until [[ -S $stage/home/run/bus ]]; do
    ((tries-- > 0)) || { echo "no session bus" >&2; exit 1; }
    sleep 0.02
  done
}

# as_user COMMAND...: in the user's home, with nothing of this environment but the display, and the bus if there is one.
as_user() {
  (cd "$stage/home" && exec "${user[@]}" env -i PATH="$PATH" LC_ALL=C.UTF-8 DISPLAY="${DISPLAY:-}" \
    HOME="$stage/home" XDG_RUNTIME_DIR="$stage/home/run" DBUS_SYSTEM_BUS_ADDRESS="unix:path=$stage/no-bus" \
    ${session_bus:+DBUS_SESSION_BUS_ADDRESS="$session_bus"} "$@")
}

# median NUMBER...
median() {
  printf '%s\n' "$@" | sort -n | sed -n "$((($# + 1) / 2))p"
}

load_line() {
  echo "load $(cut -d' ' -f1-2 /proc/loadavg) on $(nproc) processors"
}
