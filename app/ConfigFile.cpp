#include "app/ConfigFile.h"

#include "base/Numbers.h"

#include <charconv>
#include <cmath>
#include <limits>
#include <type_traits>

namespace zentaro {

namespace {

bool EndsLine(char c)
{
    return c == '\r' || c == '\n';
}

/// Takes one value from each line. What stands behind the value on its line is passed over.
class ListInput {
public:
    explicit ListInput(std::string_view text)
        : m_text(text)
    {
    }

    std::optional<std::string> String()
    {
        if (!AtValue())
            return std::nullopt;
        std::string value(m_text[m_at] == '"' ? Quoted() : Until([](char c) { return c == ',' || EndsLine(c); }));
        SkipLine();
        return value;
    }

    std::optional<double> Number()
    {
        if (!AtValue())
            return std::nullopt;
        auto digits = Until([](char c) { return c == ' ' || c == ',' || EndsLine(c); });
        SkipLine();
        if (digits.starts_with('+'))
            digits.remove_prefix(1);
        double value = 0;
        const auto* const end = digits.data() + digits.size();
        const auto [stop, problem] = std::from_chars(digits.data(), end, value);
        if (problem != std::errc() || stop != end || !std::isfinite(value))
            return std::nullopt;
        return value;
    }

private:
    /// Skips leading blanks; false at the end of the text.
    bool AtValue()
    {
        if (m_at >= m_text.size())
            return false;
        m_at = std::min(m_text.find_first_not_of(' ', m_at), m_text.size());
        // A last line of blanks without a line end still counts as an empty value.
        if (m_at == m_text.size())
            m_text = " \n", m_at = 1;
        return true;
    }

    std::string_view Until(auto&& ends)
    {
        const auto start = m_at;
        while (m_at < m_text.size() && !ends(m_text[m_at]))
            ++m_at;
        return m_text.substr(start, m_at - start);
    }

    /// A quoted text may go on over line ends; without a closing quote it takes the rest of the file.
    std::string_view Quoted()
    {
        ++m_at;
        const auto value = Until([](char c) { return c == '"'; });
        m_at = std::min(m_at + 1, m_text.size());
        return value;
    }

    void SkipLine()
    {
        Until(EndsLine);
        if (m_at < m_text.size() && m_text[m_at++] == '\r' && m_at < m_text.size() && m_text[m_at] == '\n')
            ++m_at;
    }

    std::string_view m_text;
    std::size_t m_at = 0;
};

bool Take(ListInput& input, std::string& field)
{
    auto value = input.String();
    if (value)
        field = std::move(*value);
    return value.has_value();
}

template <class Integer>
requires std::is_integral_v<Integer>
bool Take(ListInput& input, Integer& field)
{
    using Limits = std::numeric_limits<Integer>;
    const auto value = input.Number();
    if (!value)
        return false;
    const auto whole = std::nearbyint(*value);
    if (whole < Limits::min() || whole > Limits::max())
        return false;
    field = static_cast<Integer>(RoundHalfEven(*value));
    return true;
}

} // namespace

PlayerSettings DefaultSettings(const std::string& desktopFolder, const ScreenExtent& screen)
{
    PlayerSettings settings;
    settings.DefaultFolder = desktopFolder;
    settings.WindowLeft = RoundHalfEven(screen.width / 2 - settings.WindowWidth / 2.0);
    settings.WindowTop = RoundHalfEven(screen.height / 2 - settings.WindowHeight / 2.0);
    return settings;
}

std::optional<PlayerSettings> ParseConfigurations(std::string_view text)
{
    PlayerSettings settings;
    ListInput input(text);
    bool complete = true;
    VisitInFileOrder(settings, [&](auto& field) { complete = complete && Take(input, field); });
    if (!complete)
        return std::nullopt;
    return settings;
}

std::string FormatConfigurations(const PlayerSettings& settings)
{
    std::string text;
    VisitInFileOrder(settings, [&](const auto& field) {
        if constexpr (std::is_integral_v<std::decay_t<decltype(field)>>)
            text += PrintForm(field);
        else
            text += field;
        text += "\r\n";
    });
    return text;
}

} // namespace zentaro
