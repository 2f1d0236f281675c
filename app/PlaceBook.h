#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace zentaro {

/// What is known of a file that was played before.
struct Place {
    double time = 0;   ///< ms; 0 when it was not left in its middle
    double length = 0; ///< ms
    bool isWatched = false;
    int audioTrack = kNotChosen;
    int subtitleTrack = kNotChosen;
    int audioDelay = 0;     ///< ms
    int subtitleDelay = 0;  ///< ms
    std::uint64_t turn = 0; ///< the higher, the later it was played

    static constexpr int kNotChosen = -1000;

    /// How far it was seen, 0 to 1.
    double Share() const { return isWatched ? 1 : length > 0 ? time / length : 0; }
    /// Nothing is lost when it is forgotten.
    bool IsEmpty() const;
    bool operator==(const Place&) const = default;
};

/// The places in all files, by their paths, and the folders of which nothing is remembered.
class PlaceBook {
public:
    static constexpr std::size_t kMost = 2000;         // the oldest go first
    static constexpr double kShortest = 5 * 60 * 1000; // ms; in a shorter film there is no place
    static constexpr double kWatched = 0.95;

    /// Empty for a file that is not known.
    Place Find(const std::string& path) const;
    /// Where the item is now. Short ones and those that nobody may remember are not kept.
    void SetTime(const std::string& path, double time, double length);
    void SetWatched(const std::string& path, double length);
    /// The rest of what is known of a file; its turn is ours.
    void Set(const std::string& path, Place place);
    void Forget(const std::string& path);
    void ForgetAll() { m_places.clear(); }

    /// `folder`: with a trailing separator. What was known of its files is forgotten.
    void NeverRemember(const std::string& folder);
    void RememberAgain(const std::string& folder);
    bool IsNeverRemembered(const std::string& path) const;
    const std::vector<std::string>& NeverRemembered() const { return m_never; }

    std::string Format() const;
    /// Reads what Format has written; what is damaged is left out.
    static PlaceBook Parse(std::string_view text);

private:
    void DropOldest();

    std::map<std::string, Place> m_places;
    std::vector<std::string> m_never;
    std::uint64_t m_turn = 0;
};

} // namespace zentaro
