#include "platform/rtf_writer.h"

#include "platform/rtf_reader.h"
#include "platform/windows1252.h"

#include <QBuffer>
#include <QColor>
#include <QFont>
#include <QImage>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextImageFormat>
#include <QTextOption>

#include <cmath>

namespace tessera {
namespace {

// What a run's formatting comes to in RTF terms.
struct CharProps {
    int font = -1;
    int halfPoints = -1;
    int colour = 0;
    bool bold = false;
    bool italic = false;
    bool underline = false;
    bool strike = false;
    int vertical = 0; // 1 superscript, 2 subscript
};

struct ParaProps {
    const char* align = "";
    int left = 0, right = 0, first = 0, before = 0, after = 0;
    QList<QTextOption::Tab> tabs;
    bool operator==(const ParaProps& other) const {
        return std::string_view(align) == other.align && left == other.left &&
               right == other.right && first == other.first && before == other.before &&
               after == other.after && tabs == other.tabs;
    }
};

const char* familyClass(const QString& name) {
    for (const char* fixed : {"Courier", "Mono", "Terminal", "Console", "LineDraw"}) {
        if (name.contains(QLatin1String(fixed), Qt::CaseInsensitive))
            return "\\fmodern";
    }
    if (!name.contains(QLatin1String("Sans"), Qt::CaseInsensitive)) {
        for (const char* serif : {"Times", "Roman", "Georgia", "Garamond", "Serif"}) {
            if (name.contains(QLatin1String(serif), Qt::CaseInsensitive))
                return "\\froman";
        }
    }
    return "\\fswiss";
}

const char* controlSymbol(char16_t unit) {
    switch (unit) {
    case QChar::Nbsp:
        return "\\~";
    case 0x00AD:
        return "\\-";
    case 0x2011:
        return "\\_";
    default:
        return nullptr;
    }
}

class RtfWriter {
public:
    explicit RtfWriter(const QTextDocument& document) : m_document(document) {}

    // An empty last paragraph is written too, so that its format comes back.
    std::string write(int to, const QTextCharFormat& emptyFormat);

private:
    void paragraph(const QTextBlock& block);
    void charFormat(const QTextCharFormat& format);
    void text(QStringView text);
    void picture(const QTextImageFormat& format);
    void word(const char* name, int value) {
        m_body += name;
        m_body += std::to_string(value);
        m_delimit = true;
    }
    void word(const char* name) {
        m_body += name;
        m_delimit = true;
    }
    int fontIndex(const QString& family);
    int colourIndex(const QColor& colour);
    std::string header() const;

    const QTextDocument& m_document;
    std::string m_body;
    bool m_delimit = false;
    bool m_firstParagraph = true;
    ParaProps m_para;
    CharProps m_chars;
    QStringList m_fonts;
    QList<QColor> m_colours;
};

std::string RtfWriter::write(int to, const QTextCharFormat& emptyFormat) {
    if (to == 0) {
        paragraph(m_document.firstBlock());
        charFormat(emptyFormat);
    }
    for (QTextBlock block = m_document.firstBlock(); block.isValid() && to > 0;
         block = block.next()) {
        paragraph(block);
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            const QTextFragment fragment = it.fragment();
            const int start = fragment.position();
            const int end = std::min(to, fragment.position() + fragment.length());
            if (start >= end)
                continue;
            charFormat(fragment.charFormat());
            if (fragment.charFormat().isImageFormat())
                picture(fragment.charFormat().toImageFormat());
            else
                text(QStringView(fragment.text()).mid(start - fragment.position(), end - start));
        }
        if (block.position() + block.length() - 1 < to) {
            m_body += "\\par\r\n";
            m_delimit = false;
        }
    }
    if (m_delimit)
        m_body += ' ';
    return header() + m_body + "\r\n}\r\n";
}

void RtfWriter::paragraph(const QTextBlock& block) {
    const QTextBlockFormat format = block.blockFormat();
    ParaProps props;
    const Qt::Alignment align = format.alignment() & Qt::AlignHorizontal_Mask;
    if (align & Qt::AlignHCenter)
        props.align = "\\qc";
    else if (align & Qt::AlignRight)
        props.align = "\\qr";
    else if (align & Qt::AlignJustify)
        props.align = "\\qj";
    props.left = pixelsToTwips(format.leftMargin());
    props.right = pixelsToTwips(format.rightMargin());
    props.first = pixelsToTwips(format.textIndent());
    props.before = pixelsToTwips(format.topMargin());
    props.after = pixelsToTwips(format.bottomMargin());
    props.tabs = format.tabPositions();
    if (!m_firstParagraph && props == m_para)
        return;
    m_firstParagraph = false;
    m_para = props;
    word("\\pard");
    word(props.align);
    const std::pair<const char*, int> indents[] = {{"\\li", props.left},
                                                   {"\\ri", props.right},
                                                   {"\\fi", props.first},
                                                   {"\\sb", props.before},
                                                   {"\\sa", props.after}};
    for (const auto& [name, value] : indents) {
        if (value != 0)
            word(name, value);
    }
    for (const QTextOption::Tab& tab : props.tabs) {
        if (tab.type == QTextOption::RightTab)
            word("\\tqr");
        else if (tab.type == QTextOption::CenterTab)
            word("\\tqc");
        else if (tab.type == QTextOption::DelimiterTab)
            word("\\tqdec");
        word("\\tx", pixelsToTwips(tab.position));
    }
}

void RtfWriter::charFormat(const QTextCharFormat& format) {
    CharProps props;
    const QStringList families = format.fontFamilies().toStringList();
    props.font =
        fontIndex(families.isEmpty() ? m_document.defaultFont().family() : families.first());
    const double points =
        format.fontPointSize() > 0 ? format.fontPointSize() : m_document.defaultFont().pointSizeF();
    props.halfPoints = static_cast<int>(std::lround(points * 2));
    props.bold = format.fontWeight() >= QFont::DemiBold;
    props.italic = format.fontItalic();
    props.underline = format.fontUnderline();
    props.strike = format.fontStrikeOut();
    if (format.verticalAlignment() == QTextCharFormat::AlignSuperScript)
        props.vertical = 1;
    else if (format.verticalAlignment() == QTextCharFormat::AlignSubScript)
        props.vertical = 2;
    if (format.foreground().style() != Qt::NoBrush)
        props.colour = colourIndex(format.foreground().color());

    CharProps& was = m_chars;
    if (props.colour != was.colour)
        word("\\cf", props.colour);
    const std::tuple<bool, bool, const char*, const char*> toggles[] = {
        {props.bold, was.bold, "\\b", "\\b0"},
        {props.italic, was.italic, "\\i", "\\i0"},
        {props.underline, was.underline, "\\ul", "\\ulnone"},
        {props.strike, was.strike, "\\strike", "\\strike0"}};
    for (const auto& [now, before, on, off] : toggles) {
        if (now != before)
            word(now ? on : off);
    }
    if (props.vertical != was.vertical)
        word(props.vertical == 1 ? "\\super" : props.vertical == 2 ? "\\sub" : "\\nosupersub");
    if (props.font != was.font)
        word("\\f", props.font);
    if (props.halfPoints != was.halfPoints)
        word("\\fs", props.halfPoints);
    m_chars = props;
}

void RtfWriter::text(QStringView text) {
    for (QChar ch : text) {
        const char16_t unit = ch.unicode();
        const char* escape = nullptr;
        switch (unit) {
        case '\t':
            escape = "\\tab";
            break;
        case QChar::LineSeparator:
            escape = "\\line";
            break;
        default:
            break;
        }
        if (escape) {
            word(escape);
            continue;
        }
        if (const char* symbol = controlSymbol(unit)) {
            m_body += symbol; // a symbol ends itself: no blank behind it
            m_delimit = false;
            continue;
        }
        if (m_delimit) {
            m_body += ' ';
            m_delimit = false;
        }
        if (unit == '\\' || unit == '{' || unit == '}') {
            m_body += '\\';
            m_body += static_cast<char>(unit);
        } else if (unit >= 0x20 && unit < 0x80) {
            m_body += static_cast<char>(unit);
        } else if (const int byte = windows1252Byte(unit); byte >= 0x80) {
            static const char digits[] = "0123456789abcdef";
            m_body += "\\'";
            m_body += digits[byte >> 4];
            m_body += digits[byte & 15];
        } else if (unit >= 0x80) {
            m_body += "\\u" + std::to_string(static_cast<int16_t>(unit)) + '?';
        }
    }
}

void RtfWriter::picture(const QTextImageFormat& format) {
    const auto image =
        m_document.resource(QTextDocument::ImageResource, QUrl(format.name())).value<QImage>();
    if (image.isNull())
        return;
    QByteArray png;
    QBuffer buffer(&png);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    m_body += "{\\pict\\pngblip";
    word("\\picw", image.width());
    word("\\pich", image.height());
    word("\\picwgoal", pixelsToTwips(format.width() > 0 ? format.width() : image.width()));
    word("\\pichgoal", pixelsToTwips(format.height() > 0 ? format.height() : image.height()));
    m_body += "\r\n";
    m_body += png.toHex().toStdString();
    m_body += "}";
    m_delimit = false;
}

int RtfWriter::fontIndex(const QString& family) {
    const qsizetype index = m_fonts.indexOf(family);
    if (index >= 0)
        return static_cast<int>(index);
    m_fonts.append(family);
    return static_cast<int>(m_fonts.size() - 1);
}

int RtfWriter::colourIndex(const QColor& colour) {
    const qsizetype index = m_colours.indexOf(colour);
    if (index >= 0)
        return static_cast<int>(index + 1);
    m_colours.append(colour);
    return static_cast<int>(m_colours.size());
}

std::string RtfWriter::header() const {
    std::string header = R"({\rtf1\ansi\deff0\deflang1033{\fonttbl)";
    for (qsizetype i = 0; i < m_fonts.size(); ++i) {
        // A name read from a damaged table may hold what would end the entry or the group.
        std::string name = toWindows1252(m_fonts[i]);
        std::erase_if(name, [](char c) {
            return c == '{' || c == '}' || c == '\\' || c == ';' || (c >= 0 && c < ' ');
        });
        header += "{\\f" + std::to_string(i) + familyClass(m_fonts[i]) + ' ' + name + ";}";
    }
    header += '}';
    if (!m_colours.isEmpty()) {
        header += "{\\colortbl ;";
        for (const QColor& colour : m_colours) {
            header += "\\red" + std::to_string(colour.red()) + "\\green" +
                      std::to_string(colour.green()) + "\\blue" + std::to_string(colour.blue()) +
                      ';';
        }
        header += '}';
    }
    return header + "\r\n\\viewkind4\\uc1";
}

} // namespace

std::string writeRtf(const QTextDocument& document) {
    QTextCursor all(const_cast<QTextDocument*>(&document));
    all.movePosition(QTextCursor::End, QTextCursor::KeepAnchor);
    return RtfWriter(document).write(all.position(), all.charFormat());
}

} // namespace tessera
