#pragma once
// Aladdin, the wishes dialog: the user spends one wish, and Quiz800 carries it out.

#include "core/screen_host.h"
#include "core/session_state.h"

#include <QDialog>

#include <array>

class QLabel;
class QPushButton;
class QRadioButton;

namespace tessera {

class Aladdin final : public QDialog {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(Aladdin)

public:
    // enabledAnswers: how many of Quiz800's answer buttons are enabled. Opening drops an
    // armed free guess.
    Aladdin(SessionState& state, ScreenHost& screens, int enabledAnswers, QWidget* parent);

    // OK takes the selected wish, Cancel none, Help opens help topic 16.
    void Command1_Click(int index);

    std::array<QRadioButton*, 3> Option1{};
    std::array<QLabel*, 3> Label2{};
    std::array<QPushButton*, 3> Command1{};

protected:
    void reject() override;

private:
    SessionState& m_state;
    ScreenHost& m_screens;
};

} // namespace tessera
