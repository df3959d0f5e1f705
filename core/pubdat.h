#pragma once
// Pubdat, the title screen: its load does start-up, finishing the slow steps once the title
// stands on the screen; then the title stays a few seconds and hands over to the navigation
// screen.

#include "core/screen_context.h"

#include <QWidget>

#include <array>
#include <memory>
#include <optional>

class QLabel;
class QTimer;

namespace tessera {

class StartUp;

class Pubdat final : public QWidget {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(Pubdat)

public:
    explicit Pubdat(ScreenContext& context);
    ~Pubdat() override;

    // Seconds the title stands before it hands over by itself.
    static constexpr double TitleSeconds = 4.0;

protected:
    void showEvent(QShowEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void buildControls();
    void setCaptions();
    void finishStartUp();
    void Timer1_Timer();
    void leave();

    ScreenContext& m_context;
    // Start-up runs in two parts: before the title shows, and once it has been painted.
    std::unique_ptr<StartUp> m_startUp;
    bool m_finishQueued = false;
    std::array<QLabel*, 8> Label1{};
    QTimer* Timer1 = nullptr;
    // Seconds since midnight when start-up was done; until then the screen can't be left.
    std::optional<double> m_startTime;
    bool m_leaving = false;
};

} // namespace tessera
