#include "core/screen_context.h"
#include "platform/dialogs.h"
#include "platform/rich_text_view.h"
#include "tools/viewing.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>

// The glossary's find panel and its Find Next.

namespace tessera {

void Viewing::openFindPanel() {
    Frame1->show();
    for (int i = 0; i <= 2; ++i)
        Command1[i]->setEnabled(false);
    if (Text2->text().isEmpty())
        Command1[4]->setEnabled(false);
    if (!RichTextBox1->selText().isEmpty()) {
        Text2->setText(RichTextBox1->selText());
        FindNext();
    }
    Text2->setFocus(Qt::OtherFocusReason);
    Text2->selectAll();
}

void Viewing::closeFindPanel() {
    Frame1->hide();
    Command1[0]->setEnabled(!m_context.state.PrinterProblem);
    Command1[1]->setEnabled(m_context.screens.isAvailable(ScreenName::NoteBook));
    Command1[2]->setEnabled(true);
}

void Viewing::FindNext() {
    if (!RichTextBox1->selText().isEmpty())
        Text2->setText(RichTextBox1->selText());
    GlossarySearch search;
    search.text = Text2->text();
    while (search.text.startsWith(QLatin1Char(' ')))
        search.text.remove(0, 1);
    while (search.text.endsWith(QLatin1Char(' ')))
        search.text.chop(1);
    search.matchCase = Check1->isChecked();
    search.field = Option1[1]->isChecked()   ? GlossaryField::Definitions
                   : Option1[2]->isChecked() ? GlossaryField::Both
                                             : GlossaryField::Terms;
    const int hit =
        GlossaryFindNext(Terms, Definitions, search, List1->currentRow() + 1, LastFound);
    if (hit != 0) {
        List1->setCurrentRow(hit - 1);
        return;
    }
    m_context.services.dialogs.message(search.text + QStringLiteral(" not found."),
                                       QStringLiteral("Sorry!"), MessageIcon::Question,
                                       MessageButtons::Ok);
}

} // namespace tessera
