#!/bin/sh
# Makes the clip that ./run plays when it is given no file: demo-clip.sh SHEET.png OUTPUT.mp4
# A warm light wanders over a waveform, twenty seconds long, to a soft chord.
set -eu
sheet=$1
output=$2
still="loop=loop=499:size=1,setpts=N/25/TB"
picture="
[0:v]format=gbrp,split=3[a][b][c];
[a]crop=1280:720:0:0,$still[dark];
[b]crop=1280:720:1280:0,$still[lit];
[c]crop=2560:720:0:720,$still,crop=1280:720:x='640+560*sin(2*PI*t/10)'[mask];
[dark][lit][mask]maskedmerge,format=yuv420p,fade=in:d=0.4,fade=out:st=19.2:d=0.8[video]"
# A ninth chord on A, its voices drifting a little against each other.
sound="aevalsrc='0.11*sin(2*PI*110*t)+0.08*sin(2*PI*164.81*t+sin(2*PI*0.11*t))+0.06*sin(2*PI*246.94*t+sin(2*PI*0.13*t))\
+0.05*sin(2*PI*277.18*t+sin(2*PI*0.17*t))+0.04*sin(2*PI*329.63*t)':s=48000:d=20"
ffmpeg -v error -nostdin -y -framerate 25 -i "$sheet" -f lavfi -i "$sound" \
  -filter_complex "$picture;[1:a]tremolo=f=0.2:d=0.4,afade=in:d=2,afade=out:st=17:d=3,pan=stereo|c0=c0|c1=c0[sound]" \
  -map '[video]' -map '[sound]' -r 25 -c:v libx264 -profile:v baseline -preset veryfast -crf 20 -g 50 \
  -c:a aac -b:a 128k -movflags +faststart -f mp4 "$output"
