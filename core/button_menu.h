#pragma once
// ButtonMenu, the "Navigation Screen": the home of the program, from which every screen opens.
// Closing it ends the program.

#include "core/screen_context.h"

#include <QWidget>

#include <array>

class QAbstractButton;
class QButtonGroup;
class QGroupBox;
class QLabel;
class QPushButton;
class QRadioButton;

namespace tessera {

struct CaptionState;

class ButtonMenu final : public QWidget, public NavigationScreen {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ButtonMenu)

public:
    explicit ButtonMenu(ScreenContext& context);

    // Turns TakeCounts, TestPosition and ExamPosition into the captions and enabled states.
    void RefreshNavigation() override;
    void ChooseNoOption() override;

protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    static constexpr int ScrapOption = 6; // Option1(6), the option that is no option
    static constexpr int NoFrame = -1;

    void buildControls();
    QGroupBox* makeFrame(int index, const char* caption);
    QPushButton* makeCommand(QGroupBox* frame, const char* array, int index,
                             const QString& caption);
    void applyCaption(QAbstractButton* button, const CaptionState& state, bool available);

    void Option1_Click(int index);
    void Command1_Click(int index);
    void Command2_Click(int index);
    void Command3_Click(int index);
    void Command4_Click(int index);
    void Command5_Click(int index);

    void showFrame(int index);
    void openViewer(int section);
    void openAfresh(ScreenName name);
    void showNormal(ScreenName name);
    void selectNoOption();
    void disableMissingScreens();

    ScreenContext& m_context;
    QButtonGroup* m_options = nullptr;
    QWidget* m_welcome = nullptr;
    std::array<QRadioButton*, 7> Option1{};
    std::array<QGroupBox*, 5> Frame1{};
    std::array<QPushButton*, 9> Command1{};
    std::array<QPushButton*, 3> Command2{};
    std::array<QPushButton*, 5> Command3{};
    std::array<QPushButton*, 7> Command4{};
    std::array<QPushButton*, 3> Command5{};
};

// Shows the message about a too small display; false when the program must end.
bool CheckDisplaySize(Dialogs& dialogs, int width, int height);

} // namespace tessera
