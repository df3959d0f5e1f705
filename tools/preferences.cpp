#include "tools/preferences.h"

#include "core/progress_file.h"
#include "platform/dialogs.h"
#include "tools/desk_pictures.h"
#include "tools/numeric_text.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

namespace tessera {

ReviewOptions CurrentReviewOptions(const SessionState& state) {
    return {state.ScrambleQuestions, state.SoundOn, state.TimerActive, state.IncludeProgressReport,
            state.PassingGrade};
}

void ApplyReviewOptions(SessionState& state, const ReviewOptions& options) {
    state.ScrambleQuestions = options.ScrambleQuestions;
    state.SoundOn = options.SoundOn;
    state.TimerActive = options.TimerActive;
    state.IncludeProgressReport = options.IncludeProgressReport;
    state.PassingGrade = options.PassingGrade;
}

QString GradeTextLimit(const QString& text) {
    const double value = NumericValue(text.toStdString());
    if (value > 100)
        return QStringLiteral("100");
    if (value < 0)
        return QStringLiteral("0");
    return {};
}

int GradeFromText(const QString& text) {
    // The box never holds more than 100, but a grade must fit its byte whatever it holds.
    const double value = std::nearbyint(NumericValue(text.toStdString()));
    return static_cast<int>(std::clamp(value, 0.0, 100.0));
}

namespace {

QLabel* pictureBeside(QCheckBox* box, const char* name, DeskPicture picture, QWidget* parent) {
    auto* label = new QLabel(parent);
    label->setObjectName(QString::fromLatin1(name));
    label->setPixmap(DrawDeskPicture(picture, 32));
    label->setAccessibleName(box->text() + QStringLiteral(", picture"));
    // Hiding the picture must not move the boxes.
    QSizePolicy policy = label->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    label->setSizePolicy(policy);
    QObject::connect(box, &QCheckBox::toggled, label, &QLabel::setVisible);
    return label;
}

} // namespace

Preferences::Preferences(ScreenContext& context, QWidget* parent)
    : QDialog(parent), m_context(context) {
    buildControls();
    // Form_Load: setting the boxes counts as clicking them, so nothing is pending after it.
    const ReviewOptions options = CurrentReviewOptions(m_context.state);
    Check1->setChecked(options.ScrambleQuestions);
    Check2->setChecked(options.SoundOn);
    Check3->setChecked(options.TimerActive);
    Check5->setChecked(options.IncludeProgressReport);
    Picture1->setVisible(options.ScrambleQuestions);
    Picture2->setVisible(options.SoundOn);
    Picture3->setVisible(options.TimerActive);
    showGrade(options.IncludeProgressReport);
    Text1->setText(QString::number(options.PassingGrade));
    m_changesPending = false;
}

void Preferences::buildControls() {
    setObjectName(QStringLiteral("Preferences"));
    setWindowTitle(QStringLiteral("Review Test Options"));
    setModal(true);

    auto* options = new QGridLayout;
    options->setHorizontalSpacing(16);
    const struct {
        QCheckBox** box;
        const char* name;
        const char* caption;
        QLabel** picture;
        const char* pictureName;
        DeskPicture drawn;
    } rows[] = {
        {&Check1, "Check1", "Scramble Order of Questions", &Picture1, "Picture1",
         DeskPicture::Shuffle},
        {&Check2, "Check2", "Sound On", &Picture2, "Picture2", DeskPicture::Speaker},
        {&Check3, "Check3", "Activate Timer During Questioning", &Picture3, "Picture3",
         DeskPicture::Stopwatch},
        {&Check5, "Check5", "Include Progress Report", &Picture5, "Picture5",
         DeskPicture::ReportCard},
    };
    int row = 0;
    for (const auto& entry : rows) {
        auto* box = new QCheckBox(QString::fromLatin1(entry.caption), this);
        box->setObjectName(QString::fromLatin1(entry.name));
        connect(box, &QCheckBox::clicked, this, [this] { m_changesPending = true; });
        *entry.box = box;
        *entry.picture = pictureBeside(box, entry.pictureName, entry.drawn, this);
        options->addWidget(*entry.picture, row, 0);
        options->addWidget(box, row, 1);
        ++row;
    }
    connect(Check5, &QCheckBox::toggled, this, &Preferences::showGrade);

    Label2[0] = new QLabel(QStringLiteral("Passing Grade: It is recommended that you set this "
                                          "higher than your licensing exam requirements."),
                           this);
    Label2[0]->setObjectName(QStringLiteral("Label2_0"));
    Label2[0]->setWordWrap(true);
    Text1 = new QLineEdit(this);
    Text1->setObjectName(QStringLiteral("Text1"));
    Text1->setAccessibleName(QStringLiteral("Passing Grade"));
    Text1->setAlignment(Qt::AlignRight);
    Text1->setMaximumWidth(Text1->fontMetrics().horizontalAdvance(QStringLiteral("00000")) + 16);
    Label2[0]->setBuddy(Text1);
    Label2[1] = new QLabel(QStringLiteral("%"), this);
    Label2[1]->setObjectName(QStringLiteral("Label2_1"));
    connect(Text1, &QLineEdit::textEdited, this, [this] { m_changesPending = true; });
    connect(Text1, &QLineEdit::textChanged, this, [this](const QString& text) {
        const QString limited = GradeTextLimit(text);
        if (!limited.isEmpty())
            Text1->setText(limited);
    });
    auto* grade = new QHBoxLayout;
    grade->addWidget(Label2[0], 1);
    grade->addWidget(Text1);
    grade->addWidget(Label2[1]);
    options->addLayout(grade, row, 1);

    Command1 = new QPushButton(QStringLiteral("&Save"), this);
    Command2 = new QPushButton(QStringLiteral("&Cancel"), this);
    Command3 = new QPushButton(QStringLiteral("&Help"), this);
    Command1->setObjectName(QStringLiteral("Command1"));
    Command2->setObjectName(QStringLiteral("Command2"));
    Command3->setObjectName(QStringLiteral("Command3"));
    Command1->setDefault(true);
    Command3->setEnabled(m_context.screens.isAvailable(ScreenName::Help));
    connect(Command1, &QPushButton::clicked, this, &Preferences::Command1_Click);
    connect(Command2, &QPushButton::clicked, this, &Preferences::Command2_Click);
    connect(Command3, &QPushButton::clicked, this, &Preferences::Command3_Click);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    for (QPushButton* button : {Command1, Command2, Command3})
        buttons->addWidget(button);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(options);
    layout->addSpacing(8);
    layout->addLayout(buttons);
    setMinimumWidth(440);
}

void Preferences::showGrade(bool visible) {
    Picture5->setVisible(visible);
    Text1->setVisible(visible);
    Label2[0]->setVisible(visible);
    Label2[1]->setVisible(visible);
}

ReviewOptions Preferences::chosenOptions() const {
    return {Check1->isChecked(), Check2->isChecked(), Check3->isChecked(), Check5->isChecked(),
            GradeFromText(Text1->text())};
}

void Preferences::SavePreferences() {
    if (!tessera::SavePreferences(m_context.state))
        m_context.services.dialogs.message(
            QStringLiteral("Your preferences could not be written to TesseraConfig.MS. They hold "
                           "until you quit; make sure the study folder can be written to, then "
                           "save them again."),
            QStringLiteral("Preferences Not Saved"), MessageIcon::Critical, MessageButtons::Ok);
    m_changesPending = false;
}

void Preferences::Command1_Click() {
    ApplyReviewOptions(m_context.state, chosenOptions());
    SavePreferences();
    close();
}

void Preferences::Command2_Click() {
    close();
}

void Preferences::Command3_Click() {
    // This dialog holds the others back, so help must come up modal to be usable.
    m_context.screens.openHelpModal(m_context.state, HelpTopic::Preferences);
}

void Preferences::closeEvent(QCloseEvent* event) {
    if (m_changesPending && m_context.services.dialogs.message(
                                QStringLiteral("Save your preference changes?"),
                                QStringLiteral("Change in Preferences Detected!"),
                                MessageIcon::None, MessageButtons::YesNo) == MessageAnswer::Yes) {
        ApplyReviewOptions(m_context.state, chosenOptions());
        SavePreferences();
    }
    m_changesPending = false;
    event->accept();
}

// Escape closes as Cancel does.
void Preferences::reject() {
    close();
}

} // namespace tessera
