#include "platform/rich_text_view.h"

#include "platform/file_system.h"
#include "platform/printer.h"
#include "platform/rtf_reader.h"
#include "platform/rtf_writer.h"

#include <QKeyEvent>
#include <QMimeData>
#include <QScrollBar>
#include <QTextDocumentFragment>

#include <algorithm>

namespace tessera {

RichTextView::RichTextView(QWidget* parent) : QTextEdit(parent) {
    setAcceptRichText(true);
    setTabChangesFocus(false);
}

void RichTextView::setTextRtf(std::string_view rtf) {
    readRtf(rtf, *document());
    setTextCursor(QTextCursor(document()));
}

void RichTextView::swapTextRtf(std::string_view rtf) {
    keepingReadingPlace([this, rtf] { setTextRtf(rtf); });
}

void RichTextView::keepingReadingPlace(const std::function<void()>& change) {
    QScrollBar* bar = verticalScrollBar();
    if (bar->value() == 0) {
        change();
        return;
    }
    // The line that shows at the top: a few pixels down, so that a line whose top stands at the
    // edge counts, and not the one ending there.
    const int place = cursorForPosition(QPoint(0, 3)).position();
    change();
    QTextCursor cursor(document());
    cursor.setPosition(std::min(place, document()->characterCount() - 1));
    bar->setValue(bar->value() + cursorRect(cursor).top());
}

std::string RichTextView::textRtf() const {
    return writeRtf(*document());
}

QString RichTextView::text() const {
    return plainTextOf(*document());
}

int RichTextView::selStart() const {
    return textCursor().selectionStart();
}

int RichTextView::selLength() const {
    const QTextCursor cursor = textCursor();
    return cursor.selectionEnd() - cursor.selectionStart();
}

namespace {

int lastPosition(const QTextDocument& document) {
    return std::max(0, document.characterCount() - 1);
}

} // namespace

void RichTextView::setSelStart(int start) {
    QTextCursor cursor(document());
    cursor.setPosition(std::clamp(start, 0, lastPosition(*document())));
    setTextCursor(cursor);
}

void RichTextView::setSelLength(int length) {
    QTextCursor cursor = textCursor();
    const int start = cursor.selectionStart();
    cursor.setPosition(start);
    cursor.setPosition(std::clamp(start + length, 0, lastPosition(*document())),
                       QTextCursor::KeepAnchor);
    setTextCursor(cursor);
}

QString RichTextView::selText() const {
    return plainChars(textCursor().selectedText());
}

bool RichTextView::loadFile(const QString& fileName) {
    const std::optional<std::string> bytes = Files().read(fileName.toStdString());
    if (!bytes)
        return false;
    setTextRtf(*bytes);
    return true;
}

bool RichTextView::saveFile(const QString& fileName) const {
    // A new file renamed over the old one: a crash while saving leaves the old notebook.
    return WriteWhole(Files(), fileName.toStdString(), textRtf());
}

void RichTextView::selPrint(Printer& printer) const {
    const QTextCursor cursor = textCursor();
    if (!cursor.hasSelection()) {
        printer.printDocument(*document());
        return;
    }
    QTextDocument selection;
    selection.setDefaultFont(document()->defaultFont());
    QTextCursor(&selection).insertFragment(cursor.selection());
    printer.printDocument(selection);
}

void RichTextView::setRightMargin(int twips) {
    m_rightMarginTwips = std::max(0, twips);
    keepingReadingPlace([this] {
        if (m_rightMarginTwips == 0) {
            setLineWrapMode(QTextEdit::WidgetWidth);
        } else {
            setLineWrapMode(QTextEdit::FixedPixelWidth);
            setLineWrapColumnOrWidth(static_cast<int>(twipsToPixels(m_rightMarginTwips)));
        }
    });
}

void RichTextView::setCopyOnly(bool copyOnly) {
    m_copyOnly = copyOnly;
    setReadOnly(copyOnly);
    // Text that cannot be changed shows no caret; the keyboard still selects for copying.
    setCursorWidth(copyOnly ? 0 : 1);
    if (copyOnly)
        setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
}

void RichTextView::keyPressEvent(QKeyEvent* event) {
    // Keys that type a character are dropped, save the copy key; moving keys still move.
    if (m_copyOnly && !event->matches(QKeySequence::Copy) && !event->text().isEmpty()) {
        event->accept();
        return;
    }
    QTextEdit::keyPressEvent(event);
}

void RichTextView::insertFromMimeData(const QMimeData* source) {
    if (m_copyOnly)
        return;
    QTextEdit::insertFromMimeData(source);
}

} // namespace tessera
