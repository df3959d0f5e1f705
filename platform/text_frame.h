#pragma once
// The shape that frames a screen's rich text (Shape1 of the reading screens, Shape2 of
// Results, Shape3 of ExamTest), whose width sets where the text wraps, and the read-only views.

#include <QFrame>

#include <vector>

namespace tessera {

class RichTextView;

class TextFrame final : public QFrame {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(TextFrame)

public:
    explicit TextFrame(QWidget* parent = nullptr);

    // The view's right margin follows this frame's width from now on.
    void follow(RichTextView* view);

    // A frame named objectName that holds view alone and that view's margin follows.
    static TextFrame* around(RichTextView* view, const char* objectName);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void applyMargins();

    std::vector<RichTextView*> m_views;
};

// A view that takes no typing: of all keys only the copy key passes.
RichTextView* MakeReadOnlyView(const char* objectName, const QString& accessibleName);

} // namespace tessera
