#include "app/ListMemory.h"
#include "app/PlaceBook.h"

#include <cstdint>
#include <cstdlib>

using namespace zentaro;

/// What was kept of list and places, or anything in its stead; what was read is written and read again as it is.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const auto places = PlaceBook::Parse(text).Format();
    if (PlaceBook::Parse(places).Format() != places)
        std::abort();
    const auto list = ParseList(text);
    const auto written = FormatList(list);
    if (FormatList(ParseList(written)) != written)
        std::abort();
    Playlist playlist([] { return 0.5; });
    Restore(list, playlist, list.playMode);
    if (playlist.Order().Count() != playlist.Count())
        std::abort();
    return 0;
}
