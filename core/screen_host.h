#pragma once
// Screens know each other by name only; the application object loads, shows and unloads them.
// What one screen asks of another goes through the host as well, so that no screen includes
// another's header or looks up another's control.

#include <cstdint>

class QWidget;

namespace tessera {

struct SessionState;

enum class ScreenName {
    Pubdat,
    ButtonMenu,
    Quiz800,
    Aladdin,
    QuizSumm,
    PictForm,
    ExamSet,
    ExamTest,
    Results,
    Scoring,
    Navigator,
    Viewing,
    NoteBook,
    Help,
    Calculator,
    AlarmForm,
    Preferences,
};

// The help texts by their caller; the value is what HelpTopic holds. Topic 2 has no caller.
enum class HelpTopic : int16_t {
    InterfaceTips = 1,
    Preferences = 3,
    DiscussionText = 4,
    Quiz800 = 5,
    QuizSumm = 6,
    Glossary = 7,
    NoteBook = 8,
    About = 9,
    ExamSet = 10,
    ExamTest = 11,
    Results = 12,
    Scoring = 13,
    Navigator = 14,
    Calculator = 15,
    Aladdin = 16,
    UsersGuide = 17,
};

// Afresh unloads any open Help first; comparing keeps one already open on the same topic.
enum class HelpOpening { Afresh, Comparing };

// What other screens ask of the navigation screen; ButtonMenu implements it.
class NavigationScreen {
public:
    virtual ~NavigationScreen() = default;
    // Turns TakeCounts, TestPosition and ExamPosition into the captions and enabled states.
    virtual void RefreshNavigation() = 0;
    // Chooses the option that is no option, which hides every frame.
    virtual void ChooseNoOption() = 0;
};

// What the end of the program asks of an open notebook with unsaved changes; NoteBook
// implements it.
class SavesNoteBook {
public:
    virtual ~SavesNoteBook() = default;
    // True once the notebook is on disk; false after telling the candidate that it is not.
    virtual bool SaveNoteBook() = 0;
};

class ScreenHost {
public:
    virtual ~ScreenHost() = default;
    // Constructs the screen if it is not loaded; loading runs its Form_Load.
    virtual QWidget* load(ScreenName name) = 0;
    // Loads if needed and shows it beside the others.
    virtual QWidget* show(ScreenName name) = 0;
    // Loads if needed and shows it modally; returns when it is closed.
    virtual void showModal(ScreenName name) = 0;
    // Destroys the screen; its own fields go with it.
    virtual void unload(ScreenName name) = 0;
    // The loaded screen, or nullptr.
    virtual QWidget* find(ScreenName name) const = 0;
    // False for a screen that this build does not have; its commands stay disabled.
    virtual bool isAvailable(ScreenName name) const = 0;
    // Ends the program: every screen goes.
    virtual void endProgram() = 0;

    // The acts that screens share, built on the above.

    // Shows the screen and brings it out of a minimised or maximised state.
    QWidget* showNormal(ScreenName name);
    // Unloads the screen, then shows it anew.
    QWidget* showAfresh(ScreenName name);
    // RefreshNavigation on the navigation screen, if it is loaded.
    void refreshNavigation();
    // A test, an exam or a report card holds the navigation screen disabled while it is open.
    void setNavigationEnabled(bool enabled);
    // A screen that held the navigation screen disabled hands it back as it closes: the closing
    // screen out of a minimised state, the navigation screen enabled and brought back if it is
    // minimised.
    void handBackNavigation(QWidget& closing);
    // Sets the navigation screen's window state to normal.
    void showNavigationNormal();
    // The navigation screen's option that is no option, as if the user had chosen it.
    void chooseNoNavigationOption();
    // Sets HelpTopic and shows Help non-modally in its normal window state.
    void openHelp(SessionState& state, HelpTopic topic, HelpOpening opening = HelpOpening::Afresh);
    // The same for a caller that is itself modal: Help comes up modal to be usable.
    void openHelpModal(SessionState& state, HelpTopic topic,
                       HelpOpening opening = HelpOpening::Afresh);

private:
    void prepareHelp(SessionState& state, HelpTopic topic, HelpOpening opening);
};

} // namespace tessera
