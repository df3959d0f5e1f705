#pragma once
// What the two report cards share: a fixed-pitch list of rows with heads over its columns and
// the totals under it, the frames "Sort List By:" and "Include", a column of commands, and the
// acts common to both: sorting that keeps the selected row, the "Include" choices a row allows,
// erasing in memory with the question on leaving, retakes, printing, help, and the navigation
// screen held while the card is open. Each card supplies its rows through the hooks below.

#include "core/screen_context.h"
#include "core/screen_host.h"
#include "platform/card_layout.h"

#include <QStringList>
#include <QWidget>

#include <array>
#include <vector>

class QGroupBox;
class QLabel;
class QListWidget;
class QPushButton;
class QRadioButton;

namespace tessera {

enum class SaveStatus;

class ReportCard : public QWidget {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ReportCard)

public:
    // Command1: "&Print", "&Erase ...", "&Done", "&Help", "&Retake ...", then the card's own.
    enum Command { PrintCommand, EraseCommand, DoneCommand, HelpCommand, RetakeCommand };

    virtual void Command1_Click(int index);

    QListWidget* List1 = nullptr;
    QGroupBox* Frame1 = nullptr;
    QGroupBox* Frame2 = nullptr;
    std::array<QRadioButton*, 5> Option1{};
    std::array<QRadioButton*, 3> Option2{};
    std::vector<QPushButton*> Command1;

protected:
    struct Design {
        ScreenName screen;
        const char* caption;
        std::vector<ColumnHead> headPlaces; // one a label of `heads`, in that order
        int rowColumns;                     // the width of a row in characters
        int totalsIndent;                   // characters from the rows' first to the totals'
        QStringList sortCaptions;
        QStringList includeCaptions;
        QStringList commandCaptions;   // by index
        std::vector<int> commandOrder; // the indices from the top of the column down
        std::vector<int> rowCommands;  // the commands that need a selected row
        const char* erasedTitle;       // the title of "Save Changes to Report Card?"
        HelpTopic helpTopic;           // opened afresh by "&Help"
        ScreenName retakeScreen;
        bool retakeAfresh; // unload an open retake screen before showing it
    };

    // Builds the window around the card's own labels: `heads` stand over the columns, `totals`
    // under the list, `topic` and the notes on the left below it.
    ReportCard(ScreenContext& context, Design design, std::vector<QLabel*> heads, QLabel* totals,
               QLabel* topic, const std::vector<QLabel*>& notes);

    // The end of Form_Load, once the rows are read: earliest first and the first row
    // selected, or the commands that need a row disabled.
    void showLoadedRows();

    // The rows, counted from 1.
    virtual int rowCount() const = 0;
    virtual QString rowText(int row) const = 0;
    virtual QString totalsText() const = 0;
    // What the topic label reads for a row, and with no row.
    virtual QString topicText(int row) const = 0;
    // Stays with a row through sorts, so the selection follows it.
    virtual int rowKey(int row) const = 0;
    virtual void sortRows(int sort) = 0;
    // Takes out the row; returns the row to select next, 0 when none is left.
    virtual int eraseRow(int row) = 0;
    virtual std::array<bool, 3> offeredChoices(int row) const = 0;
    // Writes the rows left, in the card's order, into the progress file.
    virtual SaveStatus rewriteRows() = 0;
    // Sets up the session for a retake of the row with the chosen "Include" option.
    virtual void buildRetake(int row, int choice) = 0;
    // False when the dialog was cancelled or the printer failed.
    virtual bool printRows() = 0;

    // Writes the erasures, if any, after asking; the question comes once, whatever the answer.
    void SaveChanges();
    int selectedRow() const; // from 1, 0 when none

    ScreenContext& m_context;

    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void buildLayout(const std::vector<QLabel*>& notes);
    void alignHeads();
    void FillList();
    void List1_Click(int row);
    void Option1_Click(int index);
    void Option2_Click(int index);
    void Erase();
    void Retake();
    void print();
    int chosenChoice() const;

    Design m_design;
    std::vector<QLabel*> m_heads;
    QLabel* m_totals;
    QLabel* m_topic;
    QWidget* m_headStrip = nullptr;
    bool m_changed = false; // CardChanged, ReportChanged: a row erased since the last save
};

} // namespace tessera
