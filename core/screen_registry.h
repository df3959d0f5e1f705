#pragma once
// How a subsystem makes its screens known to the application object: one factory per name.

#include "core/screen_host.h"

#include <functional>
#include <map>

namespace tessera {

struct ScreenContext;

// Constructs the screen; its constructor is the screen's Form_Load.
using ScreenFactory = std::function<QWidget*(ScreenContext&)>;

class ScreenRegistry {
public:
    void add(ScreenName name, ScreenFactory create) { m_factories[name] = std::move(create); }

    // The usual case: a screen class constructed from the context alone.
    template <class Screen> void add(ScreenName name) {
        add(name, [](ScreenContext& context) -> QWidget* { return new Screen(context); });
    }

    bool contains(ScreenName name) const { return m_factories.contains(name); }

    const ScreenFactory* find(ScreenName name) const {
        const auto found = m_factories.find(name);
        return found == m_factories.end() ? nullptr : &found->second;
    }

private:
    std::map<ScreenName, ScreenFactory> m_factories;
};

} // namespace tessera
