#pragma once
// The rich text view every course text is shown in, and the notebook is written in.

#include <QTextEdit>

#include <functional>
#include <string>
#include <string_view>

namespace tessera {

class Printer;

class RichTextView final : public QTextEdit {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(RichTextView)

public:
    explicit RichTextView(QWidget* parent = nullptr);

    // The whole document as RTF; text behind the first balanced closing brace is not read.
    void setTextRtf(std::string_view rtf);
    std::string textRtf() const;
    // Another version of the same text, the large one or the normal one: the line at the top
    // of the view stays there, so the reader keeps the place.
    void swapTextRtf(std::string_view rtf);

    // The plain text, one character for each position of selStart: paragraphs end in '\n'.
    QString text() const;

    int selStart() const;
    int selLength() const;
    // Setting the start places the cursor there with nothing selected; setting the length
    // selects that many characters from the start. Both are held inside the text.
    void setSelStart(int start);
    void setSelLength(int length);
    QString selText() const;

    // The rich text file is shown; false if it cannot be read.
    bool loadFile(const QString& fileName);
    // The document is written as RTF, so that loadFile brings it back; false on failure.
    bool saveFile(const QString& fileName) const;

    // Prints the selection on the printer's open job; with nothing selected, the whole text.
    void selPrint(Printer& printer) const;

    // Lines wrap at this width in twips; 0 wraps at the view's edge.
    void setRightMargin(int twips);
    int rightMargin() const { return m_rightMarginTwips; }

    // A read-only view takes no typing: of all keys only the copy key (code 3) passes.
    void setCopyOnly(bool copyOnly);
    bool copyOnly() const { return m_copyOnly; }

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void insertFromMimeData(const QMimeData* source) override;

private:
    // Runs change and scrolls back to the character that stood at the top of the view.
    void keepingReadingPlace(const std::function<void()>& change);

    int m_rightMarginTwips = 0;
    bool m_copyOnly = false;
};

} // namespace tessera
