#include "tests/support/recording_screens.h"

#include <algorithm>

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
    std::erase_if(m_placed, [name](const auto& entry) { return entry.first == name; });
}

QWidget* RecordingScreenHost::find(ScreenName name) const {
    const auto found = std::find_if(m_placed.begin(), m_placed.end(),
                                    [name](const auto& entry) { return entry.first == name; });
    return found == m_placed.end() ? nullptr : found->second;
}

void RecordingScreenHost::endProgram() {
    m_ended = true;
}

void RecordingScreenHost::place(ScreenName name, QWidget* screen) {
    std::erase_if(m_placed, [name](const auto& entry) { return entry.first == name; });
    m_placed.emplace_back(name, screen);
}

} // namespace tessera
