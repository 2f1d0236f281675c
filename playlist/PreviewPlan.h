#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace zentaro {

/// The bytes of a picture file, shared.
using PreviewBytes = std::shared_ptr<const std::string>;

/// A place in a film of which there is to be a picture.
struct PreviewPlace {
    double time = 0; ///< ms
    bool isExact = false;
    bool operator==(const PreviewPlace&) const = default;
};

/// Where the pointer is, and what it may cost.
struct PreviewWish {
    double time = 0;    ///< ms
    bool rests = false; ///< the hand has come to rest there: now the exact picture counts
    bool fills = false; ///< pictures of the rest of the film are made ahead
    int among = 0;      ///< only so many places count, evenly spread over the film, once it rests; 0: all
};

/// Of which places of one film there are pictures, and which is to be made next. Coarse places lie evenly in the film
/// and are the key frames before them; exact ones are where a pointer rested.
class PreviewPlan {
public:
    /// `length`: ms, above 0.
    explicit PreviewPlan(double length);

    /// The film has grown, or its length is known better: the places stay.
    void SetLength(double length);
    double Length() const { return m_length; }
    /// All coarse places.
    std::vector<PreviewPlace> Places() const;
    /// Those of them of which nothing is known yet.
    std::vector<PreviewPlace> Missing() const;

    /// Nothing when all is there that is wanted.
    std::optional<PreviewPlace> Next(const PreviewWish& wish) const;
    /// Whether a picture that is being made is still worth it.
    bool IsWanted(const PreviewPlace& place, const PreviewWish& wish) const;
    /// A picture was made; null: there is none to be had.
    void Made(const PreviewPlace& place, PreviewBytes picture);
    /// The file has changed, as one does that is still being written: where there was no picture one may be had now,
    /// and where there was none but that of the place before, a better one.
    void LookAgain();

    /// The picture to show: the nearest one that there is, as long as it is near; null for none.
    PreviewBytes At(const PreviewWish& wish) const;
    /// Nothing can be made of this film.
    bool IsBarren() const { return m_picture == 0 && m_failed >= kTries; }

private:
    static constexpr int kTries = 3;

    int Count() const;
    int IndexOf(double time, int stride) const;
    int Stride(const PreviewWish& wish) const;
    PreviewPlace ExactPlace(double time) const;
    bool IsKnown(int index) const { return m_coarse.count(index) != 0; }
    std::optional<int> NearestUnknown(int to, int stride) const;
    void DropOldExact();

    double m_length;
    double m_step;                          // ms between coarse places
    std::map<int, PreviewBytes> m_coarse;   // by number; null: cannot be made
    std::map<double, PreviewBytes> m_exact; // by time; the same
    std::vector<double> m_exactByAge;
    int m_picture = 0; // how many were made
    int m_failed = 0;
};

} // namespace zentaro
