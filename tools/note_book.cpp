#include "tools/note_book.h"

#include "core/screen_context.h"
#include "core/session_state.h"
#include "platform/control_names.h"
#include "platform/dialogs.h"
#include "platform/print_rich_text.h"
#include "platform/rich_text_view.h"
#include "platform/twips.h"
#include "tools/notebook_search.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QStyle>
#include <QTextDocument>
#include <QVBoxLayout>
#include <algorithm>

namespace tessera {
namespace {

constexpr const char* NoteBookNotSavedTitle = "Notebook Not Saved";
constexpr const char* NoteBookNotSavedMessage =
    "Your notebook could not be written to TesseraNoteBook.RTF. Make sure the study folder can "
    "be written to and has room, then save your notes again.";

QString FileName(const SessionState& state) {
    return QString::fromStdString(state.catalogue.NoteBookFileName);
}

} // namespace

NoteBook::NoteBook(ScreenContext& context) : m_context(context) {
    setObjectName(QStringLiteral("NoteBook"));
    setWindowTitle(QStringLiteral("Your Notebook"));
    buildControls();
    SessionState& state = m_context.state;
    // A missing notebook leaves an empty page to write on.
    RichTextBox1->loadFile(FileName(state));
    if (state.PrinterProblem)
        Command1[1]->setEnabled(false);
    RichTextBox1->setSelStart(state.CursorPosition);
    state.NoteBookChanged = false;
    // Every edit changes the text, whether typed, pasted, cut, undone or dropped with the mouse.
    connect(RichTextBox1->document(), &QTextDocument::contentsChange, this,
            [this](int, int removed, int added) {
                if (removed != 0 || added != 0)
                    m_context.state.NoteBookChanged = true;
            });
    resize(620, 480);
}

void NoteBook::buildControls() {
    RichTextBox1 = new RichTextView;
    NameControl(RichTextBox1, QStringLiteral("RichTextBox1"), QStringLiteral("Your notes"));
    RichTextBox1->installEventFilter(this);

    const std::array<const char*, 4> captions = {"&Find", "&Print", "&Done", "&Help"};
    auto* commands = new QHBoxLayout;
    for (int i = 0; i < 4; ++i) {
        Command1[i] = MakeCommand("Command1", i, QString::fromLatin1(captions[i]));
        connect(Command1[i], &QPushButton::clicked, this, [this, i] { Command1_Click(i); });
        commands->addWidget(Command1[i]);
        if (i == 1)
            commands->addStretch(1);
    }
    Command1[3]->setEnabled(m_context.screens.isAvailable(ScreenName::Help));

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(RichTextBox1, 1);
    layout->addWidget(buildFindPanel());
    layout->addLayout(commands);
}

QGroupBox* NoteBook::buildFindPanel() {
    Frame1 = new QGroupBox(QStringLiteral("Find What?"));
    NameControl(Frame1, QStringLiteral("Frame1"), QStringLiteral("Find What?"));
    Text1 = new QLineEdit;
    NameControl(Text1, QStringLiteral("Text1_1"), QStringLiteral("Find what"));
    Check1 = new QCheckBox(QStringLiteral("&Match Case"));
    NameControl(Check1, QStringLiteral("Check1"), QStringLiteral("Match Case"));
    auto* row = new QHBoxLayout(Frame1);
    row->addWidget(Text1, 1);
    row->addWidget(Check1);
    const std::array<const char*, 2> captions = {"&Find Next", "&Cancel"};
    for (int i = 0; i < 2; ++i) {
        Command2[i] = MakeCommand("Command2", i, QString::fromLatin1(captions[i]));
        row->addWidget(Command2[i]);
    }
    connect(Command2[0], &QPushButton::clicked, this, [this] { FindNext(); });
    connect(Command2[1], &QPushButton::clicked, this, [this] { closeFindPanel(); });
    // Enter in the box finds, as "&Find Next" would.
    connect(Text1, &QLineEdit::returnPressed, this, [this] {
        if (Command2[0]->isEnabled())
            Command2[0]->click();
    });
    connect(Text1, &QLineEdit::textChanged, this,
            [this](const QString& text) { Command2[0]->setEnabled(!text.isEmpty()); });
    Frame1->hide();
    return Frame1;
}

bool NoteBook::SaveNoteBook() {
    if (RichTextBox1->saveFile(FileName(m_context.state)))
        return true;
    m_context.services.dialogs.message(QString::fromLatin1(NoteBookNotSavedMessage),
                                       QString::fromLatin1(NoteBookNotSavedTitle),
                                       MessageIcon::Critical, MessageButtons::Ok);
    return false;
}

void NoteBook::Command1_Click(int index) {
    switch (index) {
    case 0:
        Frame1->show();
        for (int i = 0; i <= 2; ++i)
            Command1[i]->setEnabled(false);
        Command2[0]->setEnabled(!Text1->text().isEmpty());
        Text1->setFocus(Qt::OtherFocusReason);
        Text1->selectAll();
        break;
    case 1:
        PrintRichText(*RichTextBox1, m_context.services.printer);
        break;
    case 2:
        close();
        break;
    default:
        m_context.screens.openHelp(m_context.state, HelpTopic::NoteBook);
        break;
    }
}

void NoteBook::closeFindPanel() {
    Frame1->hide();
    Command1[0]->setEnabled(true);
    Command1[1]->setEnabled(!m_context.state.PrinterProblem);
    Command1[2]->setEnabled(true);
}

void NoteBook::FindNext() {
    const QString what = Text1->text();
    LastFound = NoteBookFindNext(RichTextBox1->text(), what, Check1->isChecked(), LastFound);
    if (LastFound != 0) {
        RichTextBox1->setSelStart(LastFound - 1);
        RichTextBox1->setSelLength(static_cast<int>(what.size()));
        RichTextBox1->setFocus(Qt::OtherFocusReason);
        return;
    }
    m_context.services.dialogs.message(what + QStringLiteral(" not found."),
                                       QStringLiteral("Sorry!"), MessageIcon::Question,
                                       MessageButtons::Ok);
    Text1->setFocus(Qt::OtherFocusReason);
}

bool NoteBook::eventFilter(QObject* watched, QEvent* event) {
    if (watched == RichTextBox1) {
        if (event->type() == QEvent::Resize) {
            // The lines end at 0.95 of the window's width, never past the view's own edge.
            const int inside = RichTextBox1->width() - 2 * RichTextBox1->frameWidth() -
                               style()->pixelMetric(QStyle::PM_ScrollBarExtent);
            const int pixels = std::min(static_cast<int>(0.95 * width()), inside);
            RichTextBox1->setRightMargin(std::max(pixels, 1) * TwipsPerPixel);
        }
    }
    return QWidget::eventFilter(watched, event);
}

void NoteBook::closeEvent(QCloseEvent* event) {
    SessionState& state = m_context.state;
    if (state.NoteBookChanged) {
        const MessageAnswer answer = m_context.services.dialogs.message(
            QStringLiteral("Save your changes to disk?"), QStringLiteral("Change Detected!"),
            MessageIcon::None, MessageButtons::YesNo);
        // A notebook that could not be saved stays open with its changes.
        if (answer == MessageAnswer::Yes && !SaveNoteBook()) {
            event->ignore();
            return;
        }
    }
    state.NoteBookChanged = false;
    state.CursorPosition = RichTextBox1->selStart();
    setWindowState(Qt::WindowNoState);
    event->accept();
}

} // namespace tessera
