#include "app/application.h"

#include "app/real_services.h"
#include "app/screen_registrations.h"
#include "core/window_place.h"

#include <QApplication>
#include <QEvent>
#include <QEventLoop>
#include <QThread>
#include <QWidget>

namespace tessera {

int WindowSlotOf(ScreenName name) {
    switch (name) {
    case ScreenName::AlarmForm:
        return AlarmFormSlot;
    case ScreenName::Calculator:
        return CalculatorSlot;
    case ScreenName::ExamTest:
        return ExamTestSlot;
    case ScreenName::ExamSet:
        return ExamSetSlot;
    case ScreenName::Help:
        return HelpSlot;
    case ScreenName::Navigator:
        return NavigatorSlot;
    case ScreenName::NoteBook:
        return NoteBookSlot;
    case ScreenName::Preferences:
        return PreferencesSlot;
    case ScreenName::PictForm:
        return PictFormSlot;
    case ScreenName::Quiz800:
        return Quiz800Slot;
    case ScreenName::QuizSumm:
        return QuizSummSlot;
    case ScreenName::Results:
        return ResultsSlot;
    case ScreenName::Scoring:
        return ScoringSlot;
    case ScreenName::Viewing:
        return ViewingSlot;
    case ScreenName::Pubdat:
    case ScreenName::ButtonMenu:
    case ScreenName::Aladdin:
        break;
    }
    return 0;
}

Application::Application() : Application(std::make_unique<RealServices>()) {}

Application::Application(std::unique_ptr<RealServices> own)
    : m_ownServices(std::move(own)),
      m_services(m_ownServices->services), m_context{m_state, m_services, *this} {
    RegisterAllScreens(m_registry);
    joinTheDesktop();
}

Application::Application(Services& services)
    : m_services(services), m_context{m_state, m_services, *this} {
    RegisterAllScreens(m_registry);
    joinTheDesktop();
}

void Application::joinTheDesktop() {
    QCoreApplication::instance()->installEventFilter(&m_enterKeys);
    // Only the navigation screen ends the program; the last window closing, a message box of
    // start-up or a modal screen, must not.
    QApplication::setQuitOnLastWindowClosed(false);
}

Application::~Application() {
    for (auto& [name, screen] : m_loaded) {
        if (screen) {
            screen->removeEventFilter(this);
            disconnect(screen, nullptr, this, nullptr);
            delete screen;
        }
    }
}

int Application::run() {
    show(ScreenName::Pubdat);
    if (m_ended)
        return 0;
    return QApplication::exec();
}

QWidget* Application::load(ScreenName name) {
    if (m_ended)
        return nullptr;
    if (QWidget* loaded = find(name))
        return loaded;
    const ScreenFactory* create = m_registry.find(name);
    if (create == nullptr)
        return nullptr;
    QWidget* screen = (*create)(m_context);
    // Form_Load may end the program, as the title screen does when the course is missing.
    if (m_ended) {
        delete screen;
        return nullptr;
    }
    screen->setAttribute(Qt::WA_DeleteOnClose);
    screen->installEventFilter(this);
    connect(screen, &QObject::destroyed, this, &Application::forget);
    placeWindow(name, screen);
    m_loaded[name] = screen;
    return screen;
}

QWidget* Application::show(ScreenName name) {
    QWidget* screen = load(name);
    if (screen == nullptr)
        return nullptr;
    if (screen->isVisible()) {
        // Shown again while it stands open, perhaps behind the others: bring it forward.
        screen->raise();
        screen->activateWindow();
    } else {
        screen->show();
    }
    return screen;
}

void Application::showModal(ScreenName name) {
    QWidget* screen = load(name);
    if (screen == nullptr)
        return;
    QEventLoop loop;
    connect(screen, &QObject::destroyed, &loop, &QEventLoop::quit);
    screen->setWindowModality(Qt::ApplicationModal);
    screen->show();
    loop.exec();
}

void Application::unload(ScreenName name) {
    QWidget* screen = find(name);
    if (screen == nullptr)
        return;
    // Closing runs the screen's own unload; it is destroyed once the event has passed.
    if (screen->close()) {
        m_loaded.erase(name);
        screen->deleteLater();
    }
}

QWidget* Application::find(ScreenName name) const {
    const auto found = m_loaded.find(name);
    return found == m_loaded.end() ? nullptr : found->second.data();
}

void Application::endProgram() {
    m_ended = true;
    for (auto& [name, screen] : m_loaded) {
        if (screen) {
            screen->removeEventFilter(this);
            screen->hide();
            screen->deleteLater();
        }
    }
    m_loaded.clear();
    // Without a running loop there is nothing to leave; exit would also stop every loop
    // started later in this thread.
    if (QThread::currentThread()->loopLevel() > 0)
        QCoreApplication::exit(0);
}

bool Application::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Hide) {
        for (const auto& [name, screen] : m_loaded) {
            if (screen == watched)
                storeWindowPlace(name, screen);
        }
    }
    return QObject::eventFilter(watched, event);
}

void Application::forget(QObject* screen) {
    // A widget announces its end before its pointers read null; a fresh copy loaded under the
    // same name meanwhile stays.
    std::erase_if(m_loaded, [screen](const auto& entry) {
        return entry.second.isNull() || entry.second.data() == screen;
    });
}

void Application::placeWindow(ScreenName name, QWidget* screen) const {
    const int slot = WindowSlotOf(name);
    if (slot != 0 && (m_state.WindowLeft[slot] != 0 || m_state.WindowTop[slot] != 0))
        screen->move(m_state.WindowLeft[slot], m_state.WindowTop[slot]);
}

void Application::storeWindowPlace(ScreenName name, const QWidget* screen) {
    const int slot = WindowSlotOf(name);
    if (slot == 0)
        return;
    StoreWindowPlace(m_state, slot, *screen);
}

} // namespace tessera
