#include "platform/rtf_reader_state.h"

#include "platform/rtf_reader.h"

#include <QFont>
#include <QTextOption>

#include <algorithm>
#include <functional>

namespace tessera {

void RtfParaState::addTab(int twips) {
    if (tabCount < MaxTabs)
        tabs[tabCount++] = {twips, nextTabKind};
    nextTabKind = 0;
}

bool RtfParaState::operator==(const RtfParaState& other) const {
    return align == other.align && tabCount == other.tabCount && left == other.left &&
           right == other.right && first == other.first && before == other.before &&
           after == other.after &&
           std::equal(tabs.begin(), tabs.begin() + tabCount, other.tabs.begin());
}

std::size_t RtfParaState::hash() const {
    std::size_t h = align;
    auto mix = [&h](int value) { h = h * 1000003u ^ std::hash<int>{}(value); };
    mix(left);
    mix(right);
    mix(first);
    mix(before);
    mix(after);
    for (int i = 0; i < tabCount; ++i)
        mix(tabs[i].twips * 4 + tabs[i].kind);
    return h;
}

const QTextCharFormat& RtfFormats::charFormat(const RtfCharState& state) {
    const uint64_t key = state.key();
    const auto found = m_charFormats.find(key);
    if (found != m_charFormats.end())
        return found->second;

    QTextCharFormat format;
    const auto font = m_fonts.find(state.font);
    if (font != m_fonts.end() && !font->second.name.isEmpty())
        format.setFontFamilies(QStringList{font->second.name});
    format.setFontPointSize(state.halfPoints / 2.0);
    if (state.has(RtfCharState::Bold))
        format.setFontWeight(QFont::Bold);
    if (state.has(RtfCharState::Italic))
        format.setFontItalic(true);
    if (state.has(RtfCharState::Underline))
        format.setFontUnderline(true);
    if (state.has(RtfCharState::Strike))
        format.setFontStrikeOut(true);
    if (state.has(RtfCharState::Superscript))
        format.setVerticalAlignment(QTextCharFormat::AlignSuperScript);
    else if (state.has(RtfCharState::Subscript))
        format.setVerticalAlignment(QTextCharFormat::AlignSubScript);
    if (state.colour > 0 && state.colour < static_cast<int>(m_colours.size()) &&
        m_colours[state.colour].isValid())
        format.setForeground(m_colours[state.colour]);
    return m_charFormats.emplace(key, format).first->second;
}

const QTextBlockFormat& RtfFormats::blockFormat(const RtfParaState& state) {
    const auto found = m_blockFormats.find(state);
    if (found != m_blockFormats.end())
        return found->second;

    QTextBlockFormat format;
    switch (state.align) {
    case RtfParaState::Centre:
        format.setAlignment(Qt::AlignHCenter);
        break;
    case RtfParaState::Right:
        format.setAlignment(Qt::AlignRight);
        break;
    case RtfParaState::Justify:
        format.setAlignment(Qt::AlignJustify);
        break;
    default:
        break;
    }
    if (state.left != 0)
        format.setLeftMargin(twipsToPixels(state.left));
    if (state.right != 0)
        format.setRightMargin(twipsToPixels(state.right));
    if (state.first != 0)
        format.setTextIndent(twipsToPixels(state.first));
    if (state.before != 0)
        format.setTopMargin(twipsToPixels(state.before));
    if (state.after != 0)
        format.setBottomMargin(twipsToPixels(state.after));
    if (state.tabCount > 0) {
        QList<QTextOption::Tab> tabs;
        for (int i = 0; i < state.tabCount; ++i) {
            tabs.append(QTextOption::Tab(twipsToPixels(state.tabs[i].twips),
                                         QTextOption::TabType(state.tabs[i].kind)));
        }
        format.setTabPositions(tabs);
    }
    return m_blockFormats.emplace(state, format).first->second;
}

} // namespace tessera
