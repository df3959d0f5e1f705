#pragma once
// The window that shows an item's picture, as ShowPicture sees it.

#include <QString>

class QWidget;

namespace tessera {

class ScreenHost;

class PictureWindow {
public:
    virtual ~PictureWindow() = default;
    // Normal window state, sized to the picture, picture loaded from the file, shown.
    virtual void showPicture(int widthPixels, int heightPixels, const QString& fileName) = 0;
};

// Fills and shows PictForm through the host; the window is made to fit before the picture loads.
void ShowPicture(ScreenHost& screens, int widthPixels, int heightPixels, const QString& fileName);

// The window's size and the image's size in twips, 15 twips to a pixel.
struct PictureTwips {
    int windowWidth;
    int windowHeight;
    int imageWidth;
    int imageHeight;
};
PictureTwips pictureTwips(int widthPixels, int heightPixels);

} // namespace tessera
