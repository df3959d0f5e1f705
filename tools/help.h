#pragma once
// Help: one read-only window on the help text of HelpTopic.

#include "core/rich_text_documents.h"

#include <QWidget>

namespace tessera {

struct ScreenContext;
class RichTextView;
class TextFrame;

class Help final : public QWidget {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(Help)

public:
    // Loading makes the document of HelpTopic in its two versions.
    explicit Help(ScreenContext& context);

    RichTextView* RichTextBox1 = nullptr;
    TextFrame* Shape1 = nullptr;

protected:
    void changeEvent(QEvent* event) override;

private:
    RtfVersions m_document;
};

} // namespace tessera
