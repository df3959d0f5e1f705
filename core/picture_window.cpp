#include "core/picture_window.h"

#include "core/screen_host.h"

#include <QWidget>

namespace tessera {

void ShowPicture(ScreenHost& screens, int widthPixels, int heightPixels, const QString& fileName) {
    if (auto* window = dynamic_cast<PictureWindow*>(screens.load(ScreenName::PictForm)))
        window->showPicture(widthPixels, heightPixels, fileName);
}

PictureTwips pictureTwips(int widthPixels, int heightPixels) {
    return {widthPixels * 15 + 70, heightPixels * 15 + 460, widthPixels * 15, heightPixels * 15};
}

} // namespace tessera
