#include "review/aladdin.h"

#include "platform/control_names.h"
#include "review/review_text.h"

#include <QButtonGroup>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace tessera {

namespace {
const std::array<const char*, 3> WishCaptions = {"Make it 50:50", "Free Response (no penalty)",
                                                 "Show Expert Advise"};
const std::array<const char*, 3> CommandCaptions = {"OK", "Cancel", "Help"};
} // namespace

Aladdin::Aladdin(SessionState& state, ScreenHost& screens, int enabledAnswers, QWidget* parent)
    : QDialog(parent), m_state(state), m_screens(screens) {
    setObjectName(QStringLiteral("Aladdin"));
    setWindowTitle(QStringLiteral("Aladdin"));
    setModal(true);

    auto* frame = new QGroupBox(QStringLiteral("Wishes at Your Command"), this);
    frame->setObjectName(QStringLiteral("Frame1"));
    auto* grid = new QGridLayout(frame);
    grid->setHorizontalSpacing(24);
    auto* heading = new QLabel(QStringLiteral("Number Remaining"), frame);
    heading->setObjectName(QStringLiteral("Label1"));
    grid->addWidget(heading, 0, 1, Qt::AlignCenter);

    // None is selected when the dialog opens.
    auto* group = new QButtonGroup(this);
    for (int i = 0; i < 3; ++i) {
        const QString caption = QString::fromLatin1(WishCaptions[static_cast<size_t>(i)]);
        auto* option = new QRadioButton(caption, frame);
        option->setObjectName(QStringLiteral("Option1_%1").arg(i));
        group->addButton(option, i);
        Option1[static_cast<size_t>(i)] = option;
        auto* left = new QLabel(frame);
        left->setObjectName(QStringLiteral("Label2_%1").arg(i));
        left->setAlignment(Qt::AlignCenter);
        DescribeControl(left, caption + QStringLiteral(", number remaining"));
        Label2[static_cast<size_t>(i)] = left;
        grid->addWidget(option, i + 1, 0);
        grid->addWidget(left, i + 1, 1);
    }

    auto* buttons = new QDialogButtonBox(Qt::Horizontal, this);
    for (int i = 0; i < 3; ++i) {
        auto* button =
            new QPushButton(QString::fromLatin1(CommandCaptions[static_cast<size_t>(i)]));
        button->setObjectName(QStringLiteral("Command1_%1").arg(i));
        button->setAutoDefault(false);
        buttons->addButton(button, i == 0   ? QDialogButtonBox::AcceptRole
                                   : i == 1 ? QDialogButtonBox::RejectRole
                                            : QDialogButtonBox::HelpRole);
        connect(button, &QPushButton::clicked, this, [this, i] { Command1_Click(i); });
        Command1[static_cast<size_t>(i)] = button;
    }
    Command1[0]->setDefault(true);
    Command1[2]->setEnabled(m_screens.isAvailable(ScreenName::Help));

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(frame);
    layout->addWidget(buttons);

    // Form_Load: a free guess not used yet is dropped here.
    m_state.ActiveWish = 0;
    for (int i = 1; i <= 3; ++i) {
        Label2[static_cast<size_t>(i - 1)]->setText(
            QString::fromStdString(NumberForm(m_state.WishesLeft[i])));
        if (m_state.WishesLeft[i] == 0)
            Option1[static_cast<size_t>(i - 1)]->setEnabled(false);
    }
    // With two answers left the item already is a coin toss.
    if (enabledAnswers < 3)
        Option1[0]->setEnabled(false);
}

void Aladdin::Command1_Click(int index) {
    switch (index) {
    case 0:
        for (int i = 1; i <= 3; ++i) {
            if (Option1[static_cast<size_t>(i - 1)]->isChecked()) {
                m_state.ActiveWish = static_cast<int16_t>(i);
                --m_state.WishesLeft[i];
            }
        }
        accept();
        break;
    case 1:
        QDialog::reject();
        break;
    default:
        m_screens.openHelpModal(m_state, HelpTopic::Aladdin);
        break;
    }
}

// Closing the window is a Cancel.
void Aladdin::reject() {
    Command1_Click(1);
}

} // namespace tessera
