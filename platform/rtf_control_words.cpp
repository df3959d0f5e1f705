#include "platform/rtf_control_words.h"

#include <array>
#include <utility>

namespace tessera {
namespace {

using Entry = std::pair<std::string_view, RtfWord>;
using W = RtfWord;

// Sorted by name for a binary search.
constexpr auto Words = std::to_array<Entry>({
    {"aftnsep", W::SkippedDestination},
    {"aftnsepc", W::SkippedDestination},
    {"annotation", W::SkippedDestination},
    {"ansi", W::Ansi},
    {"ansicpg", W::AnsiCodePage},
    {"atnauthor", W::SkippedDestination},
    {"atnid", W::SkippedDestination},
    {"b", W::Bold},
    {"background", W::SkippedDestination},
    {"bin", W::Binary},
    {"blue", W::Blue},
    {"bullet", W::Bullet},
    {"cell", W::Cell},
    {"cf", W::Colour},
    {"colorschememapping", W::SkippedDestination},
    {"colortbl", W::ColorTable},
    {"column", W::Par},
    {"cpg", W::FontCodePage},
    {"datastore", W::SkippedDestination},
    {"deff", W::DefaultFont},
    {"deftab", W::DefaultTab},
    {"dibitmap", W::OtherBlip},
    {"do", W::SkippedDestination},
    {"emdash", W::EmDash},
    {"emfblip", W::OtherBlip},
    {"emspace", W::Space},
    {"endash", W::EnDash},
    {"enspace", W::Space},
    {"f", W::Font},
    {"falt", W::SkippedDestination},
    {"fcharset", W::FontCharset},
    {"fi", W::FirstIndent},
    {"filetbl", W::SkippedDestination},
    {"fldinst", W::SkippedDestination},
    {"fldrslt", W::ReadDestination},
    {"fonttbl", W::FontTable},
    {"footer", W::SkippedDestination},
    {"footerf", W::SkippedDestination},
    {"footerl", W::SkippedDestination},
    {"footerr", W::SkippedDestination},
    {"footnote", W::SkippedDestination},
    {"fs", W::FontSize},
    {"ftnsep", W::SkippedDestination},
    {"ftnsepc", W::SkippedDestination},
    {"generator", W::SkippedDestination},
    {"green", W::Green},
    {"header", W::SkippedDestination},
    {"headerf", W::SkippedDestination},
    {"headerl", W::SkippedDestination},
    {"headerr", W::SkippedDestination},
    {"i", W::Italic},
    {"ilvl", W::ListLevelIndex},
    {"info", W::SkippedDestination},
    {"jpegblip", W::JpegBlip},
    {"latentstyles", W::SkippedDestination},
    {"ldblquote", W::LeftDoubleQuote},
    {"levelfollow", W::LevelFollow},
    {"levelnfc", W::LevelFormat},
    {"levelnfcn", W::LevelFormat},
    {"levelnumbers", W::SkippedDestination},
    {"levelstartat", W::LevelStart},
    {"leveltext", W::LevelText},
    {"li", W::LeftIndent},
    {"lin", W::LeftIndent},
    {"line", W::Line},
    {"list", W::ListBegin},
    {"listid", W::ListId},
    {"listlevel", W::ListLevel},
    {"listname", W::SkippedDestination},
    {"listoverridetable", W::ListOverrideTable},
    {"listtable", W::ListTable},
    {"listtext", W::ListText},
    {"lquote", W::LeftQuote},
    {"ls", W::ListNumber},
    {"mac", W::Mac},
    {"macpict", W::OtherBlip},
    {"nestcell", W::Cell},
    {"nestrow", W::Row},
    {"nesttableprops", W::SkippedDestination},
    {"nonesttables", W::SkippedDestination},
    {"nonshppict", W::SkippedDestination},
    {"nosupersub", W::NoSuperSub},
    {"objdata", W::SkippedDestination},
    {"page", W::Par},
    {"par", W::Par},
    {"pard", W::Pard},
    {"pc", W::Pc},
    {"pca", W::Pca},
    {"pgdsctbl", W::SkippedDestination},
    {"pichgoal", W::PictureHeightGoal},
    {"picscalex", W::PictureScaleX},
    {"picscaley", W::PictureScaleY},
    {"pict", W::Picture},
    {"picwgoal", W::PictureWidthGoal},
    {"plain", W::Plain},
    {"pmmetafile", W::OtherBlip},
    {"pn", W::SkippedDestination},
    {"pngblip", W::PngBlip},
    {"pntext", W::ReadDestination},
    {"private", W::SkippedDestination},
    {"qc", W::AlignCentre},
    {"qd", W::AlignJustify},
    {"qj", W::AlignJustify},
    {"ql", W::AlignLeft},
    {"qmspace", W::Space},
    {"qr", W::AlignRight},
    {"rdblquote", W::RightDoubleQuote},
    {"red", W::Red},
    {"result", W::ReadDestination},
    {"revtbl", W::SkippedDestination},
    {"ri", W::RightIndent},
    {"rin", W::RightIndent},
    {"row", W::Row},
    {"rquote", W::RightQuote},
    {"rsidtbl", W::SkippedDestination},
    {"sa", W::SpaceAfter},
    {"sb", W::SpaceBefore},
    {"sect", W::Par},
    {"shpinst", W::SkippedDestination},
    {"shppict", W::ReadDestination},
    {"shprslt", W::ReadDestination},
    {"strike", W::Strike},
    {"striked", W::Strike},
    {"stylesheet", W::SkippedDestination},
    {"sub", W::Subscript},
    {"super", W::Superscript},
    {"tab", W::Tab},
    {"tb", W::BarTab},
    {"template", W::SkippedDestination},
    {"themedata", W::SkippedDestination},
    {"tqc", W::TabCentre},
    {"tqdec", W::TabDecimal},
    {"tqr", W::TabRight},
    {"tx", W::TabStop},
    {"u", W::Unicode},
    {"uc", W::UnicodeSkip},
    {"ud", W::SkippedDestination},
    {"ul", W::Underline},
    {"uld", W::Underline},
    {"uldash", W::Underline},
    {"uldashd", W::Underline},
    {"uldashdd", W::Underline},
    {"uldb", W::Underline},
    {"ulhwave", W::Underline},
    {"ulldash", W::Underline},
    {"ulnone", W::UnderlineNone},
    {"ulth", W::Underline},
    {"ulthd", W::Underline},
    {"ulthdash", W::Underline},
    {"ulthdashd", W::Underline},
    {"ulthdashdd", W::Underline},
    {"ulthldash", W::Underline},
    {"ululdbwave", W::Underline},
    {"ulw", W::Underline},
    {"ulwave", W::Underline},
    {"userprops", W::SkippedDestination},
    {"v", W::Hidden},
    {"wbitmap", W::OtherBlip},
    {"wmetafile", W::OtherBlip},
    {"xe", W::SkippedDestination},
    {"xmlnstbl", W::SkippedDestination},
});

constexpr bool sortedByName() {
    for (std::size_t i = 1; i < Words.size(); ++i) {
        if (!(Words[i - 1].first < Words[i].first))
            return false;
    }
    return true;
}
static_assert(sortedByName(), "the control words stay sorted, so that each appears once");

// An open-addressing table over the words: a control word is looked up for every one read.
class WordTable {
public:
    WordTable() {
        m_slots.fill(-1);
        for (std::size_t i = 0; i < Words.size(); ++i) {
            std::size_t slot = hash(Words[i].first) & Mask;
            while (m_slots[slot] >= 0)
                slot = (slot + 1) & Mask;
            m_slots[slot] = static_cast<int16_t>(i);
        }
    }

    RtfWord find(std::string_view name) const {
        for (std::size_t slot = hash(name) & Mask;; slot = (slot + 1) & Mask) {
            const int16_t entry = m_slots[slot];
            if (entry < 0)
                return RtfWord::Unknown;
            if (Words[static_cast<std::size_t>(entry)].first == name)
                return Words[static_cast<std::size_t>(entry)].second;
        }
    }

private:
    static constexpr std::size_t Size = 1024;
    static constexpr std::size_t Mask = Size - 1;
    static_assert(Size > 2 * Words.size());

    static std::size_t hash(std::string_view name) {
        uint32_t h = 2166136261u;
        for (char c : name)
            h = (h ^ static_cast<uint8_t>(c)) * 16777619u;
        return h;
    }

    std::array<int16_t, Size> m_slots{};
};

} // namespace

RtfWord lookupRtfWord(std::string_view name) {
    static const WordTable table;
    return table.find(name);
}

} // namespace tessera
