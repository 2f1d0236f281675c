#pragma once

#include <functional>
#include <utility>
#include <vector>

namespace zentaro {

/// Uniform random numbers in [0, 1).
using RandomSource = std::function<double()>;

/// The play order table: at position p the index of the entry that is played p-th, and the current position.
/// After removals the values keep their numbers, so that they can name an index past the end.
class PlayOrder {
public:
    static constexpr int kNone = -1;

    /// All that an order is at a time.
    struct Table {
        std::vector<int> values;
        int position = kNone;
        int pendingShuffle = kNone; ///< count of a shuffle that nobody has read yet
        bool isAscending = true;    ///< the values are 0 to n-1 in order
    };

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
    int Position() const { return m_now.position; }
    /// A position outside the table becomes kNone.
    void SetPosition(int position);
    /// Takes one position out; the other values stay as they are. The current position keeps its number, but does not
    /// pass the new end.
    void RemoveAt(int position);
    void Clear();
    /// What stands in the table of these values comes next, in this order, behind the current position.
    void PutNext(const std::vector<int>& values);

    const Table& Save() const { return m_now; }
    void Restore(Table table) { m_now = std::move(table); }
    /// How often an order was built: another number when one of before is out of date.
    int Builds() const { return m_builds; }

private:
    void DrawPendingShuffle();

    RandomSource m_random;
    Table m_now;
    int m_builds = 0;
};

} // namespace zentaro
