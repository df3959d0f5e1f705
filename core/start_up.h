#pragma once
// The title screen's load: every step of start-up in order, from filling the catalogue to the
// printer fonts, with the one error handler that covers the steps after the progress file.

#include "core/session_state.h"
#include "platform/services.h"

#include <QString>

#include <functional>
#include <optional>
#include <string>

namespace tessera {

// A failed step as the handler sees it: the run-time error's number and its text.
struct StartUpError {
    int number = 0;
    QString text;
};

inline constexpr int PrinterErrorNumber = 482;

// The error of the failed file operation that just set errno.
StartUpError FileError();

enum class StartUpOutcome {
    Ready, // the title can show; the caller sets the captions and the start time
    Ended, // the program must end; what was to be done to the marker is done
};

class StartUp final {
public:
    StartUp(SessionState& state, Services& services);
    // Every step in order.
    StartUpOutcome run();
    // The steps up to the restored test and exam: all that can ask the user something before
    // the title shows, and all the title needs.
    StartUpOutcome beforeTitle();
    // Cutting the content file and the printer fonts: the slow steps, which the title screen
    // runs once it has been painted.
    StartUpOutcome afterTitle();

    // A step that keeps failing ends the program after this many tries.
    static constexpr int MaxTries = 3;

private:
    using Step = std::function<std::optional<StartUpError>()>;

    bool contentFilePresent();
    bool markRunning();
    // Says that the progress file is damaged and offers the newest good backup; true while the
    // damaged file stays.
    bool offerBackupIfDamaged();
    // Puts the test or exam a crash broke off back as suspended, and says so.
    void replayJournal();
    std::optional<std::string> askUserName();
    bool firstRun();
    std::optional<StartUpError> writeFirstHeader(const std::string& name);
    std::optional<StartUpError> writeNoteBook(const std::string& name);
    std::optional<StartUpError> loadContent();
    std::optional<StartUpError> choosePrintFont();
    bool attempt(const Step& step);
    void giveUp(const StartUpError& error);
    void removeMarker();

    SessionState& m_state;
    Services& m_services;
    bool m_createdMarker = false;
};

// The fixed-pitch printer font among the printer's fonts: the last of "Terminal",
// "MS LineDraw", "Courier", "Courier New" found in their joined names; empty if none.
std::string ChoosePrintFontName(const QStringList& fontNames);

// The confirmed form of a typed name: leading blanks cut, at most 30 characters.
QString CutUserName(const QString& typed);

} // namespace tessera
