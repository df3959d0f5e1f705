#include "tools/help.h"

#include "core/screen_context.h"
#include "core/session_state.h"
#include "platform/desktop_keys.h"
#include "platform/rich_text_view.h"
#include "platform/text_frame.h"

#include <QEvent>
#include <QVBoxLayout>

namespace tessera {

Help::Help(ScreenContext& context) {
    setObjectName(QStringLiteral("Help"));
    setWindowTitle(QStringLiteral("Help"));
    CloseOnEscape(this);
    RichTextBox1 = MakeReadOnlyView("RichTextBox1", QStringLiteral("Help text"));
    Shape1 = TextFrame::around(RichTextBox1, "Shape1");
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(Shape1);

    const CourseContent& content = context.state.content;
    const int topic = context.state.HelpTopic;
    const std::string& text =
        topic >= 1 && topic <= HelpTextCount ? content.HelpTexts[topic] : content.HelpTexts[0];
    m_document = RtfVersions::of(HelpDocument(content.RtfHeader, text));
    RichTextBox1->setTextRtf(m_document.forWindow(isMaximized()));
    resize(560, 460);
}

void Help::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    // The large version shows while the window is maximised.
    if (event->type() == QEvent::WindowStateChange && RichTextBox1 != nullptr)
        RichTextBox1->swapTextRtf(m_document.forWindow(isMaximized()));
}

} // namespace tessera
