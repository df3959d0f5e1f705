#pragma once
// A screen host that records what a screen asks of it instead of opening anything.

#include "core/screen_host.h"

#include <map>
#include <set>
#include <string>
#include <vector>

namespace tessera {

enum class ScreenCallKind { Load, Show, ShowModal, Unload };

struct ScreenCall {
    ScreenCallKind kind;
    ScreenName name;
    bool operator==(const ScreenCall&) const = default;
};

class RecordingScreenHost final : public ScreenHost {
public:
    QWidget* load(ScreenName name) override { return record(ScreenCallKind::Load, name); }
    QWidget* show(ScreenName name) override { return record(ScreenCallKind::Show, name); }
    void showModal(ScreenName name) override { record(ScreenCallKind::ShowModal, name); }
    void unload(ScreenName name) override {
        record(ScreenCallKind::Unload, name);
        m_placed.erase(name);
    }
    QWidget* find(ScreenName name) const override {
        const auto found = m_placed.find(name);
        return found == m_placed.end() ? nullptr : found->second;
    }
    void endProgram() override { m_ended = true; }
    bool isAvailable(ScreenName name) const override { return !m_missing.contains(name); }

    // Every screen is available unless the test says otherwise.
    void setMissing(ScreenName name) { m_missing.insert(name); }
    // What find, load and show return for that name from now on; the test keeps ownership.
    void place(ScreenName name, QWidget* screen) { m_placed[name] = screen; }

    const std::vector<ScreenCall>& calls() const { return m_calls; }
    // The calls as "show Help, unload Viewing, modal Navigator".
    std::string callsText() const {
        static const char* kinds[] = {"load", "show", "modal", "unload"};
        static const char* names[] = {
            "Pubdat",   "ButtonMenu", "Quiz800",    "Aladdin",   "QuizSumm",   "PictForm",
            "ExamSet",  "ExamTest",   "Results",    "Scoring",   "Navigator",  "Viewing",
            "NoteBook", "Help",       "Calculator", "AlarmForm", "Preferences"};
        std::string text;
        for (const ScreenCall& call : m_calls)
            text += std::string(text.empty() ? "" : ", ") + kinds[int(call.kind)] + ' ' +
                    names[int(call.name)];
        return text;
    }
    void clearCalls() { m_calls.clear(); }
    bool programEnded() const { return m_ended; }

private:
    QWidget* record(ScreenCallKind kind, ScreenName name) {
        m_calls.push_back({kind, name});
        return find(name);
    }

    std::vector<ScreenCall> m_calls;
    std::set<ScreenName> m_missing;
    std::map<ScreenName, QWidget*> m_placed;
    bool m_ended = false;
};

} // namespace tessera
