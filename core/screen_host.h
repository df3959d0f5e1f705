#pragma once
// Screens know each other by name only; the application object loads, shows and unloads them.

class QWidget;

namespace tessera {

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
};

} // namespace tessera
