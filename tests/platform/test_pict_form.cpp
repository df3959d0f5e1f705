// The picture window: sized from the picture's table entry, back from a minimised state, and
// never showing a picture from before.

#include "core/picture_window.h"
#include "review/pict_form.h"
#include "tests/support/recording_screens.h"
#include "tests/support/study_folder.h"

#include <QImage>
#include <QLabel>
#include <QTest>

namespace tessera {

class TestPictForm : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void showsThePictureInAWindowSizedFromTheTable() {
        const struct {
            const char* format; // of the file under the .gph name; none: no file
            QSize size;
            QString shown;
        } cases[] = {{"PNG", {263, 232}, "4015x3940 3945x3480 263x232 263x232"},
                     {"JPEG", {20, 10}, "370x610 300x150 20x10 20x10"}, // told by its content
                     {nullptr, {30, 40}, "520x1060 450x600 30x40 0x0"}};
        for (const auto& c : cases) {
            StudyFolder folder;
            QImage image(8, 8, QImage::Format_RGB32);
            image.fill(Qt::darkCyan);
            QVERIFY(image.save(QStringLiteral("Tessera09075.gph"), "PNG"));
            if (c.format != nullptr)
                QVERIFY(image.scaled(c.size).save(QStringLiteral("Tessera06008.gph"), c.format));
            PictForm form;
            RecordingScreenHost host;
            host.place(ScreenName::PictForm, &form);
            ShowPicture(host, 8, 8, QStringLiteral("Tessera09075.gph"));
            form.showMinimized();
            ShowPicture(host, c.size.width(), c.size.height(), QStringLiteral("Tessera06008.gph"));
            QVERIFY(form.isVisible() && !form.isMinimized());
            const PictureTwips t = form.twips();
            const QSize pixmap = form.Image1->pixmap().size();
            QCOMPARE(QString::asprintf("%dx%d %dx%d %dx%d %dx%d", t.windowWidth, t.windowHeight,
                                       t.imageWidth, t.imageHeight, form.Image1->width(),
                                       form.Image1->height(), pixmap.width(), pixmap.height()),
                     c.shown);
        }
    }
};

} // namespace tessera

QTEST_MAIN(tessera::TestPictForm)
#include "test_pict_form.moc"
