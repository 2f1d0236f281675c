#pragma once

#include <optional>
#include <string>

namespace zentaro {

/// A part of an item that is played again and again. Times in ms.
class AbLoop {
public:
    /// The first time sets where it begins, the second where it ends, the third ends it. An end before the beginning
    /// counts the other way round.
    void Mark(double time);
    void Clear() { *this = {}; }
    bool IsOn() const { return m_end.has_value(); }
    bool IsBegun() const { return m_begin && !m_end; }
    double Begin() const { return m_begin.value_or(0); }
    double End() const { return m_end.value_or(0); }

private:
    std::optional<double> m_begin;
    std::optional<double> m_end;
};

/// "1:02:03", "2:03" or "123": hours, minutes and seconds, the seconds with a fraction at will; in ms. Nothing for
/// anything else.
std::optional<double> ParseTime(const std::string& text);

} // namespace zentaro
