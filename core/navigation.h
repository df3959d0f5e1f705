#pragma once
// RefreshNavigation's rules: the navigation screen's captions and enabled states, from the
// take counters and the suspended test and exam.

#include "core/session_state.h"

#include <array>
#include <optional>
#include <string>

namespace tessera {

struct CaptionState {
    std::string caption;
    bool enabled = true;
    bool operator==(const CaptionState&) const = default;
};

struct NavigationView {
    CaptionState reviewOption; // Option1(0)
    CaptionState examOption;   // Option1(1)
    // Command1(0..8); empty while a test is suspended or all topics are done, when the
    // buttons keep what they showed before.
    std::optional<std::array<CaptionState, TopicCount>> topics;
    bool reviewCardEnabled = true; // Command2(0)
    bool examCardEnabled = true;   // Command2(1)
};

NavigationView ComputeNavigation(const SessionState& state);

// The suffix of a topic button by how often the topic has been drilled.
std::string DrillSuffix(int takeCount);

// The display must be at least 800 by 600 pixels.
bool DisplayLargeEnough(int width, int height);

} // namespace tessera
