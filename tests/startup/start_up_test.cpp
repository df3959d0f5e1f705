// Start-up from what the study folder holds and what the user types and answers: the messages
// it shows, and what the session and the folder hold afterwards.

#include "core/new_notebook.h"
#include "core/progress_file.h"
#include "core/records.h"
#include "core/run_journal.h"
#include "core/start_up.h"
#include "tests/support/study_folder.h"
#include "tests/support/test_services.h"

#include <QDir>

#include <gtest/gtest.h>

#include <functional>

using namespace tessera;

namespace {

const std::string Marker = "TesseraAppRunning";
const std::string NoteBook = "TesseraNoteBook.RTF";
const std::string Progress = "TesseraConfig.MS";
const std::string PatDoe = "Pat Doe" + std::string(23, ' ');

// The header of an earlier run's progress file, with one log entry when a code is given.
std::string HeaderFile(int passingGrade = 75, int logCode = 0) {
    ProgressHeader header;
    header.UserName = PatDoe;
    header.PassingGrade = static_cast<uint8_t>(passingGrade);
    if (logCode != 0) {
        header.LogDates[1] = "11-18-2026";
        header.LogCodes[1] = static_cast<uint8_t>(logCode);
    }
    const RecordBytes bytes = EncodeHeader(header);
    return {bytes.begin(), bytes.end()};
}

struct Start : TestServices {
    Start() { folder.write("Tessera", "{\\rtf1 no course here}\r\n"); }
    StartUpOutcome run() {
        state = SessionState{};
        return StartUp(state, services).run();
    }
    QStringList backups() const { return QDir(QStringLiteral("Backups")).entryList(QDir::Files); }
    // The outcome, the user and options taken, the names asked, and the folder's files: the
    // progress file's size, passing grade and suspended test record.
    std::string after(StartUpOutcome outcome) const {
        std::string text = outcome == StartUpOutcome::Ready ? "ready " : "ended ";
        if (outcome == StartUpOutcome::Ready)
            text += state.UserName + "/" + std::to_string(state.PassingGrade) + "/" +
                    state.PrintFontName + (state.PrinterProblem ? "/no printer " : " ");
        text += "asked " + std::to_string(dialogs.inputs().size());
        if (folder.exists(Marker))
            text += " marker(" + folder.read(Marker) + ")";
        if (folder.exists(NoteBook))
            text += " notebook";
        if (const std::string p = folder.exists(Progress) ? folder.read(Progress) : ""; !p.empty())
            text += " progress " + std::to_string(p.size()) + ":" + std::to_string(uint8_t(p[4])) +
                    ":" + std::to_string(p[5]);
        return text + " backups " + std::to_string(backups().size());
    }

    StudyFolder folder;
    SessionState state;
};

const std::string Running =
    "Warning! (exclamation ok/cancel): It is possible that this application is already running on "
    "this computer.\r\nA previous system lockup or power loss could also cause this warning.\r\n"
    "If the application is indeed running, results may be unpredictable if you continue.\r\n"
    "Press OK to continue. Cancel to abort.\n";
const std::string Exit = "Tessera (question yes/no): Exit Program?\n";
std::string Damaged(const std::string& buttons) {
    return "Damaged File Detected! (exclamation " + buttons +
           "): Your progress file TesseraConfig.MS is damaged.\r\n";
}
const std::string Offer = ".MS.\r\nPress Yes to restore it. No to keep the damaged file.\n";

std::string Confirm(const std::string& name) {
    return "Please Confirm. (question yes/no): Thank you.\r\nSoftware user's name is " + name +
           ".\n";
}

// The texts typed, '|' between them, an empty one cancelling; the answers as letters of "OCYN"
// for Ok, Cancel, Yes and No.
struct Case {
    const char* name;
    std::function<void(Start&)> arrange;
    const char* typed;
    std::string answers;
    std::string told;
    std::string after;
};

void AnotherRun(Start& s) {
    s.folder.write(Progress, HeaderFile());
    s.folder.write(Marker, "another run");
}
void Backups(Start& s, const std::string& newer) {
    std::filesystem::create_directory("Backups");
    s.folder.write("Backups/TesseraConfig 2026-11-17 10-00-00.MS", HeaderFile(60));
    s.folder.write("Backups/TesseraConfig 2026-11-18 10-00-00.MS", newer);
}

const Case Cases[] = {
    {"no content file", [](Start&) { std::filesystem::remove("Tessera"); }, "", "",
     "Missing File Detected! (critical ok): Fatal Error. This Software must be reinstalled.\n",
     "ended asked 0 backups 0"},
    {"another run cancelled", AnotherRun, "", "C", Running,
     "ended asked 0 marker(another run) progress 940:75:0 backups 0"},
    {"blanks ask again, a name is trimmed and cut; without a printer, printing stays off",
     [](Start& s) { s.printer.fonts.reset(); }, "   |   Alexandra Konstantinopoulou-Whitfield", "Y",
     Confirm("Alexandra Konstantinopoulou-Wh") +
         "Printer error (critical ok): There is a problem that will prevent printing. Most "
         "likely cause is that\r\nyou have not selected a printer from the Windows Control "
         "Panel.\r\nOpen the Control Panel, double-click the Printers icon, and choose Add to "
         "install a printer.\n",
     "ready Alexandra Konstantinopoulou-Wh/70//no printer asked 2 marker() notebook progress "
     "940:70:0 backups 1"},
    {"No, or a name outside the code page, asks again; the last print font found wins",
     [](Start& s) {
         s.printer.fonts = {QStringLiteral("Courier"), QStringLiteral("Terminal")};
     },
     "Pat Dough|Pat \u0141ukasz|Pat Doe", "NOY",
     Confirm("Pat Dough") +
         "Software User's Name (exclamation ok): The name can use only letters, figures and "
         "signs of Western European languages. Please type it again.\n" +
         Confirm("Pat Doe"),
     "ready " + PatDoe + "/70/Courier asked 3 marker() notebook progress 940:70:0 backups 1"},
    {"cancel, then exit, leaves a first run", nullptr, "|", "NY", Exit + Exit,
     "ended asked 2 backups 0"},
    {"a folder that cannot be written gives up after a few tries",
     [](Start&) { std::filesystem::create_directory(NoteBook); }, "Pat Doe", "Y",
     Confirm("Pat Doe") +
         "Path/File access error (critical ok): Unrecoverable error 75 has occurred.\n"
         "Path/File access error (critical ok): The program cannot start: path/file access "
         "error in the study folder. Make sure that the folder may be written to and has room, "
         "then start the program again.\n",
     "ended asked 1 notebook progress 940:70:0 backups 0"},
    {"a damaged file restored from the newest good backup",
     [](Start& s) {
         s.folder.write(Progress, HeaderFile(70) + "cut");
         Backups(s, HeaderFile(65));
     },
     "", "Y",
     Damaged("yes/no") + "The newest good backup is Backups/TesseraConfig 2026-11-18 10-00-00" +
         Offer,
     "ready " + PatDoe + "/65/Courier New asked 0 marker() progress 940:65:0 backups 3"},
    {"an impossible log kept, a cut backup passed over",
     [](Start& s) {
         s.folder.write(Progress, HeaderFile(70, 40));
         Backups(s, "cut");
     },
     "", "N",
     Damaged("yes/no") + "The newest good backup is Backups/TesseraConfig 2026-11-17 10-00-00" +
         Offer,
     "ready " + PatDoe + "/70/Courier New asked 0 marker() progress 940:70:0 backups 2"},
    {"a grade over a hundred without backups",
     [](Start& s) { s.folder.write(Progress, HeaderFile(170)); }, "", "O",
     Damaged("ok") +
         "No good backup of it was found in the Backups folder. The program will use what "
         "it can read.\n",
     "ready " + PatDoe + "/170/Courier New asked 0 marker() progress 940:170:0 backups 0"},
    {"another run taken on; a journal left by a crash is replayed",
     [](Start& s) {
         AnotherRun(s);
         SessionState running;
         running.CurrentTopic = 2;
         running.TestType = 1;
         running.TestItemCount = 2;
         running.TestItems = {0, 3, 4};
         running.TestPosition = 2;
         JournalReviewTest(running, s.clock.now());
     },
     "", "O",
     Running +
         "Test Recovered! (information ok): The program stopped during a review test and did not "
         "save it.\r\nYour answers up to the last one were kept. Resume the test from the "
         "Navigation Screen.\n",
     "ready " + PatDoe +
         "/75/Courier New asked 0 marker(another run) progress 1880:75:2 backups 1"},
};

TEST(StartUp, TellsExactlyAndLeavesTheFolderAsItShould) {
    for (const Case& c : Cases) {
        Start s;
        if (c.arrange)
            c.arrange(s);
        if (*c.typed != '\0')
            for (const QString& text : QString::fromUtf8(c.typed).split(u'|'))
                s.dialogs.type(text);
        for (const char answer : c.answers)
            s.dialogs.answer(static_cast<MessageAnswer>(std::string("OCYN").find(answer)));
        const StartUpOutcome outcome = s.run();
        const std::string told = s.dialogs.messagesText().toStdString();
        EXPECT_EQ(told.empty() ? told : told + '\n', c.told) << c.name;
        EXPECT_EQ(s.after(outcome), c.after) << c.name;
    }
}

TEST(StartUp, FirstRunWritesTheHeaderOverZerosAndTheNotebook) {
    Start s;
    std::string zeros(RecordSize, '\0');
    zeros[700] = 'R'; // the log and reserved bytes pass through
    s.folder.write(Progress, zeros);
    s.dialogs.type(QStringLiteral("Pat Doe"));
    s.dialogs.answer(MessageAnswer::Yes);

    EXPECT_EQ(s.run(), StartUpOutcome::Ready);
    EXPECT_EQ(s.folder.read(Progress),
              std::string("\x01\x01\x01\x01\x46\x00\x00", 7) + PatDoe + zeros.substr(37));
    EXPECT_TRUE(s.state.ScrambleQuestions && s.state.SoundOn && s.state.TimerActive);

    std::string expected = "{\\rtf1\\ansi\\deff0\\deflang1033{\\fonttbl{\\f0\\fswiss Arial;}}\r\n"
                           "\\viewkind4\\uc1\\pard\\b\\f0\\fs23 \r\n"
                           "\\b\\qc Review Notes for the\r\n"
                           "\\par Orlanda Academy Salesperson Tessera\r\n"
                           "\\par EXAM PREPARATION\r\n"
                           "\\par \\pard\\plain Notebook prepared by Pat Doe\r\n"
                           "\\par \r\n";
    for (const char* title :
         {"Definitions", "Preliminary Evaluation", "Real Property and Laws Relating to Ownership",
          "Transfer of Real Property", "Financing Real Estate",
          "Valuation/Appraisal of Real Property", "Real Estate Practice",
          "Tax Implications of Real Estate Ownership",
          "Brokerage: Responsibilities and Functions of Salespersons"})
        expected += std::string("\\par ") + title + "\r\n\\par Notes:\r\n" +
                    "\\par \r\n\\par \r\n\\par \r\n\\par \r\n";
    EXPECT_EQ(s.folder.read(NoteBook), expected + "\\par }\r\n");
    EXPECT_EQ(RtfEscaped("Pat {Doe}\\ \xe9"), "Pat \\{Doe\\}\\\\ \\'e9");
}

TEST(StartUp, FirstStartOfADayAndEveryRewriteKeepTheNewestTenBackups) {
    Start s;
    s.folder.write(Progress, HeaderFile(70, 1));
    ASSERT_EQ(s.run(), StartUpOutcome::Ready);
    s.dialogs.answer(MessageAnswer::Ok); // to the marker the first start left
    s.clock.advanceSeconds(3600);
    ASSERT_EQ(s.run(), StartUpOutcome::Ready); // the same day: no second backup
    EXPECT_EQ(s.backups().join(u',').toStdString(), "TesseraConfig 2026-11-19 09-00-00.MS");
    EXPECT_EQ(s.folder.read("Backups/TesseraConfig 2026-11-19 09-00-00.MS"), HeaderFile(70, 1));

    for (int minute = 1; minute <= 11; ++minute) {
        s.clock.setDateTime(2026, 11, 20, 8, minute, 0);
        ASSERT_EQ(RewriteProgressFile(s.state, std::vector<ExamRecord>{}, s.clock.now()),
                  SaveStatus::Saved);
    }
    const QStringList kept = s.backups();
    EXPECT_EQ(
        QStringLiteral("%1 .. %2 %3").arg(kept.first(), kept.last()).arg(kept.size()).toStdString(),
        "TesseraConfig 2026-11-20 08-02-00.MS .. TesseraConfig 2026-11-20 08-11-00.MS 10");
}

} // namespace
