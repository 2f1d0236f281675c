#pragma once

#include <functional>
#include <vector>

namespace zentaro {

/// Uniform random numbers in [0, 1).
using RandomSource = std::function<double()>;

/// The play order table: at position p the index of the entry that is played p-th, and the current position.
/// After removals the values keep their numbers, so that they can name an index past the end.
class PlayOrder {
public:
    static constexpr int kNone = -1;

    /// The source must reach all of [0, 1), or a shuffle never ends.
    explicit PlayOrder(RandomSource random);

    /// 0 to count-1 in order; `selected` becomes the current position.
    void BuildSequential(int count, int selected);
    /// A random permutation of 0 to count-1, drawn when it is next read; `selected` becomes the current position (it
    /// is not looked up in the table).
    void BuildShuffle(int count, int selected);

    int Count() const;
    /// The value at a position; kNone outside the table.
    int At(int position);
    int Position() const { return m_position; }
    /// A position outside the table becomes kNone.
    void SetPosition(int position);
    /// Takes one position out; the other values stay as they are. The current position keeps its number, but does not
    /// pass the new end.
    void RemoveAt(int position);
    void Clear();

private:
    void DrawPendingShuffle();

    std::vector<int> m_table;
    RandomSource m_random;
    int m_position = kNone;
    int m_pendingShuffle = kNone; // count of a shuffle that nobody has read yet
    bool m_ascending = true;      // the table holds 0 to n-1 in order
};

} // namespace zentaro
