#include "exam/exam_set.h"

#include "core/session_state.h"
#include "platform/control_names.h"
#include "platform/fixed_pitch_font.h"
#include "platform/windows1252.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace tessera {

namespace {
QListWidget* MakeList(int rows, int step, const QString& name, int index) {
    auto* list = new QListWidget;
    NameControl(list, "List1", index, name);
    list->setFont(FixedPitchFont());
    for (int row = 0; row < rows; ++row) {
        list->addItem(fromWindows1252(BuilderRowText((row + 1) * step)));
    }
    list->setFixedWidth(list->fontMetrics().horizontalAdvance(QStringLiteral("00000000")) + 24);
    return list;
}
} // namespace

ExamSet::ExamSet(ScreenContext& context) : m_context(context), m_form(context.state) {
    setObjectName(QStringLiteral("ExamSet"));
    setWindowTitle(QStringLiteral("Build Comprehensive Screening Exam"));
    m_context.screens.setNavigationEnabled(false);
    buildControls();
    showForm();
    wireControls();
}

void ExamSet::buildControls() {
    auto* exams = new QGroupBox(QStringLiteral("Screening Exams Available"));
    auto* examsLayout = new QVBoxLayout(exams);
    for (int i = 0; i < 3; ++i) {
        Option3[i] = new QRadioButton;
        examsLayout->addWidget(Option3[i]);
    }
    auto* approach = new QGroupBox(QStringLiteral("Approach"));
    auto* approachLayout = new QVBoxLayout(approach);
    Option1[0] = new QRadioButton(QStringLiteral("Structured, without Review/Skip"));
    Option1[1] = new QRadioButton(QStringLiteral("Traditional, with Review/Skip"));
    Check1 = new QCheckBox(QStringLiteral("Question Sequence Scrambled"));
    NameControl(Option1[0], "Option1", 0, Option1[0]->text());
    NameControl(Option1[1], "Option1", 1, Option1[1]->text());
    NameControl(Check1, "Check1", -1, Check1->text());
    approachLayout->addWidget(Option1[0]);
    approachLayout->addWidget(Option1[1]);
    approachLayout->addSpacing(6);
    approachLayout->addWidget(Check1);

    auto* magnitude = new QGroupBox(QStringLiteral("Magnitude of Exam"));
    auto* magnitudeLayout = new QGridLayout(magnitude);
    List1[0] = MakeList(TimeRowCount, 5, QStringLiteral("Time Limit (minutes)"), 0);
    List1[1] = MakeList(ItemRowCount, 1, QStringLiteral("Number of Questions"), 1);
    auto* timeLabel = new QLabel(QStringLiteral("Time Limit   (minutes)"));
    auto* itemLabel = new QLabel(QStringLiteral("Number of Questions"));
    timeLabel->setBuddy(List1[0]);
    itemLabel->setBuddy(List1[1]);
    magnitudeLayout->addWidget(timeLabel, 0, 0);
    magnitudeLayout->addWidget(itemLabel, 0, 1);
    magnitudeLayout->addWidget(List1[0], 1, 0);
    magnitudeLayout->addWidget(List1[1], 1, 1);

    auto* topics = new QGroupBox(QStringLiteral("Include Topics"));
    auto* topicsLayout = new QVBoxLayout(topics);
    for (int i = 0; i < TopicCount; ++i) {
        Check2[i] = new QCheckBox(fromWindows1252(TopicCaption(m_context.state, i + 1)));
        NameControl(Check2[i], "Check2", i, Check2[i]->text().simplified());
        topicsLayout->addWidget(Check2[i]);
    }
    Label2 = new QLabel;
    Label2->setFont(FixedPitchFont());
    NameControl(Label2, "Label2", -1, QStringLiteral("Items Available in Pool"));
    topicsLayout->addSpacing(12);
    topicsLayout->addWidget(Label2);
    topicsLayout->addStretch();

    const std::array<const char*, 3> captions{"&Take Exam", "&Cancel", "&Help"};
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    for (int i = 0; i < 3; ++i) {
        Command1[i] = new QPushButton(QString::fromLatin1(captions[i]));
        NameControl(Command1[i], "Command1", i, Command1[i]->text().remove(QLatin1Char('&')));
        buttons->addWidget(Command1[i]);
    }
    Command1[0]->setDefault(true);
    Command1[2]->setEnabled(m_context.screens.isAvailable(ScreenName::Help));

    auto* left = new QVBoxLayout;
    left->addWidget(exams);
    left->addWidget(approach);
    left->addWidget(magnitude, 1);
    auto* columns = new QHBoxLayout;
    columns->addLayout(left);
    columns->addWidget(topics, 1);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(columns, 1);
    layout->addLayout(buttons);

    QWidget::setTabOrder(Option3[2], Option1[0]);
    QWidget::setTabOrder(Option1[1], Check1);
    QWidget::setTabOrder(Check1, List1[0]);
    QWidget::setTabOrder(List1[0], List1[1]);
    QWidget::setTabOrder(List1[1], Check2[0]);
    QWidget::setTabOrder(Check2[TopicCount - 1], Command1[0]);
}

void ExamSet::wireControls() {
    for (int i = 0; i < 3; ++i) {
        connect(Option3[i], &QRadioButton::toggled, this, [this, i](bool on) {
            if (on && !m_showing) {
                m_form.selectExam(i);
                showForm();
            }
        });
        connect(Command1[i], &QPushButton::clicked, this, [this, i] { Command1_Click(i); });
    }
    connect(Option1[0], &QRadioButton::toggled, this, [this](bool on) {
        if (!m_showing) {
            m_form.setStructured(on);
        }
    });
    connect(Check1, &QCheckBox::toggled, this, [this](bool on) {
        if (!m_showing) {
            m_form.setScrambled(on);
        }
    });
    connect(List1[0], &QListWidget::currentRowChanged, this, [this](int row) {
        if (!m_showing) {
            m_form.selectTimeRow(row);
        }
    });
    connect(List1[1], &QListWidget::currentRowChanged, this, [this](int row) {
        if (!m_showing) {
            m_form.selectItemRow(row);
            showForm();
        }
    });
    for (int i = 0; i < TopicCount; ++i) {
        connect(Check2[i], &QCheckBox::toggled, this, [this, i](bool on) {
            if (!m_showing) {
                m_form.setTopic(i, on);
                showForm();
            }
        });
    }
}

void ExamSet::showForm() {
    m_showing = true;
    for (int i = 0; i < 3; ++i) {
        Option3[i]->setText(fromWindows1252(m_form.examCaption(i)));
        NameControl(Option3[i], "Option3", i, Option3[i]->text());
        Option3[i]->setEnabled(m_form.examEnabled(i));
    }
    // A finished exam's option is cleared; the group may then have none selected.
    for (QRadioButton* option : Option3) {
        option->setAutoExclusive(false);
        option->setChecked(false);
    }
    if (m_form.selectedExam() >= 0) {
        Option3[m_form.selectedExam()]->setChecked(true);
    }
    for (QRadioButton* option : Option3) {
        option->setAutoExclusive(true);
    }
    Option1[m_form.structured() ? 0 : 1]->setChecked(true);
    Check1->setChecked(m_form.scrambled());
    const std::array<int, 2> rows{m_form.timeRow(), m_form.itemRow()};
    for (int i = 0; i < 2; ++i) {
        List1[i]->setEnabled(m_form.listsEnabled());
        List1[i]->setCurrentRow(rows[i]);
    }
    centreSelectedRows();
    for (int i = 0; i < TopicCount; ++i) {
        Check2[i]->setChecked(m_form.topicChecked(i));
        Check2[i]->setEnabled(m_form.topicsEnabled());
    }
    Label2->setText(fromWindows1252(m_form.poolText()));
    Command1[0]->setEnabled(m_form.takeEnabled());
    m_showing = false;
}

void ExamSet::Command1_Click(int index) {
    ScreenHost& screens = m_context.screens;
    switch (index) {
    case 0:
        m_form.take();
        screens.unload(ScreenName::ExamSet);
        screens.unload(ScreenName::ExamTest);
        screens.show(ScreenName::ExamTest);
        break;
    case 1:
        screens.unload(ScreenName::ExamSet);
        break;
    default:
        screens.openHelp(m_context.state, HelpTopic::ExamSet, HelpOpening::Comparing);
        break;
    }
}

void ExamSet::centreSelectedRows() {
    for (QListWidget* list : List1) {
        if (list->currentItem() != nullptr) {
            list->scrollToItem(list->currentItem(), QAbstractItemView::PositionAtCenter);
        }
    }
}

void ExamSet::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    centreSelectedRows();
}

void ExamSet::closeEvent(QCloseEvent* event) {
    m_context.screens.handBackNavigation(*this);
    event->accept();
}

} // namespace tessera
