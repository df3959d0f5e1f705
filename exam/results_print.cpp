#include "exam/results_print.h"

#include "core/session_state.h"
#include "exam/exam_format.h"
#include "platform/printer.h"
#include "platform/windows1252.h"

#include <algorithm>

namespace tessera {

namespace {

constexpr int PrintFontSize = 10;
constexpr int SummaryRoom = 3; // lines the summary needs below the table on the same page

std::string Blanks(int count) {
    return std::string(static_cast<std::size_t>(count), ' ');
}

bool Answered(const ResultsPrint& exam, int k) {
    return exam.items[static_cast<std::size_t>(k - 1)].answer != 0;
}

// The fields of one column: number, right answer and the answer given. An item not answered
// shows neither letter.
std::string ItemFields(const ResultsPrint& exam, int k) {
    const PrintedItem& item = exam.items[static_cast<std::size_t>(k - 1)];
    const bool answered = item.answer != 0;
    std::string fields =
        CountColumns(k) + Blanks(7) + (answered ? ChoiceLetter(item.key) : ' ') + Blanks(10);
    if (answered) {
        fields += ChoiceLetter(item.answer);
        fields += item.unsure ? '?' : ' ';
    } else {
        fields += Blanks(2);
    }
    return fields;
}

void PrintHeading(Printer& printer, const ResultsPrint& exam, int page) {
    printer.setFontBold(true);
    if (page == 0) {
        printer.printLine(
            fromWindows1252(exam.title + " Results" + exam.crLf + Blanks(5) + exam.userName), 6);
        printer.printLine(fromWindows1252(LongDateText(exam.now) + TimeOfDayText(exam.now)), 6);
    } else {
        printer.printLine(fromWindows1252(exam.examName + "  (cont.)"), 6);
    }
    printer.printLine(QString());
    const std::string firstHead = Blanks(10) + "Correct" + Blanks(5) + "Your" + Blanks(5);
    const std::string secondHead =
        Blanks(2) + "Item" + Blanks(4) + "Answer" + Blanks(6) + "Answer" + Blanks(3);
    printer.printLine(fromWindows1252(firstHead + firstHead));
    printer.printLine(fromWindows1252(secondHead + secondHead));
    printer.setFontBold(false);
    printer.printLine(QString());
}

void PrintCopy(Printer& printer, const ResultsPrint& exam) {
    const int count = static_cast<int>(exam.items.size());
    const std::array<int, 3> rowsOnPage = RowsOnPage(count);
    int base = 0;
    int rows = 0;
    int page = 0;
    bool notAnswered = false;
    PrintHeading(printer, exam, page);
    // i counts on over the pages, so adding a page's rows to base skips its right column.
    for (int i = 1; i <= (count + 1) / 2; ++i) {
        const int k = i + base;
        const int right = k + rowsOnPage[static_cast<std::size_t>(page)];
        const bool hasRight = right <= count;
        notAnswered = notAnswered || !Answered(exam, k) || (hasRight && !Answered(exam, right));
        printer.printLine(fromWindows1252(PrintedRow(exam, k, hasRight ? right : 0)));
        if (++rows == PrintedRowsPerPage) {
            base += PrintedRowsPerPage;
            rows = 0;
            ++page;
            printer.newPage();
            PrintHeading(printer, exam, page);
        }
    }
    if (notAnswered) {
        printer.printLine(QString(30, QLatin1Char('-')));
        printer.printLine(
            QStringLiteral("Note: Correct answer supplied only if question answered."));
        rows += 2;
    }
    if (rows > PrintedRowsPerPage - SummaryRoom)
        printer.newPage();
    printer.printLine(QString());
    printer.setFontBold(true);
    printer.printLine(QStringLiteral("Scoring Summary"), 6);
    printer.setFontBold(false);
    for (const std::string& line : exam.summary)
        printer.printLine(fromWindows1252(line), 3);
    printer.newPage();
}

} // namespace

ResultsPrint ResultsPrintOf(const SessionState& state, const std::array<std::string, 6>& summary,
                            DateValue now) {
    const CourseCatalogue& catalogue = state.catalogue;
    const int kind = std::clamp<int>(state.ExamKind, 1, 3);
    ResultsPrint exam;
    exam.examName = catalogue.ExamNames[kind];
    exam.title = exam.examName + (kind == 3 ? " Screening Exam" : "");
    exam.userName = state.UserName;
    exam.crLf = catalogue.CrLf;
    exam.now = now;
    exam.summary = summary;
    exam.fontName = state.PrintFontName;
    const int count = std::clamp<int>(state.ExamItemCount, 0, ExamItemLimit);
    for (int p = 1; p <= count; ++p)
        exam.items.push_back({state.ExamKey[p], state.ExamAnswers[p], state.ExamUnsure[p] != 0});
    return exam;
}

std::array<int, 3> RowsOnPage(int itemCount) {
    const int half = (itemCount + 1) / 2;
    if (itemCount <= 2 * PrintedRowsPerPage)
        return {half, 0, 0};
    if (itemCount <= 4 * PrintedRowsPerPage)
        return {PrintedRowsPerPage, half - PrintedRowsPerPage, 0};
    return {PrintedRowsPerPage, PrintedRowsPerPage, half - 2 * PrintedRowsPerPage};
}

std::string PrintedRow(const ResultsPrint& exam, int k, int right) {
    std::string row = Blanks(2) + ItemFields(exam, k) + Blanks(7);
    if (right != 0)
        row += ItemFields(exam, right);
    return row;
}

bool PrintResults(Printer& printer, const ResultsPrint& exam) {
    return PrintTableJob(
        printer,
        [&] {
            if (!exam.fontName.empty())
                printer.setFontName(fromWindows1252(exam.fontName));
            printer.setFontSize(PrintFontSize);
        },
        [&] { PrintCopy(printer, exam); });
}

} // namespace tessera
