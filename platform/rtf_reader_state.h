#pragma once
// The reader's group state and the Qt formats made from it, kept once per distinct state.

#include <QColor>
#include <QString>
#include <QTextBlockFormat>
#include <QTextCharFormat>

#include <array>
#include <cstdint>
#include <unordered_map>
#include <vector>

namespace tessera {

class CodePage;

// Character formatting of one group, packed so that two states compare as one number.
struct RtfCharState {
    enum Flag : uint8_t {
        Bold = 1,
        Italic = 2,
        Underline = 4,
        Strike = 8,
        Superscript = 16,
        Subscript = 32,
        Hidden = 64,
    };
    static constexpr int DefaultHalfPoints = 24;
    static constexpr int NoFont = 0xFFFFF;

    int font = NoFont;
    int halfPoints = DefaultHalfPoints;
    int colour = 0;
    uint8_t flags = 0;

    void set(Flag flag, bool on) { flags = on ? (flags | flag) : (flags & ~flag); }
    bool has(Flag flag) const { return (flags & flag) != 0; }
    uint64_t key() const {
        return (uint64_t(font) << 36) | (uint64_t(halfPoints) << 24) | (uint64_t(colour) << 8) |
               flags;
    }
};

struct RtfTabStop {
    int twips = 0;
    uint8_t kind = 0; // QTextOption::TabType
    bool operator==(const RtfTabStop&) const = default;
};

// Paragraph formatting of one group.
struct RtfParaState {
    static constexpr int MaxTabs = 32;
    enum Align : uint8_t { Left, Centre, Right, Justify };

    uint8_t align = Left;
    uint8_t nextTabKind = 0;
    uint8_t tabCount = 0;
    int left = 0;
    int right = 0;
    int first = 0;
    int before = 0;
    int after = 0;
    std::array<RtfTabStop, MaxTabs> tabs{};
    int list = 0; // \ls: the list override the paragraph belongs to; not part of its format
    int listLevel = 0;

    void addTab(int twips);
    bool operator==(const RtfParaState& other) const;
    std::size_t hash() const;
};

struct RtfFont {
    QString name;
    int codePage = 0; // 0: the document's code page
};

// The Qt formats of the states met so far; each is built once.
class RtfFormats {
public:
    explicit RtfFormats(const std::unordered_map<int, RtfFont>& fonts,
                        const std::vector<QColor>& colours)
        : m_fonts(fonts), m_colours(colours) {}

    const QTextCharFormat& charFormat(const RtfCharState& state);
    const QTextBlockFormat& blockFormat(const RtfParaState& state);

private:
    struct ParaHash {
        std::size_t operator()(const RtfParaState& state) const { return state.hash(); }
    };
    const std::unordered_map<int, RtfFont>& m_fonts;
    const std::vector<QColor>& m_colours;
    std::unordered_map<uint64_t, QTextCharFormat> m_charFormats;
    std::unordered_map<RtfParaState, QTextBlockFormat, ParaHash> m_blockFormats;
};

} // namespace tessera
