#include "tests/support/recording_screens.h"

namespace tessera {

std::string RecordingScreenHost::callsText() const {
    static const char* kinds[] = {"load", "show", "modal", "unload"};
    static const char* names[] = {"Pubdat",    "ButtonMenu", "Quiz800",  "Aladdin", "QuizSumm",
                                  "PictForm",  "ExamSet",    "ExamTest", "Results", "Scoring",
                                  "Navigator", "Viewing",    "NoteBook", "Help",    "Calculator",
                                  "AlarmForm", "Preferences"};
    std::string text;
    for (const ScreenCall& call : m_calls)
        text += std::string(text.empty() ? "" : ", ") + kinds[int(call.kind)] + ' ' +
                names[int(call.name)];
    return text;
}

QWidget* RecordingScreenHost::load(ScreenName name) {
    m_calls.push_back({ScreenCallKind::Load, name});
    return find(name);
}

QWidget* RecordingScreenHost::show(ScreenName name) {
    m_calls.push_back({ScreenCallKind::Show, name});
    return find(name);
}

void RecordingScreenHost::showModal(ScreenName name) {
    m_calls.push_back({ScreenCallKind::ShowModal, name});
}

void RecordingScreenHost::unload(ScreenName name) {
    m_calls.push_back({ScreenCallKind::Unload, name});
    m_placed.erase(name);
}

QWidget* RecordingScreenHost::find(ScreenName name) const {
    const auto found = m_placed.find(name);
    return found == m_placed.end() ? nullptr : found->second;
}

void RecordingScreenHost::endProgram() {
    m_ended = true;
}

void RecordingScreenHost::place(ScreenName name, QWidget* screen) {
    m_placed[name] = screen;
}

} // namespace tessera
