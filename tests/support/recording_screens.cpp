#include "tests/support/recording_screens.h"

namespace tessera {

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
