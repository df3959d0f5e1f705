#include "core/button_menu.h"

#include "core/navigation.h"
#include "core/screen_text.h"
#include "core/start_up.h"
#include "platform/dialogs.h"
#include "platform/windows1252.h"

#include <QButtonGroup>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QVBoxLayout>

namespace tessera {

namespace {

void scaleFont(QWidget* widget, double factor, bool bold) {
    QFont font = widget->font();
    font.setPointSizeF(font.pointSizeF() * factor);
    font.setBold(bold);
    widget->setFont(font);
}

} // namespace

bool CheckDisplaySize(Dialogs& dialogs, int width, int height) {
    if (DisplayLargeEnough(width, height))
        return true;
    dialogs.message(
        QStringLiteral(
            "Please set your display at a resolution of 800 by 600 (Super VGA) or higher. "
            "A minimum resolution of 800 by 600 is required to properly use the Review "
            "Software. To raise the setting, use My Computer, followed by Display."),
        QStringLiteral("Higher Display Resolution Required!"), MessageIcon::Critical,
        MessageButtons::Ok);
    return false;
}

void ButtonMenu::ChooseNoOption() {
    Option1[ScrapOption]->click();
}

ButtonMenu::ButtonMenu(ScreenContext& context) : m_context(context) {
    setObjectName(QStringLiteral("ButtonMenu"));
    setWindowTitle(QStringLiteral("Navigation Screen"));
    buildControls();

    const QSize display = screen()->size();
    if (!CheckDisplaySize(m_context.services.dialogs, display.width(), display.height())) {
        // The marker stays, so that the next start shows the warning.
        m_context.screens.endProgram();
        return;
    }
    RefreshNavigation();
}

void ButtonMenu::buildControls() {
    const CourseCatalogue& catalogue = m_context.state.catalogue;
    auto* root = new QVBoxLayout(this);
    root->setContentsMargins(18, 14, 18, 18);
    root->setSpacing(12);

    auto* heading = new QHBoxLayout;
    auto* title = new QLabel(windowTitle(), this);
    scaleFont(title, 1.5, true);
    auto* name = new QLabel(ShownUserName(m_context.state.UserName), this);
    name->setObjectName(QStringLiteral("UserNameLabel"));
    scaleFont(name, 1.1, false);
    heading->addWidget(title);
    heading->addStretch();
    heading->addWidget(name);
    root->addLayout(heading);

    auto* line = new QFrame(this);
    line->setObjectName(QStringLiteral("Line1"));
    line->setFrameShape(QFrame::HLine);
    line->setFrameShadow(QFrame::Sunken);
    root->addWidget(line);

    auto* body = new QHBoxLayout;
    body->setSpacing(18);
    root->addLayout(body, 1);

    auto* options = new QFrame(this);
    options->setFrameShape(QFrame::StyledPanel);
    auto* optionColumn = new QVBoxLayout(options);
    optionColumn->setContentsMargins(14, 14, 14, 14);
    optionColumn->setSpacing(14);
    body->addWidget(options);

    m_options = new QButtonGroup(this);
    const std::array<const char*, 6> optionCaptions = {
        "&Topic Review Test",         "&Screening Exam",
        "Report &Cards and Progress", "Tools and &Options",
        "&Discussion and Guidelines", "General &Help"};
    for (int i = 0; i < 6; ++i) {
        Option1[i] = new QRadioButton(QString::fromLatin1(optionCaptions[i]), options);
        optionColumn->addWidget(Option1[i]);
    }
    optionColumn->addStretch();

    // Scrap sits apart, never seen: selecting it leaves the six real options unselected.
    auto* picture1 = new QWidget(this);
    picture1->setObjectName(QStringLiteral("Picture1"));
    picture1->hide();
    Option1[ScrapOption] = new QRadioButton(QStringLiteral("Scrap"), picture1);
    for (int i = 0; i <= ScrapOption; ++i) {
        Option1[i]->setObjectName(QStringLiteral("Option1_%1").arg(i));
        m_options->addButton(Option1[i], i);
    }
    Option1[ScrapOption]->setChecked(true);
    connect(m_options, &QButtonGroup::idToggled, this, [this](int id, bool checked) {
        if (checked)
            Option1_Click(id);
    });

    auto* frames = new QVBoxLayout;
    body->addLayout(frames, 1);
    m_welcome = new QFrame(this);
    auto* welcomeColumn = new QVBoxLayout(m_welcome);
    welcomeColumn->addStretch();
    for (const std::string* text :
         {&catalogue.FirstTitleLine, &catalogue.SecondTitleLine, &catalogue.EditionLine}) {
        auto* label = new QLabel(fromWindows1252(*text), m_welcome);
        label->setAlignment(Qt::AlignCenter);
        label->setForegroundRole(QPalette::PlaceholderText);
        scaleFont(label, 1.2, text == &catalogue.FirstTitleLine);
        welcomeColumn->addWidget(label);
    }
    welcomeColumn->addStretch();
    frames->addWidget(m_welcome);

    Frame1[0] = makeFrame(0, "Reviews");
    for (int i = 0; i < 9; ++i) {
        Command1[i] =
            makeCommand(Frame1[0], "Command1", i, fromWindows1252(catalogue.TopicTitles[i + 1]));
        connect(Command1[i], &QPushButton::clicked, this, [this, i] { Command1_Click(i); });
    }
    Frame1[1] = makeFrame(1, "Report Cards and Progress");
    const std::array<const char*, 3> cards = {"&Topic Review Tests", "&Screening Exams",
                                              "&Monitor Spreadsheet"};
    for (int i = 0; i < 3; ++i) {
        Command2[i] = makeCommand(Frame1[1], "Command2", i, QString::fromLatin1(cards[i]));
        connect(Command2[i], &QPushButton::clicked, this, [this, i] { Command2_Click(i); });
    }
    Frame1[2] = makeFrame(2, "Tools and Options");
    const std::array<const char*, 5> tools = {"&Glossary of Key Terms", "N&otebook", "C&alculator",
                                              "&Alarm Clock", "Review Test &Options"};
    for (int i = 0; i < 5; ++i) {
        Command3[i] = makeCommand(Frame1[2], "Command3", i, QString::fromLatin1(tools[i]));
        connect(Command3[i], &QPushButton::clicked, this, [this, i] { Command3_Click(i); });
    }
    Frame1[3] = makeFrame(3, "Discussion and Guidelines");
    for (int i = 0; i < 7; ++i) {
        Command4[i] = makeCommand(Frame1[3], "Command4", i,
                                  fromWindows1252(catalogue.TextSectionCaptions[i + 1]));
        connect(Command4[i], &QPushButton::clicked, this, [this, i] { Command4_Click(i); });
    }
    Frame1[4] = makeFrame(4, "General Help");
    const std::array<const char*, 3> help = {"&About This Review Software", "User &Interface Tips",
                                             "User's &Guide"};
    for (int i = 0; i < 3; ++i) {
        Command5[i] = makeCommand(Frame1[4], "Command5", i, QString::fromLatin1(help[i]));
        connect(Command5[i], &QPushButton::clicked, this, [this, i] { Command5_Click(i); });
    }
    for (QGroupBox* frame : Frame1) {
        qobject_cast<QVBoxLayout*>(frame->layout())->addStretch();
        frames->addWidget(frame);
    }
    showFrame(NoFrame);
    disableMissingScreens();
    resize(760, 540);
}

QGroupBox* ButtonMenu::makeFrame(int index, const char* caption) {
    auto* frame = new QGroupBox(QString::fromLatin1(caption), this);
    frame->setObjectName(QStringLiteral("Frame1_%1").arg(index));
    scaleFont(frame, 1.1, true);
    auto* column = new QVBoxLayout(frame);
    column->setContentsMargins(14, 12, 14, 12);
    column->setSpacing(8);
    return frame;
}

QPushButton* ButtonMenu::makeCommand(QGroupBox* frame, const char* array, int index,
                                     const QString& caption) {
    auto* button = new QPushButton(caption, frame);
    button->setObjectName(QStringLiteral("%1_%2").arg(QLatin1String(array)).arg(index));
    // The frame's title is bold; its buttons are not.
    QFont plain = frame->font();
    plain.setBold(false);
    button->setFont(plain);
    button->setAutoDefault(true); // Enter presses the button that has the focus
    button->setMinimumHeight(button->sizeHint().height() + 6);
    frame->layout()->addWidget(button);
    return button;
}

} // namespace tessera
