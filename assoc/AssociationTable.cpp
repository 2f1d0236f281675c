#include "assoc/AssociationTable.h"

#include <array>
#include <string_view>

namespace zentaro {

namespace {

constexpr std::array<std::string_view, kMediaExtensions.size()> kListTexts = { "Audio File (*.wav)",
    "Flash Video File (*.flv)", "Matroska Audio File (*.mka)", "Matroska Media File (*.mkv)", "Mp3 Format Sound(*.mp3)",
    "MPEG Media File (*.mpg)", "MPEG Media File (*.mpe)", "MPEG Media File (*.mpeg)", "MPEG4 Audio File (*.aac)",
    "MPEG4 Media File (*.mp4)", "MPEG4 Media File (*.m4v)", "MPEG4 Audio File (*.m4a)", "OGG Media File (*.ogm)",
    "OGG Vorbis Audio File (*.ogg)", "QuickTime File (*.mov)", "QuickTime File (*.hdmov)", "QuickTime File (*.qt)",
    "QuickTime File (*.3gp)", "QuickTime File (*.3gpp)", "QuickTime File (*.3g2)", "Video File (*.avi)",
    "Windows Audio File (*.wma)", "Windows Media File (*.wmv)", "Windows Media File (*.asf)" };

} // namespace

AssociationRow AssociationRowAt(int index, char separator)
{
    const auto place = static_cast<std::size_t>(index);
    const std::string name(kMediaExtensions.at(place));
    return { "." + name, std::string(kListTexts[place]), "Zentaro." + name, "Zentaro " + name + " File",
        std::string("icons") + separator + name + ".ico" };
}

} // namespace zentaro
