#include "reports/navigator.h"

#include "core/progress_file.h"
#include "platform/clock.h"
#include "platform/control_names.h"
#include "platform/windows1252.h"
#include "reports/navigator_chart.h"
#include "reports/navigator_print.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QTableWidget>
#include <QVBoxLayout>

namespace tessera {

namespace {

constexpr int WideLayout = 1180; // the least width at which the chart stands beside the table

// A text of the system for a widget; a CR LF inside becomes the widget's line break.
QString Shown(const std::string& text) {
    return fromWindows1252(text).replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
}

// A head cell: fixed, so the current cell never lands on it, and drawn as a head.
QTableWidgetItem* HeadItem(const QString& text, const QPalette& palette) {
    auto* item = new QTableWidgetItem(text);
    item->setFlags(Qt::NoItemFlags);
    item->setForeground(palette.windowText());
    item->setBackground(palette.button());
    return item;
}

} // namespace

Navigator::Navigator(ScreenContext& context) : m_context(context) {
    const SessionState& s = m_context.state;
    setObjectName(QStringLiteral("Navigator"));
    setWindowTitle(QStringLiteral("Monitor Spreadsheet"));
    buildControls();
    Label1->setText(
        Shown(s.UserName + s.catalogue.CrLf + LongDateText(m_context.services.clock.now())));
    Label1->setAccessibleName(Label1->text().simplified());
    writeHeads();
    m_rows = FoldProgressLog(ReadProgressHeader());
    writeRows();
    applySizes(LoadedGridSizes(Grid1->width()));
    Command1[0]->setEnabled(!s.PrinterProblem);
    connect(Grid1, &QTableWidget::currentCellChanged, this,
            [this](int row, int /*column*/) { showChart(row); });
    Grid1->setCurrentCell(1, 1);
    showChart(1);
    Grid1->setFocus();
}

void Navigator::buildControls() {
    Label1 = new QLabel;
    NameControl(Label1, "Label1", -1, {});
    Grid1 = new QTableWidget(MonitorRowCount + 1, MonitorColumnCount);
    NameControl(Grid1, "Grid1", -1, QStringLiteral("Progress by topic and exam"));
    Grid1->horizontalHeader()->hide();
    Grid1->verticalHeader()->hide();
    Grid1->verticalHeader()->setMinimumSectionSize(1);
    Grid1->horizontalHeader()->setMinimumSectionSize(1);
    Grid1->setEditTriggers(QAbstractItemView::NoEditTriggers);
    Grid1->setSelectionMode(QAbstractItemView::SingleSelection);
    Grid1->setWordWrap(false);
    Grid1->setTabKeyNavigation(false);
    Grid1->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    Grid1->installEventFilter(this);

    Chart1 = new ProgressChart;
    NameControl(Chart1, "Chart1", -1, QStringLiteral("Progress chart"));

    const std::array<const char*, 3> captions = {"&Print", "&Help", "&Done"};
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(Label1, 1);
    for (int i = 0; i < 3; ++i) {
        Command1[i] = MakeCommand("Command1", i, QString::fromLatin1(captions[i]));
        connect(Command1[i], &QPushButton::clicked, this, [this, i] { Command1_Click(i); });
        buttons->addWidget(Command1[i]);
    }
    m_body = new QBoxLayout(QBoxLayout::LeftToRight);
    m_body->addWidget(Grid1, 7);
    m_body->addWidget(Chart1, 2);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(m_body, 1);
    layout->addLayout(buttons);
    QWidget::setTabOrder(Grid1, Command1[0]);
    QWidget::setTabOrder(Command1[0], Command1[1]);
    QWidget::setTabOrder(Command1[1], Command1[2]);
    // Wide enough for a date in each figure column beside the chart, where the display allows;
    // on a small display the chart goes under the table.
    // The window frame takes some of the display.
    const QSize display =
        (screen() != nullptr ? screen()->availableGeometry().size() : QSize(WideLayout, 600)) -
        QSize(20, 60);
    resize(display.width() >= WideLayout ? QSize(WideLayout, 460)
                                         : QSize(display.width(), std::min(display.height(), 600)));
}

void Navigator::writeHeads() {
    const auto heads = MonitorHeads(m_context.state.catalogue.CrLf);
    for (int c = 0; c < MonitorColumnCount; ++c) {
        QTableWidgetItem* head = HeadItem(Shown(heads[c]), palette());
        head->setTextAlignment(c == 0 ? Qt::AlignLeft | Qt::AlignVCenter : Qt::AlignCenter);
        // A little smaller than the figures, so that two-word heads fit their narrow columns.
        QFont font = Grid1->font();
        font.setPointSizeF(font.pointSizeF() * 0.9);
        head->setFont(font);
        Grid1->setItem(0, c, head);
    }
}

void Navigator::writeRows() {
    const CourseCatalogue& catalogue = m_context.state.catalogue;
    for (int r = 1; r <= MonitorRowCount; ++r) {
        const auto cells = MonitorCells(m_rows[r], MonitorTitle(catalogue, r));
        Grid1->setItem(r, 0, HeadItem(Shown(cells[0]), palette()));
        for (int c = 1; c < MonitorColumnCount; ++c) {
            auto* cell = new QTableWidgetItem(Shown(cells[c]));
            cell->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
            cell->setTextAlignment(Qt::AlignCenter);
            Grid1->setItem(r, c, cell);
        }
    }
}

void Navigator::applySizes(const MonitorGridSizes& sizes) {
    Grid1->setRowHeight(0, sizes.headHeight);
    for (int r = 1; r <= MonitorRowCount; ++r)
        Grid1->setRowHeight(r, sizes.bodyHeight);
    for (int c = 0; c < MonitorColumnCount; ++c)
        Grid1->setColumnWidth(c, sizes.columnWidths[c]);
}

void Navigator::resizeEvent(QResizeEvent* event) {
    m_body->setDirection(width() >= WideLayout ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    QWidget::resizeEvent(event);
}

bool Navigator::eventFilter(QObject* watched, QEvent* event) {
    if (watched == Grid1 && event->type() == QEvent::Resize)
        applySizes(ResizedGridSizes(Grid1->width(), Grid1->height()));
    return QWidget::eventFilter(watched, event);
}

void Navigator::showChart(int row) {
    if (row < 1 || row > MonitorRowCount)
        return;
    const SessionState& s = m_context.state;
    Chart1->setChart(ChartOfRow(m_rows[row], MonitorTitle(s.catalogue, row), s.PassingGrade));
}

void Navigator::Command1_Click(int index) {
    SessionState& s = m_context.state;
    ScreenHost& screens = m_context.screens;
    switch (index) {
    case 0:
        printTable();
        break;
    case 1:
        // A help window already on this topic is not loaded again.
        if (s.HelpTopic != MonitorHelpTopic)
            screens.unload(ScreenName::Help);
        s.HelpTopic = MonitorHelpTopic;
        // This screen holds the others back, so help must come up modal to be usable.
        screens.showModal(ScreenName::Help);
        break;
    default:
        close();
        break;
    }
}

void Navigator::printTable() {
    const SessionState& s = m_context.state;
    MonitorPrint table;
    table.userName = fromWindows1252(s.UserName);
    table.date = QString::fromLatin1(LongDateText(m_context.services.clock.now()));
    for (int r = 1; r <= MonitorRowCount; ++r) {
        for (int c = 0; c < MonitorColumnCount; ++c)
            table.cells[r - 1][c] = Grid1->item(r, c)->text();
    }
    if (PrintMonitor(m_context.services.printer, table))
        Command1[2]->setFocus();
}

void Navigator::closeEvent(QCloseEvent* event) {
    // The application object stores the place of window slot 7 from the normal window.
    if (isMinimized())
        showNormal();
    event->accept();
}

} // namespace tessera
