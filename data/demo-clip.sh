#!/bin/sh
# Makes the clip that ./run plays when it is given no file: demo-clip.sh SHEET.png OUTPUT.mp4
# The bars of a waveform rise and fall while a warm light wanders over them, twenty seconds long, to a soft chord.
set -eu
sheet=$1
output=$2
still="loop=loop=499:size=1,setpts=N/25/TB"
# How far each of the 49 bars is lit, one column each and a quarter of the height: three waves run through them, and
# those under the light shine brightest.
reach="210*(0.42+0.2*sin(2*PI*(0.9*T-X*0.06))+0.14*sin(2*PI*(0.55*T+X*0.13))+0.12*sin(2*PI*(1.7*T+X*0.31)))"
shine="0.3+0.7*exp(-pow((X-24+23.3*sin(2*PI*T/10))/10,2))"
levels="color=black:s=49x180:r=25:d=20,format=gray,geq=lum='255*clip(($reach-abs(4*Y-418))/16,0,1)*($shine)',
scale=1176:180:flags=neighbor,scale=1176:720:flags=bicubic,pad=1280:720:52:0:black"
picture="
[0:v]format=gbrp,split=5[a][b][c][d][e];
[a]crop=1280:720:0:0,$still[dark];
[b]crop=1280:720:1280:0,$still[glow];
[c]crop=1280:720:2560:0,$still[lit];
[d]crop=1280:720:0:720,format=gray,$still[bars];
[e]crop=2560:720:1280:720,$still,crop=1280:720:x='640+560*sin(2*PI*t/10)'[light];
[2:v]format=gray[levels];
[bars][levels]blend=all_mode=multiply,format=gbrp[shown];
[dark][glow][light]maskedmerge[plate];
[plate][lit][shown]maskedmerge,format=yuv420p,fade=in:d=0.4,fade=out:st=19.2:d=0.8[video]"
# A ninth chord on A, its voices drifting a little against each other.
sound="aevalsrc='0.11*sin(2*PI*110*t)+0.08*sin(2*PI*164.81*t+sin(2*PI*0.11*t))+0.06*sin(2*PI*246.94*t+sin(2*PI*0.13*t))\
+0.05*sin(2*PI*277.18*t+sin(2*PI*0.17*t))+0.04*sin(2*PI*329.63*t)':s=48000:d=20"
ffmpeg -v error -nostdin -y -framerate 25 -i "$sheet" -f lavfi -i "$sound" -f lavfi -i "$levels" \
  -filter_complex "$picture;[1:a]tremolo=f=0.2:d=0.4,afade=in:d=2,afade=out:st=17:d=3,pan=stereo|c0=c0|c1=c0[sound]" \
  -map '[video]' -map '[sound]' -r 25 -c:v libx264 -profile:v baseline -preset veryfast -crf 20 -g 50 \
  -c:a aac -b:a 128k -movflags +faststart -f mp4 "$output"
