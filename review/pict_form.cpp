#include "review/pict_form.h"

#include "platform/twips.h"

#include <QImageReader>
#include <QLabel>
#include <QPixmap>
#include <QVBoxLayout>

namespace tessera {

PictForm::PictForm(ScreenContext& /*context*/) : PictForm(nullptr) {}

PictForm::PictForm(QWidget* parent) : QWidget(parent, Qt::Window), Image1(new QLabel(this)) {
    setObjectName(QStringLiteral("PictForm"));
    setWindowTitle(QStringLiteral("Form1"));
    // It opens beside its item and leaves the keyboard there, so letters typed next answer;
    // a picture has nothing to type into.
    setAttribute(Qt::WA_ShowWithoutActivating);
    setWindowFlag(Qt::WindowDoesNotAcceptFocus);
    Image1->setObjectName(QStringLiteral("Image1"));
    Image1->setAccessibleName(QStringLiteral("Picture for the item"));
    // ReSize1: the image follows the window's size.
    Image1->setScaledContents(true);
    Image1->setMinimumSize(1, 1);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(Image1);
}

void PictForm::showPicture(int widthPixels, int heightPixels, const QString& fileName) {
    setWindowState(Qt::WindowNoState);
    hide();
    m_twips = pictureTwips(widthPixels, heightPixels);
    // The frame and title bar that the window's outer size allows for are the window
    // system's own, so the inside is the image's size.
    resize(m_twips.imageWidth / TwipsPerPixel, m_twips.imageHeight / TwipsPerPixel);

    QImageReader reader(fileName);
    reader.setDecideFormatFromContent(true);
    const QImage picture = reader.read();
    if (picture.isNull())
        Image1->clear();
    else
        Image1->setPixmap(QPixmap::fromImage(picture));
    show();
}

} // namespace tessera
