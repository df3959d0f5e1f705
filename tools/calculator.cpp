#include "tools/calculator.h"

#include "platform/control_names.h"
#include "platform/dialogs.h"

#include <QEvent>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>

namespace tessera {

namespace {

const std::array<const char*, 5> OperatorNames = {"Divide", "Plus", "Times", "Minus", "Equals"};
const std::array<const char*, 7> CommandCaptions = {"%", "\u221A", "&Help", "MC", "MR", "M-", "M+"};
const std::array<const char*, 7> CommandNames = {"Percent",      "Square root",   "Help",
                                                 "Memory clear", "Memory recall", "Memory subtract",
                                                 "Memory add"};

} // namespace

Calculator::Calculator(ScreenContext& context, QWidget* parent)
    : QWidget(parent), m_context(context), m_machine(context.state.Calculator) {
    setObjectName(QStringLiteral("Calculator"));
    setWindowTitle(QStringLiteral("Calculator"));
    for (int i = 0; i <= 9; ++i)
        Number[static_cast<size_t>(i)] =
            addButton(QString::number(i), QStringLiteral("Number_%1").arg(i), QString::number(i));
    Number[SignKey] = addButton(QStringLiteral("+/-"), QStringLiteral("Number_10"),
                                QStringLiteral("Change sign"));
    DecimalPoint = addButton(QStringLiteral("."), QStringLiteral("DecimalPoint"),
                             QStringLiteral("Decimal point"));
    for (size_t i = 0; i < Operator.size(); ++i)
        Operator[i] =
            addButton(QString::fromStdString(OperatorCaptions[i]),
                      QStringLiteral("Operator_%1").arg(i), QString::fromLatin1(OperatorNames[i]));
    for (size_t i = 0; i < Command1.size(); ++i)
        Command1[i] =
            addButton(QString::fromUtf8(CommandCaptions[i]), QStringLiteral("Command1_%1").arg(i),
                      QString::fromLatin1(CommandNames[i]));
    Cancel = addButton(QStringLiteral("CE/C"), QStringLiteral("Cancel"),
                       QStringLiteral("Clear entry, twice clear all"));

    for (int i = 0; i <= SignKey; ++i)
        connect(Number[static_cast<size_t>(i)], &QPushButton::clicked, this, [this, i] {
            if (i != SignKey && !m_machine.takesDigit(i))
                return;
            press(CalculatorControl::Number, i);
            Operator[EqualsOperator]->setFocus();
        });
    connect(DecimalPoint, &QPushButton::clicked, this,
            [this] { press(CalculatorControl::DecimalPoint, 0); });
    for (int i = 0; i < static_cast<int>(Operator.size()); ++i)
        connect(Operator[static_cast<size_t>(i)], &QPushButton::clicked, this,
                [this, i] { press(CalculatorControl::Operator, i); });
    for (int i = 0; i < static_cast<int>(Command1.size()); ++i)
        connect(Command1[static_cast<size_t>(i)], &QPushButton::clicked, this,
                [this, i] { press(CalculatorControl::Command1, i); });
    connect(Command1[2], &QPushButton::clicked, this, &Calculator::showHelp);
    Command1[2]->setEnabled(m_context.screens.isAvailable(ScreenName::Help));
    connect(Cancel, &QPushButton::clicked, this, [this] { press(CalculatorControl::Cancel, 0); });

    Readout = new QLabel(QString::fromStdString(m_machine.readout()), this);
    Readout->setObjectName(QStringLiteral("Readout"));
    DescribeControl(Readout, QStringLiteral("Display"));
    Label1 = new QLabel(this);
    Label1->setObjectName(QStringLiteral("Label1"));
    DescribeControl(Label1, QStringLiteral("Memory"));
    installEventFilter(this);
    buildLayout();
}

QPushButton* Calculator::addButton(const QString& caption, const QString& name,
                                   const QString& spoken) {
    auto* button = new QPushButton(caption, this);
    NameControl(button, name, spoken);
    button->setAutoDefault(false);
    button->setMinimumSize(52, 38);
    QFont key = button->font();
    key.setPointSizeF(key.pointSizeF() * 1.2);
    button->setFont(key);
    button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    button->installEventFilter(this);
    return button;
}

void Calculator::buildLayout() {
    QFont display = Readout->font();
    display.setPointSizeF(display.pointSizeF() * 1.8);
    display.setStyleHint(QFont::Monospace);
    display.setFamily(QStringLiteral("Monospace"));
    Readout->setFont(display);
    Readout->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    Readout->setFrameStyle(QFrame::Panel | QFrame::Sunken);
    Readout->setAutoFillBackground(true);
    QPalette paper = Readout->palette();
    paper.setColor(QPalette::Window, Qt::white);
    paper.setColor(QPalette::WindowText, Qt::black);
    Readout->setPalette(paper);
    Readout->setMargin(6);
    Readout->setMinimumHeight(Readout->fontMetrics().height() + 16);
    Readout->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);

    auto* grid = new QGridLayout(this);
    grid->setSpacing(6);
    grid->addWidget(Readout, 0, 0, 1, 5);
    grid->addWidget(Label1, 1, 0, 1, 4);
    grid->addWidget(Command1[2], 1, 4);
    const std::array<QPushButton*, 5> memoryRow = {Command1[3], Command1[4], Command1[5],
                                                   Command1[6], Cancel};
    for (int column = 0; column < 5; ++column)
        grid->addWidget(memoryRow[static_cast<size_t>(column)], 2, column);
    // Digits in the usual keypad order: 7 8 9 on top, 0 at the bottom.
    for (int digit = 1; digit <= 9; ++digit)
        grid->addWidget(Number[static_cast<size_t>(digit)], 3 + (9 - digit) / 3, (digit - 1) % 3);
    grid->addWidget(Number[0], 6, 0);
    grid->addWidget(DecimalPoint, 6, 1);
    grid->addWidget(Number[SignKey], 6, 2);
    grid->addWidget(Operator[0], 3, 3);
    grid->addWidget(Command1[0], 3, 4);
    grid->addWidget(Operator[2], 4, 3);
    grid->addWidget(Command1[1], 4, 4);
    grid->addWidget(Operator[3], 5, 3);
    grid->addWidget(Operator[1], 6, 3);
    grid->addWidget(Operator[EqualsOperator], 5, 4, 2, 1);
}

void Calculator::press(CalculatorControl control, int index) {
    const CalculatorMachine::Message message = m_machine.press(control, index);
    m_context.state.Calculator = m_machine.kept();
    if (message)
        m_context.services.dialogs.message(
            QString::fromStdString(message->text), QString::fromStdString(message->title),
            message->exclamation ? MessageIcon::Exclamation : MessageIcon::None,
            MessageButtons::Ok);
    Readout->setText(QString::fromStdString(m_machine.readout()));
    Label1->setText(QString::fromStdString(m_machine.memoryLine()));
}

void Calculator::showHelp() {
    m_context.screens.openHelp(m_context.state, HelpTopic::Calculator);
}

QPushButton* Calculator::buttonFor(CalculatorControl control, int index) const {
    const auto at = static_cast<size_t>(index);
    switch (control) {
    case CalculatorControl::Number:
        return Number[at];
    case CalculatorControl::DecimalPoint:
        return DecimalPoint;
    case CalculatorControl::Operator:
        return Operator[at];
    case CalculatorControl::Command1:
        return Command1[at];
    case CalculatorControl::Cancel:
        return Cancel;
    case CalculatorControl::Nothing:
    case CalculatorControl::UnloadCalculator:
        break;
    }
    return nullptr;
}

void Calculator::CalculatorKey(int code) {
    const CalculatorKeyPress key = CalculatorKeyFor(code);
    if (key.control == CalculatorControl::UnloadCalculator) {
        close();
        return;
    }
    if (QPushButton* button = buttonFor(key.control, key.index)) {
        button->click();
        if (key.focusEquals)
            Operator[EqualsOperator]->setFocus();
    }
}

bool Calculator::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    const auto* key = static_cast<QKeyEvent*>(event);
    if (key->key() == Qt::Key_F9) {
        Number[SignKey]->click();
        Number[SignKey]->setFocus();
        return true;
    }
    // Enter presses the focused button; Ctrl+M, which shares its code, presses "M-".
    if (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) {
        if (auto* button = qobject_cast<QPushButton*>(watched))
            button->click();
        return true;
    }
    int code = 0;
    if ((key->modifiers() & Qt::ControlModifier) && key->key() >= Qt::Key_A &&
        key->key() <= Qt::Key_Z)
        code = key->key() - Qt::Key_A + 1;
    else if (key->key() == Qt::Key_Escape)
        code = 27;
    else if (key->text().size() == 1)
        code = key->text().at(0).unicode();
    if (CalculatorKeyFor(code).control == CalculatorControl::Nothing)
        return QWidget::eventFilter(watched, event);
    CalculatorKey(code);
    return true;
}

} // namespace tessera
