#include "tests/live/Discs.h"

#include "tests/desktop/Process.h"

#include <stdexcept>

namespace zentaro::trial {

namespace {

const std::string kButtons = R"(<subpictures><stream>
<spu start="00:00:00.00" force="yes" highlight="buttons.png" select="buttons.png">
<button x0="100" y0="200" x1="300" y1="260"/><button x0="400" y0="200" x1="600" y1="260"/>
</spu></stream></subpictures>)";

const std::string kDisc = R"(<dvdauthor dest="disc"><vmgm><menus><video format="pal"/><pgc pause="inf">
<vob file="buttons.mpg"/><button>jump title 1;</button><button>jump title 2;</button></pgc></menus></vmgm>
<titleset><titles><video format="pal"/>
<pgc><vob file="long.mpg" chapters="0,1,2"/><post>call vmgm menu 1;</post></pgc>
<pgc><vob file="menu.mpg"/><post>exit;</post></pgc></titles></titleset></dvdauthor>)";

const std::string kScript = R"(set -e
movie() {
  ffmpeg -v error -nostdin -f lavfi -i "$1=size=720x576:rate=25:duration=$2" -f lavfi -i "sine=duration=$2" \
    -target pal-dvd -b:v 1M "$3"
}
movie testsrc 3 long.mpg
movie color 2 menu.mpg
ffmpeg -v error -nostdin -f lavfi -i color=white:size=720x576 -frames:v 1 \
  -vf "format=rgba,geq=r=255:g=255:b=255:a='255*between(Y,200,260)*(between(X,100,300)+between(X,400,600))'" buttons.png
spumux buttons.xml <menu.mpg >buttons.mpg
VIDEO_FORMAT=PAL dvdauthor -x disc.xml
genisoimage -quiet -dvd-video -V MOVIE -o disc.iso disc
)";

} // namespace

VideoDisc::VideoDisc(const std::string& where)
    : folder(where + "/disc")
    , image(where + "/disc.iso")
{
    WriteWholeFile(where + "/buttons.xml", kButtons);
    WriteWholeFile(where + "/disc.xml", kDisc);
    Process maker({ "sh", "-c", kScript }, where);
    if (maker.WaitForEnd() != 0)
        throw std::runtime_error("cannot make a disc: " + maker.Output());
}

} // namespace zentaro::trial
