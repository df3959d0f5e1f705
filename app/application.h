#pragma once
// The one owner of the shared state: it holds SessionState, the course tables and the services,
// and loads, shows and unloads every screen by name.

#include "core/screen_context.h"
#include "core/screen_registry.h"
#include "core/session_state.h"
#include "platform/desktop_keys.h"

#include <QObject>
#include <QPointer>

#include <map>
#include <memory>

namespace tessera {

struct RealServices;

class Application final : public QObject, public ScreenHost {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(Application)

public:
    // The program itself, with the machine's own services.
    Application();
    // The given services, which stay the caller's: doubles in tests.
    explicit Application(Services& services);
    ~Application() override;

    SessionState& state() { return m_state; }
    Services& services() { return m_services; }
    // Every screen of the build; tests may add or replace entries before run().
    ScreenRegistry& registry() { return m_registry; }

    // Shows the title screen and runs until the program ends; returns the exit code.
    int run();
    bool ended() const { return m_ended; }

    QWidget* load(ScreenName name) override;
    QWidget* show(ScreenName name) override;
    void showModal(ScreenName name) override;
    void unload(ScreenName name) override;
    QWidget* find(ScreenName name) const override;
    bool isAvailable(ScreenName name) const override { return m_registry.contains(name); }
    void endProgram() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    explicit Application(std::unique_ptr<RealServices> own);
    void joinTheDesktop();
    void forget(QObject* screen);
    void placeWindow(ScreenName name, QWidget* screen) const;
    void storeWindowPlace(ScreenName name, const QWidget* screen);

    std::unique_ptr<RealServices> m_ownServices;
    Services& m_services;
    SessionState m_state;
    ScreenRegistry m_registry;
    ScreenContext m_context;
    std::map<ScreenName, QPointer<QWidget>> m_loaded;
    EnterPressesButton m_enterKeys;
    bool m_ended = false;
};

// The window slot of each screen in WindowLeft and WindowTop; 0 for a screen without one.
int WindowSlotOf(ScreenName name);

} // namespace tessera
