#pragma once
// GapSort: the one sort of the system, a shell sort on rows 1 to n with the caller's comparison.

namespace tessera {

// standWrong(i, j) says whether rows i and j (i < j) stand in the wrong order; exchange(i, j)
// swaps them in every table the caller keeps in parallel. The gap starts at n and is halved,
// dropping the remainder; at each gap, passes repeat until one exchanges nothing. The pass at
// gap 0 would compare each row with itself and exchange nothing, so it is left out. There is
// no second key: rows that do not stand wrong keep their places.
template <typename StandWrong, typename Exchange>
void GapSort(int n, StandWrong&& standWrong, Exchange&& exchange) {
    int gap = n;
    while (gap != 0) {
        gap /= 2;
        if (gap == 0) {
            break;
        }
        bool exchanged = true;
        while (exchanged) {
            exchanged = false;
            for (int i = 1; i <= n - gap; ++i) {
                if (standWrong(i, i + gap)) {
                    exchange(i, i + gap);
                    exchanged = true;
                }
            }
        }
    }
}

} // namespace tessera
