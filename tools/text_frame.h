#pragma once
// Shape1 of the reading screens: the frame around their rich text, whose width sets where the
// text wraps, and the read-only views inside it.

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

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void applyMargins();

    std::vector<RichTextView*> m_views;
};

// A view that takes no typing: of all keys only the copy key passes.
RichTextView* MakeReadOnlyView(const char* objectName, const QString& accessibleName);

} // namespace tessera
