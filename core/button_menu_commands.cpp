// What the navigation screen does: the options, the commands, RefreshNavigation and the end.

#include "core/button_menu.h"

#include "core/navigation.h"
#include "platform/dialogs.h"
#include "platform/windows1252.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QCloseEvent>
#include <QGroupBox>
#include <QKeyEvent>
#include <QPushButton>
#include <QRadioButton>

#include <filesystem>

namespace tessera {

namespace {

constexpr int GlossarySection = 8;

} // namespace

void ButtonMenu::applyCaption(QAbstractButton* button, const CaptionState& state, bool available) {
    button->setText(fromWindows1252(state.caption));
    button->setEnabled(state.enabled && available);
}

void ButtonMenu::RefreshNavigation() {
    const SessionState& state = m_context.state;
    const ScreenHost& screens = m_context.screens;
    const NavigationView view = ComputeNavigation(state);

    // With a test suspended the option opens it; otherwise it opens the frame of topics.
    applyCaption(Option1[0], view.reviewOption,
                 state.TestPosition == 0 || screens.isAvailable(ScreenName::Quiz800));
    applyCaption(
        Option1[1], view.examOption,
        screens.isAvailable(state.ExamPosition == 0 ? ScreenName::ExamSet : ScreenName::ExamTest));
    if (view.topics) {
        const bool quiz = screens.isAvailable(ScreenName::Quiz800);
        for (int i = 0; i < TopicCount; ++i)
            applyCaption(Command1[i], (*view.topics)[i], quiz);
    }
    Command2[0]->setEnabled(view.reviewCardEnabled && screens.isAvailable(ScreenName::QuizSumm));
    Command2[1]->setEnabled(view.examCardEnabled && screens.isAvailable(ScreenName::Scoring));
}

void ButtonMenu::disableMissingScreens() {
    const ScreenHost& screens = m_context.screens;
    Command2[2]->setEnabled(screens.isAvailable(ScreenName::Navigator));
    const std::array<ScreenName, 5> tools = {ScreenName::Viewing, ScreenName::NoteBook,
                                             ScreenName::Calculator, ScreenName::AlarmForm,
                                             ScreenName::Preferences};
    for (size_t i = 0; i < tools.size(); ++i)
        Command3[i]->setEnabled(screens.isAvailable(tools[i]));
    for (QPushButton* button : Command4)
        button->setEnabled(screens.isAvailable(ScreenName::Viewing));
    for (QPushButton* button : Command5)
        button->setEnabled(screens.isAvailable(ScreenName::Help));
}

void ButtonMenu::showFrame(int index) {
    for (int i = 0; i < static_cast<int>(Frame1.size()); ++i)
        Frame1[i]->setVisible(i == index);
    m_welcome->setVisible(index == NoFrame);
}

void ButtonMenu::selectNoOption() {
    Option1[ScrapOption]->setChecked(true);
}

void ButtonMenu::Option1_Click(int index) {
    const SessionState& state = m_context.state;
    switch (index) {
    case 0:
        if (state.TestPosition != 0) {
            showFrame(NoFrame);
            m_context.screens.show(ScreenName::Quiz800);
            selectNoOption();
        } else {
            showFrame(0);
        }
        break;
    case 1:
        showFrame(NoFrame);
        m_context.screens.show(state.ExamPosition == 0 ? ScreenName::ExamSet
                                                       : ScreenName::ExamTest);
        selectNoOption();
        break;
    case ScrapOption:
        showFrame(NoFrame);
        break;
    default:
        showFrame(index - 1);
        break;
    }
}

void ButtonMenu::Command1_Click(int index) {
    m_context.state.CurrentTopic = static_cast<int16_t>(index + 1);
    m_context.screens.show(ScreenName::Quiz800);
    selectNoOption();
}

void ButtonMenu::Command2_Click(int index) {
    switch (index) {
    case 0:
        openAfresh(ScreenName::QuizSumm);
        break;
    case 1:
        openAfresh(ScreenName::Scoring);
        break;
    default:
        m_context.screens.showModal(ScreenName::Navigator);
        break;
    }
}

void ButtonMenu::Command3_Click(int index) {
    switch (index) {
    case 0:
        openViewer(GlossarySection);
        break;
    case 1:
        showNormal(ScreenName::NoteBook);
        break;
    case 2:
        showNormal(ScreenName::Calculator);
        break;
    case 3:
        showNormal(ScreenName::AlarmForm);
        break;
    default:
        m_context.screens.showModal(ScreenName::Preferences);
        break;
    }
}

void ButtonMenu::Command4_Click(int index) {
    openViewer(index + 1);
}

void ButtonMenu::Command5_Click(int index) {
    static constexpr std::array<HelpTopic, 3> topics = {HelpTopic::About, HelpTopic::InterfaceTips,
                                                        HelpTopic::UsersGuide};
    m_context.screens.openHelp(m_context.state, topics[static_cast<size_t>(index)]);
}

void ButtonMenu::openViewer(int section) {
    ScreenHost& screens = m_context.screens;
    // The viewer reads its section as it loads; one open on another section goes first.
    if (screens.find(ScreenName::Viewing) != nullptr && m_context.state.ViewerSection != section)
        screens.unload(ScreenName::Viewing);
    m_context.state.ViewerSection = static_cast<int16_t>(section);
    showNormal(ScreenName::Viewing);
}

void ButtonMenu::openAfresh(ScreenName name) {
    m_context.screens.unload(name);
    m_context.screens.show(name);
}

void ButtonMenu::showNormal(ScreenName name) {
    if (QWidget* screen = m_context.screens.show(name))
        screen->setWindowState(screen->windowState() &
                               ~(Qt::WindowMinimized | Qt::WindowMaximized));
}

void ButtonMenu::keyPressEvent(QKeyEvent* event) {
    // Escape steps back out of a frame to the options.
    if (event->key() == Qt::Key_Escape) {
        selectNoOption();
        for (QRadioButton* option : Option1) {
            if (option->isEnabled() && option->isVisibleTo(this)) {
                option->setFocus(Qt::ShortcutFocusReason);
                break;
            }
        }
        return;
    }
    QWidget::keyPressEvent(event);
}

void ButtonMenu::closeEvent(QCloseEvent* event) {
    // While a test or exam runs this screen is disabled, and the program can't end under it.
    if (!isEnabled()) {
        event->ignore();
        return;
    }
    SessionState& state = m_context.state;
    if (state.NoteBookChanged) {
        const MessageAnswer answer =
            m_context.services.dialogs.message(QStringLiteral("Save your changes to disk?"),
                                               QStringLiteral("Change to NoteBook Detected!"),
                                               MessageIcon::None, MessageButtons::YesNo);
        auto* notebook = dynamic_cast<SavesNoteBook*>(m_context.screens.find(ScreenName::NoteBook));
        // Notes that could not be saved keep the program open.
        if (answer == MessageAnswer::Yes && notebook != nullptr && !notebook->SaveNoteBook()) {
            event->ignore();
            return;
        }
    }
    std::error_code ignored;
    std::filesystem::remove(state.catalogue.RunningMarkerName, ignored);
    event->accept();
    m_context.screens.endProgram();
}

} // namespace tessera
