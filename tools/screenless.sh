# A virtual display for machines without one, and what a script can see on it. Sourced.

# start_display FOLDER WIDTHxHEIGHT: starts Xvfb and a window manager, exports DISPLAY.
# FOLDER takes their logs; display_pids are theirs.
start_display() {
  local folder=$1 size=$2
  # Of one before: another program's display may have its number by now.
  rm -f "$folder/display" "$folder/managed"
  Xvfb -displayfd 3 -screen 0 "${size}x24" -nolisten tcp -noreset 3>"$folder/display" 2>"$folder/xvfb.log" </dev/null &
  display_pids=($!)
  local number= tries=200
  until read -r number 2>/dev/null <"$folder/display"; do
    if ((tries-- == 0)) || ! kill -0 "${display_pids[0]}" 2>/dev/null; then
      echo "The virtual display did not start:" >&2
      tail -n 5 "$folder/xvfb.log" >&2
      return 1
    fi
    sleep 0.05
  done
  export DISPLAY=":$number"
  unset WAYLAND_DISPLAY
  openbox --sm-disable --startup "touch '$folder/managed'" >"$folder/openbox.log" 2>&1 </dev/null &
  display_pids+=($!)
  # It may never show a window that comes while it is coming up itself.
  tries=200
  until [[ -e $folder/managed ]] || ((tries-- == 0)) || ! kill -0 "${display_pids[1]}" 2>/dev/null; do
    sleep 0.05
  done
}

# window_of PID: the first visible window of a process.
window_of() {
  xdotool search --onlyvisible --pid "$1" 2>/dev/null | head -n 1
}

# rectangle_of WINDOW: sets X, Y, WIDTH and HEIGHT (pixels on the screen).
rectangle_of() {
  eval "$(xdotool getwindowgeometry --shell "$1" 2>/dev/null | grep -E '^(X|Y|WIDTH|HEIGHT)=-?[0-9]+$')"
  [[ -n ${HEIGHT:-} ]]
}

# save_screenshot FILE X Y WIDTH HEIGHT
save_screenshot() {
  # One grab needs no look at the stream before, which would take seconds.
  ffmpeg -v error -nostdin -y -f x11grab -probesize 32 -analyzeduration 0 -draw_mouse 0 -video_size "$4x$5" \
    -i "$DISPLAY+$2,$3" -frames:v 1 "$1"
}

# differ A.png B.png: whether two pictures of the same size differ visibly.
differ() {
  local difference
  difference=$(ffmpeg -v error -nostdin -i "$1" -i "$2" -filter_complex \
    'blend=all_mode=difference,format=gray,signalstats,metadata=print:key=lavfi.signalstats.YMAX:file=-' -f null - 2>/dev/null |
    sed -n 's/.*YMAX=//p')
  ((${difference:-0} > 8))
}
