#include "platform/text_frame.h"

#include "platform/control_names.h"
#include "platform/rich_text_view.h"
#include "platform/twips.h"

#include <QStyle>
#include <QVBoxLayout>

#include <algorithm>

namespace tessera {
namespace {

constexpr int NarrowestLine = 40; // pixels

} // namespace

TextFrame::TextFrame(QWidget* parent) : QFrame(parent) {
    setObjectName(QStringLiteral("Shape1"));
    setFrameShape(QFrame::NoFrame);
}

void TextFrame::follow(RichTextView* view) {
    m_views.push_back(view);
    applyMargins();
}

TextFrame* TextFrame::around(RichTextView* view, const char* objectName) {
    auto* frame = new TextFrame;
    frame->setObjectName(QString::fromLatin1(objectName));
    auto* layout = new QVBoxLayout(frame);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(view);
    frame->follow(view);
    return frame;
}

void TextFrame::resizeEvent(QResizeEvent* event) {
    QFrame::resizeEvent(event);
    applyMargins();
}

void TextFrame::applyMargins() {
    for (RichTextView* view : m_views) {
        // The text wraps inside the view's own frame and scroll bar.
        const int chrome = 2 * view->frameWidth() +
                           style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, view) +
                           2 * static_cast<int>(view->document()->documentMargin());
        view->setRightMargin(TwipsPerPixel *
                             std::max(contentsRect().width() - chrome, NarrowestLine));
    }
}

RichTextView* MakeReadOnlyView(const char* objectName, const QString& accessibleName) {
    auto* view = new RichTextView;
    NameControl(view, objectName, -1, accessibleName);
    view->setReadOnly(true);
    view->setCopyOnly(true);
    return view;
}

} // namespace tessera
