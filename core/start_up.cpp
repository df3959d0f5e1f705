#include "core/start_up.h"

#include "core/content_file.h"
#include "core/new_notebook.h"
#include "core/progress_backups.h"
#include "core/progress_file.h"
#include "core/progress_image.h"
#include "core/run_journal.h"
#include "platform/clock.h"
#include "platform/dialogs.h"
#include "platform/file_system.h"
#include "platform/printer.h"
#include "platform/windows1252.h"

#include <QStringList>

#include <cerrno>
#include <filesystem>

namespace tessera {

namespace {

constexpr int FirstRunPassingGrade = 70;
const char* const CrLf = "\r\n";

bool writeWholeFile(const std::string& name, const std::string& bytes) {
    return WriteWhole(Files(), name, bytes);
}

} // namespace

StartUpError FileError() {
    switch (errno) {
    case EACCES:
    case EPERM:
    case EROFS:
        return {70, QStringLiteral("Permission denied")};
    case ENOSPC:
    case EDQUOT:
        return {61, QStringLiteral("Disk full")};
    case EIO:
        return {57, QStringLiteral("Device I/O error")};
    default:
        return {75, QStringLiteral("Path/File access error")};
    }
}

std::string ChoosePrintFontName(const QStringList& fontNames) {
    const QString joined = fontNames.join(QLatin1Char('\n'));
    std::string chosen;
    for (const char* candidate : {"Terminal", "MS LineDraw", "Courier", "Courier New"}) {
        if (joined.contains(QLatin1String(candidate)))
            chosen = candidate;
    }
    return chosen;
}

QString CutUserName(const QString& typed) {
    qsizetype first = 0;
    while (first < typed.size() && typed[first] == QLatin1Char(' '))
        ++first;
    return typed.mid(first, UserNameLength);
}

StartUp::StartUp(SessionState& state, Services& services) : m_state(state), m_services(services) {}

StartUpOutcome StartUp::run() {
    const StartUpOutcome files = beforeTitle();
    return files == StartUpOutcome::Ended ? files : afterTitle();
}

StartUpOutcome StartUp::beforeTitle() {
    FillCatalogue(m_state);
    if (!contentFilePresent())
        return StartUpOutcome::Ended;

    // Opening the progress file creates it; a header that cannot be read reads as zeros.
    RecoverProgressFile();
    if (!Files().exists(ProgressFile))
        ProgressImage().commit(); // an empty file: a first run

    if (!markRunning())
        return StartUpOutcome::Ended;
    const bool damaged = offerBackupIfDamaged();
    if (!damaged && ReadProgressHeader().isFirstRun()) {
        if (!firstRun())
            return StartUpOutcome::Ended;
    }
    ApplyHeader(ReadProgressHeader(), m_state);
    RestoreSuspended(m_state);
    if (!damaged)
        replayJournal();
    // A damaged file is not copied over the good backups.
    if (!damaged)
        BackupOnFirstStartOfDay(m_services.clock.now());
    return StartUpOutcome::Ready;
}

StartUpOutcome StartUp::afterTitle() {
    if (!attempt([this] { return loadContent(); }))
        return StartUpOutcome::Ended;
    if (!attempt([this] { return choosePrintFont(); }))
        return StartUpOutcome::Ended;
    return StartUpOutcome::Ready;
}

bool StartUp::contentFilePresent() {
    std::error_code ignored;
    if (std::filesystem::exists(m_state.catalogue.ContentFileName, ignored))
        return true;
    m_services.dialogs.message(QStringLiteral("Fatal Error. This Software must be reinstalled."),
                               QStringLiteral("Missing File Detected!"), MessageIcon::Critical,
                               MessageButtons::Ok);
    return false;
}

bool StartUp::markRunning() {
    const std::string& marker = m_state.catalogue.RunningMarkerName;
    std::error_code ignored;
    if (std::filesystem::exists(marker, ignored)) {
        const QString warning =
            QStringList{
                QStringLiteral(
                    "It is possible that this application is already running on this computer."),
                QStringLiteral(
                    "A previous system lockup or power loss could also cause this warning."),
                QStringLiteral("If the application is indeed running, results may be "
                               "unpredictable if you continue."),
                QStringLiteral("Press OK to continue. Cancel to abort.")}
                .join(QLatin1String(CrLf));
        return m_services.dialogs.message(warning, QStringLiteral("Warning!"),
                                          MessageIcon::Exclamation,
                                          MessageButtons::OkCancel) == MessageAnswer::Ok;
    }
    return attempt([&]() -> std::optional<StartUpError> {
        if (!writeWholeFile(marker, {}))
            return FileError();
        m_createdMarker = true;
        return std::nullopt;
    });
}

bool StartUp::offerBackupIfDamaged() {
    if (!ProgressFileDamaged(Files().read(ProgressFile).value_or(std::string())))
        return false;
    Dialogs& dialogs = m_services.dialogs;
    const QString title = QStringLiteral("Damaged File Detected!");
    const QString damaged = QStringLiteral("Your progress file TesseraConfig.MS is damaged.");
    const std::string backup = NewestGoodBackup();
    if (backup.empty()) {
        dialogs.message(damaged + QLatin1String(CrLf) +
                            QStringLiteral("No good backup of it was found in the Backups "
                                           "folder. The program will use what it can read."),
                        title, MessageIcon::Exclamation, MessageButtons::Ok);
        return true;
    }
    const QString offer =
        QStringList{damaged,
                    QStringLiteral("The newest good backup is ") + QString::fromStdString(backup) +
                        QLatin1Char('.'),
                    QStringLiteral("Press Yes to restore it. No to keep the damaged file.")}
            .join(QLatin1String(CrLf));
    if (dialogs.message(offer, title, MessageIcon::Exclamation, MessageButtons::YesNo) !=
        MessageAnswer::Yes)
        return true;
    if (RestoreBackup(backup))
        return false;
    dialogs.message(QStringLiteral("The backup could not be restored. Make sure the study folder "
                                   "can be written to and has room, then start the program "
                                   "again."),
                    title, MessageIcon::Critical, MessageButtons::Ok);
    return true;
}

void StartUp::replayJournal() {
    const Replayed replayed = ReplayJournal(m_state, m_services.clock.now());
    if (replayed == Replayed::Nothing)
        return;
    const bool exam = replayed == Replayed::Exam;
    const QString run = exam ? QStringLiteral("screening exam") : QStringLiteral("review test");
    m_services.dialogs.message(
        QStringLiteral("The program stopped during a %1 and did not save it.").arg(run) +
            QLatin1String(CrLf) +
            QStringLiteral("Your answers up to the last one were kept. Resume the %1 from the "
                           "Navigation Screen.")
                .arg(exam ? QStringLiteral("exam") : QStringLiteral("test")),
        exam ? QStringLiteral("Exam Recovered!") : QStringLiteral("Test Recovered!"),
        MessageIcon::Information, MessageButtons::Ok);
}

std::optional<std::string> StartUp::askUserName() {
    Dialogs& dialogs = m_services.dialogs;
    for (;;) {
        const QString typed = dialogs.input(
            QStringLiteral("This box appears only once, after the software has been installed. "
                           "Please type the name of the person who will use this software."),
            QStringLiteral("Software User's Name"));
        if (typed.isEmpty()) {
            if (dialogs.message(QStringLiteral("Exit Program?"), QStringLiteral("Tessera"),
                                MessageIcon::Question, MessageButtons::YesNo) == MessageAnswer::Yes)
                return std::nullopt;
            continue;
        }
        const QString name = CutUserName(typed);
        if (name.isEmpty())
            continue; // only blanks: no name at all
        if (!inWindows1252(name)) {
            // The header stores the name in the code page; a '?' in its place would be a surprise.
            dialogs.message(QStringLiteral("The name can use only letters, figures and signs of "
                                           "Western European languages. Please type it again."),
                            QStringLiteral("Software User's Name"), MessageIcon::Exclamation,
                            MessageButtons::Ok);
            continue;
        }
        const QString confirmation = QStringLiteral("Thank you.") + QLatin1String(CrLf) +
                                     QStringLiteral("Software user's name is ") + name +
                                     QLatin1Char('.');
        if (dialogs.message(confirmation, QStringLiteral("Please Confirm."), MessageIcon::Question,
                            MessageButtons::YesNo) == MessageAnswer::Yes)
            return toWindows1252(name);
    }
}

bool StartUp::firstRun() {
    const std::optional<std::string> name = askUserName();
    if (!name) {
        // The progress file stays new, so the next start is a first run again.
        removeMarker();
        return false;
    }
    return attempt([&] { return writeFirstHeader(*name); }) &&
           attempt([&] { return writeNoteBook(*name); });
}

std::optional<StartUpError> StartUp::writeFirstHeader(const std::string& name) {
    // The log and the reserved bytes stay as they were read.
    ProgressHeader header = ReadProgressHeader();
    header.SuspendedTestRecord = 0;
    header.SuspendedExamRecord = 0;
    header.ScrambleQuestions = 1;
    header.SoundOn = 1;
    header.TimerActive = 1;
    header.IncludeProgressReport = 1;
    header.PassingGrade = FirstRunPassingGrade;
    header.UserName = name;
    header.UserName.resize(UserNameLength, ' ');
    header.TakeCounts.fill(0);
    if (!WriteProgressHeader(header))
        return FileError();
    return std::nullopt;
}

std::optional<StartUpError> StartUp::writeNoteBook(const std::string& name) {
    if (!writeWholeFile(m_state.catalogue.NoteBookFileName,
                        NewNoteBookText(m_state.catalogue, name)))
        return FileError();
    return std::nullopt;
}

std::optional<StartUpError> StartUp::loadContent() {
    if (!LoadContent(m_state))
        return FileError();
    return std::nullopt;
}

std::optional<StartUpError> StartUp::choosePrintFont() {
    const std::optional<QStringList> fonts = m_services.printer.fontNames();
    if (!fonts)
        return StartUpError{PrinterErrorNumber, QStringLiteral("Printer error")};
    m_state.PrintFontName = ChoosePrintFontName(*fonts);
    return std::nullopt;
}

bool StartUp::attempt(const Step& step) {
    Dialogs& dialogs = m_services.dialogs;
    for (int tries = 1;; ++tries) {
        const std::optional<StartUpError> error = step();
        if (!error)
            return true;
        if (error->number == PrinterErrorNumber) {
            // Reported once; printing stays off and start-up goes on.
            if (!m_state.PrinterProblem) {
                m_state.PrinterProblem = true;
                dialogs.message(
                    QStringLiteral("There is a problem that will prevent printing. Most likely "
                                   "cause is that") +
                        QLatin1String(CrLf) +
                        QStringLiteral(
                            "you have not selected a printer from the Windows Control Panel.") +
                        QLatin1String(CrLf) +
                        QStringLiteral("Open the Control Panel, double-click the Printers icon, "
                                       "and choose Add to install a printer."),
                    error->text, MessageIcon::Critical, MessageButtons::Ok);
            }
            return true;
        }
        // Told once; the step is then tried again quietly until the closing message.
        if (tries == 1)
            dialogs.message(
                QStringLiteral("Unrecoverable error %1 has occurred.").arg(error->number),
                error->text, MessageIcon::Critical, MessageButtons::Ok);
        if (tries == MaxTries) {
            giveUp(*error);
            return false;
        }
    }
}

void StartUp::giveUp(const StartUpError& error) {
    m_services.dialogs.message(
        QStringLiteral("The program cannot start: %1 in the study folder. Make sure that the "
                       "folder may be written to and has room, then start the program again.")
            .arg(error.text.toLower()),
        error.text, MessageIcon::Critical, MessageButtons::Ok);
    if (m_createdMarker)
        removeMarker();
}

void StartUp::removeMarker() {
    std::error_code ignored;
    std::filesystem::remove(m_state.catalogue.RunningMarkerName, ignored);
}

} // namespace tessera
