#pragma once
// PictForm: the small window beside an item that shows the item's figure.

#include "core/picture_window.h"

#include <QWidget>

class QLabel;

namespace tessera {

struct ScreenContext;

class PictForm final : public QWidget, public PictureWindow {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(PictForm)

public:
    // Loading takes nothing from the context: the application object restores the window slot.
    explicit PictForm(ScreenContext& context);
    explicit PictForm(QWidget* parent = nullptr);

    // A missing or unreadable picture leaves the window empty.
    void showPicture(int widthPixels, int heightPixels, const QString& fileName) override;

    // The sizes the last showing asked for, in twips.
    const PictureTwips& twips() const { return m_twips; }

    QLabel* Image1;

private:
    PictureTwips m_twips{};
};

} // namespace tessera
