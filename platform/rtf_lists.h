#pragma once
// Numbered and bulleted lists as word processors write them: the list table, the overrides
// that paragraphs name with \ls, and the label each paragraph gets, counted on from the last.

#include <array>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

namespace tessera {

class RtfLists {
public:
    static constexpr int MaxLevels = 9;

    // Reading the list table: \list, \listlevel and what they hold, \listid at the list's end.
    void beginList() { m_building.clear(); }
    void beginLevel();
    void setFormat(int format);
    void setStart(int start);
    void setFollow(int follow);
    void addLevelText(char16_t unit);
    void setListId(int id) { m_lists[id] = m_building; }

    // Reading the override table: \listid then \ls.
    void setOverrideListId(int id) { m_overrideListId = id; }
    void setOverrideNumber(int number) { m_overrides[number] = m_overrideListId; }

    bool empty() const { return m_lists.empty(); }

    // The label of the next paragraph of list override `number` at `level`, with what follows
    // it; empty for a list the tables do not define.
    std::u16string nextLabel(int number, int level);

private:
    struct Level {
        int format = 0; // \levelnfc: 0 decimal, 1 and 2 roman, 3 and 4 letters, 23 bullet
        int start = 1;
        int follow = 0;      // 0 a tab, 1 a blank, 2 nothing
        std::u16string text; // first unit its length; units below 9 stand for level numbers
    };
    static std::u16string number(int value, int format);

    std::vector<Level> m_building;
    std::unordered_map<int, std::vector<Level>> m_lists;
    std::unordered_map<int, int> m_overrides;
    int m_overrideListId = 0;
    std::unordered_map<int, std::array<std::optional<int>, MaxLevels>> m_counters;
};

} // namespace tessera
