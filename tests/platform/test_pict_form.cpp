#include "core/picture_window.h"
#include "review/pict_form.h"
#include "tests/support/recording_screens.h"
#include "tests/support/study_folder.h"

#include <QImage>
#include <QLabel>
#include <QTest>

#include <array>

Q_DECLARE_METATYPE(tessera::PictureTwips)

namespace tessera {

class TestPictForm : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void showsThePictureInAWindowSizedFromTheTable_data() {
        QTest::addColumn<QByteArray>("format"); // of the file under the .gph name; empty: none
        QTest::addColumn<QSize>("size");
        QTest::addColumn<PictureTwips>("twips");
        QTest::newRow("PNG") << QByteArray("PNG") << QSize(263, 232)
                             << PictureTwips{4015, 3940, 3945, 3480};
        QTest::newRow("JPEG, recognised by content")
            << QByteArray("JPEG") << QSize(20, 10) << PictureTwips{370, 610, 300, 150};
        QTest::newRow("missing") << QByteArray() << QSize(30, 40)
                                 << PictureTwips{520, 1060, 450, 600};
    }

    // The window comes back from a minimised state, and a picture shown before never lingers.
    void showsThePictureInAWindowSizedFromTheTable() {
        QFETCH(QByteArray, format);
        QFETCH(QSize, size);
        QFETCH(PictureTwips, twips);
        StudyFolder folder;
        const auto write = [](const QString& name, QSize pixels, const char* kind) {
            QImage image(pixels, QImage::Format_RGB32);
            image.fill(Qt::darkCyan);
            QVERIFY(image.save(name, kind));
        };
        write(QStringLiteral("Tessera09075.gph"), QSize(8, 8), "PNG");
        if (!format.isEmpty())
            write(QStringLiteral("Tessera06008.gph"), size, format.constData());
        PictForm form;
        RecordingScreenHost host;
        host.place(ScreenName::PictForm, &form);
        ShowPicture(host, 8, 8, QStringLiteral("Tessera09075.gph"));
        form.showMinimized();
        ShowPicture(host, size.width(), size.height(), QStringLiteral("Tessera06008.gph"));
        QVERIFY(form.isVisible());
        QVERIFY(!form.isMinimized());
        QCOMPARE(form.windowTitle(), QStringLiteral("Form1"));
        const PictureTwips shown = form.twips();
        QCOMPARE((std::array{shown.windowWidth, shown.windowHeight, shown.imageWidth,
                             shown.imageHeight}),
                 (std::array{twips.windowWidth, twips.windowHeight, twips.imageWidth,
                             twips.imageHeight}));
        QCOMPARE(form.Image1->size(), size);
        QCOMPARE(form.Image1->pixmap().size(), format.isEmpty() ? QSize(0, 0) : size);
    }
};

} // namespace tessera

QTEST_MAIN(tessera::TestPictForm)
#include "test_pict_form.moc"
