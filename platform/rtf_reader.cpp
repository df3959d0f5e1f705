#include "platform/rtf_reader.h"

#include "platform/rtf_parser.h"
#include "platform/windows1252.h"

#include <QTextCursor>
#include <QTextDocument>

namespace tessera {
namespace {

bool looksLikeRtf(std::string_view text) {
    const std::size_t start = text.find_first_not_of(" \t\r\n");
    return start != std::string_view::npos && text.substr(start, 5) == "{\\rtf";
}

void readPlainText(std::string_view text, QTextDocument& document) {
    QString plain = fromWindows1252(text);
    plain.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    plain.replace(QChar(u'\r'), QChar(u'\n'));
    // Other control characters are dropped, as in rich text, so that a save keeps what shows.
    plain.removeIf([](QChar ch) { return ch < QChar(u' ') && ch != u'\n' && ch != u'\t'; });
    QTextCursor(&document).insertText(plain);
}

} // namespace

void readRtf(std::string_view rtf, QTextDocument& document) {
    const bool undo = document.isUndoRedoEnabled();
    document.setUndoRedoEnabled(false);
    document.clear();
    if (looksLikeRtf(rtf)) {
        const std::size_t start = rtf.find('{');
        rtf::RtfParser(rtf.substr(start), document).read();
    } else {
        readPlainText(rtf, document);
    }
    document.setUndoRedoEnabled(undo);
}

QString plainChars(QString text) {
    for (QChar& ch : text) {
        switch (ch.unicode()) {
        case QChar::ParagraphSeparator:
        case QChar::LineSeparator:
            ch = QChar(u'\n');
            break;
        case QChar::Nbsp:
            ch = QChar(u' ');
            break;
        default:
            break;
        }
    }
    return text;
}

QString plainTextOf(const QTextDocument& document) {
    return plainChars(document.toRawText());
}

} // namespace tessera
