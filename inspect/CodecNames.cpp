#include "inspect/CodecNames.h"

#include "inspect/TextValues.h"

namespace zentaro {

CodecNames::CodecNames(std::string_view text)
{
    while (const auto line = NextLine(text)) {
        const auto comma = line->find(',');
        if (comma == std::string_view::npos)
            continue;
        const auto key = Trimmed(line->substr(0, comma));
        if (!IsNumericText(key))
            m_names.emplace(key, Trimmed(line->substr(comma + 1)));
    }
}

std::string CodecNames::DisplayName(std::string_view codec) const
{
    const auto known = m_names.find(codec);
    return known == m_names.end() ? std::string(codec) : known->second;
}

} // namespace zentaro
