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
    QWidget* load(ScreenName name) override;
    QWidget* show(ScreenName name) override;
    void showModal(ScreenName name) override;
    void unload(ScreenName name) override;
    QWidget* find(ScreenName name) const override;
    void endProgram() override;
    bool isAvailable(ScreenName name) const override { return !m_missing.contains(name); }

    // Every screen is available unless the test says otherwise.
    void setMissing(ScreenName name) { m_missing.insert(name); }
    // What find, load and show return for that name from now on; the test keeps ownership.
    void place(ScreenName name, QWidget* screen);

    const std::vector<ScreenCall>& calls() const { return m_calls; }
    // The calls as "show Help, unload Viewing, modal Navigator".
    std::string callsText() const;
    void clearCalls() { m_calls.clear(); }
    bool programEnded() const { return m_ended; }

private:
    std::vector<ScreenCall> m_calls;
    std::set<ScreenName> m_missing;
    std::map<ScreenName, QWidget*> m_placed;
    bool m_ended = false;
};

} // namespace tessera
