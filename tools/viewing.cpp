#include "tools/viewing.h"

#include "core/item_text.h"
#include "core/screen_context.h"
#include "core/session_state.h"
#include "platform/desktop_keys.h"
#include "platform/dialogs.h"
#include "platform/print_rich_text.h"
#include "platform/rich_text_view.h"
#include "platform/text_frame.h"
#include "platform/twips.h"
#include "platform/windows1252.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>

#include <algorithm>

namespace tessera {
namespace {

// Up to two accelerator marks go from a button's caption to make a window's title.
QString WithoutAccelerators(QString caption) {
    for (int pass = 0; pass < 2; ++pass) {
        const qsizetype mark = caption.indexOf(QLatin1Char('&'));
        if (mark >= 0)
            caption.remove(mark, 1);
    }
    return caption;
}

} // namespace

Viewing::Viewing(ScreenContext& context) : m_context(context) {
    setObjectName(QStringLiteral("Viewing"));
    buildControls();
    CloseOnEscape(this);
    const SessionState& state = m_context.state;
    m_glossary = state.ViewerSection == GlossarySection;
    QString title;
    if (m_glossary) {
        title = QStringLiteral("&Glossary of Key Terms");
        loadGlossary();
    } else {
        const int section = std::clamp<int>(state.ViewerSection, 1, TextSectionCount);
        title = fromWindows1252(state.catalogue.TextSectionCaptions[section]);
        loadDiscussion();
    }
    setWindowTitle(WithoutAccelerators(title));
    if (state.PrinterProblem)
        Command1[0]->setEnabled(false);
    Command1[1]->setEnabled(m_context.screens.isAvailable(ScreenName::NoteBook));
    Command1[3]->setEnabled(m_context.screens.isAvailable(ScreenName::Help));
    resize(640, m_glossary ? GlossaryHeight : 520);
}

void Viewing::loadDiscussion() {
    const SessionState& state = m_context.state;
    const int section = std::clamp<int>(state.ViewerSection, 1, TextSectionCount);
    m_text = RtfVersions::of(
        DiscussionDocument(state.content.RtfHeader, state.content.TextSections[section]));
    RichTextBox1->setTextRtf(m_text.forWindow(isMaximized()));
    Label1->setText(QStringLiteral("Please Read Carefully..."));
    for (QWidget* glossaryOnly :
         {static_cast<QWidget*>(List1), static_cast<QWidget*>(Frame2),
          static_cast<QWidget*>(RichTextBox2), static_cast<QWidget*>(Command1[6])})
        glossaryOnly->hide();
}

void Viewing::loadGlossary() {
    Command1[0]->hide();
    fitGlossaryBoxes();
    RichTextBox2->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    // The two boxes take the heights fitGlossaryBoxes gives them; the list takes the rest.
    if (auto* rows = qobject_cast<QBoxLayout*>(layout())) {
        rows->setStretchFactor(Shape1, 0);
        rows->setStretch(rows->count() - 2, 1);
    }
    const CourseContent& content = m_context.state.content;
    for (int p = 1; p <= GlossaryEntryCount; ++p) {
        const std::string& entry = content.GlossaryEntries[p];
        Terms << fromWindows1252(GlossaryTerm(entry));
        Definitions << fromWindows1252(GlossaryDefinition(entry));
    }
    List1->addItems(Terms);
    LetterStart = GlossaryLetterStarts(Terms);
    for (int i = 0; i < LetterCount; ++i)
        Command3[i]->setEnabled(LetterStart[i] != 0);
    Label1->hide();
    connect(List1, &QListWidget::currentRowChanged, this, [this](int row) {
        if (row >= 0) {
            showEntry(row + 1);
            List1->scrollToItem(List1->item(row), QAbstractItemView::PositionAtCenter);
        }
    });
    List1->setCurrentRow(0);
}

void Viewing::showEntry(int position) {
    const CourseContent& content = m_context.state.content;
    const std::string& entry = content.GlossaryEntries[position];
    m_text =
        RtfVersions::of(GlossaryDefinitionDocument(content.RtfHeader, GlossaryDefinition(entry)));
    m_term = RtfVersions::of(GlossaryTermDocument(content.RtfHeader, GlossaryTerm(entry)));
    showDocuments(false);
}

void Viewing::showDocuments(bool keepPlace) {
    const auto show = keepPlace ? &RichTextView::swapTextRtf : &RichTextView::setTextRtf;
    (RichTextBox1->*show)(m_text.forWindow(isMaximized()));
    if (m_glossary)
        (RichTextBox2->*show)(m_term.forWindow(isMaximized()));
}

void Viewing::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    if (m_glossary)
        fitGlossaryBoxes();
}

void Viewing::fitGlossaryBoxes() {
    // Both boxes grow with the window from their heights at its opening size, so that a
    // maximised glossary shows more of a long definition and term.
    const double grown = std::max(1.0, height() / static_cast<double>(GlossaryHeight));
    const int definitionHeight = 2000 / TwipsPerPixel; // whole pixels, as at the opening size
    RichTextBox1->setFixedHeight(static_cast<int>(definitionHeight * grown));
    RichTextBox2->setFixedHeight(
        static_cast<int>(RichTextBox2->fontMetrics().height() * 3 * grown));
}

void Viewing::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    // The large versions show while the window is maximised.
    if (event->type() == QEvent::WindowStateChange && RichTextBox1 != nullptr)
        showDocuments(true);
}

bool Viewing::eventFilter(QObject* watched, QEvent* event) {
    // A letter key on a letter button jumps as that letter's button would.
    if (event->type() == QEvent::KeyPress && m_glossary) {
        const QString text = static_cast<QKeyEvent*>(event)->text();
        const bool onLetterButton =
            std::find(Command3.begin(), Command3.end(), watched) != Command3.end();
        if (onLetterButton && text.size() == 1 && text.at(0).unicode() < 128 &&
            text.at(0).isLetter()) {
            const int letter = text.at(0).toUpper().unicode() - 'A';
            if (Command3[letter]->isEnabled())
                Command3_Click(letter);
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

void Viewing::Command3_Click(int index) {
    const int selected = List1->currentRow() + 1;
    const int position =
        LetterJump(LetterStart, index, LastLetter, selected, static_cast<int>(Terms.size()));
    LastLetter = index;
    if (position >= 1)
        List1->setCurrentRow(position - 1);
    Command3[index]->setFocus(Qt::OtherFocusReason);
}

void Viewing::Command1_Click(int index) {
    ScreenHost& screens = m_context.screens;
    switch (index) {
    case 0:
        PrintRichText(*RichTextBox1, m_context.services.printer);
        break;
    case 1:
        screens.showNormal(ScreenName::NoteBook);
        break;
    case 2:
        close();
        break;
    case 3:
        screens.openHelp(m_context.state,
                         m_glossary ? HelpTopic::Glossary : HelpTopic::DiscussionText,
                         HelpOpening::Comparing);
        break;
    case 4:
        FindNext();
        break;
    case 5:
        closeFindPanel();
        break;
    default:
        openFindPanel();
        break;
    }
}

} // namespace tessera
