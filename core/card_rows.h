#pragma once
// The rows of a report card kept as one vector, a row a struct, so that sorting and erasing
// move all of a row's tables together.

#include "core/gap_sort.h"

#include <utility>
#include <vector>

namespace tessera {

// GapSort of all rows; standWrong(upper, lower) says whether two rows stand in the wrong order.
template <class Row, class StandWrong>
void GapSortRows(std::vector<Row>& rows, StandWrong&& standWrong) {
    auto at = [&rows](int i) -> Row& { return rows[static_cast<size_t>(i - 1)]; };
    GapSort(
        static_cast<int>(rows.size()), [&](int i, int j) { return standWrong(at(i), at(j)); },
        [&](int i, int j) { std::swap(at(i), at(j)); });
}

// Takes out row `row` (from 1); returns the row to select next: the one above, or the top
// row, or 0 when none is left.
template <class Row> int EraseRowSelectingAbove(std::vector<Row>& rows, int row) {
    if (row < 1 || row > static_cast<int>(rows.size()))
        return rows.empty() ? 0 : 1;
    rows.erase(rows.begin() + (row - 1));
    if (rows.empty())
        return 0;
    return row == 1 ? 1 : row - 1;
}

} // namespace tessera
