#include "core/picture_window.h"
#include "core/screen_host.h"
#include "review/pict_form.h"

#include <QImage>
#include <QLabel>
#include <QTest>

#include <memory>

namespace tessera {

class TestPictForm : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void windowIsSizedFromThePictureTable();
    void pictureIsRecognisedByContent();
    void missingPictureLeavesAnEmptyWindow();
};

namespace {

// A host that knows only the picture window.
class PictureHost final : public ScreenHost {
public:
    QWidget* load(ScreenName) override {
        if (!m_form)
            m_form = std::make_unique<PictForm>();
        return m_form.get();
    }
    QWidget* show(ScreenName name) override { return load(name); }
    void showModal(ScreenName) override {}
    void unload(ScreenName) override { m_form.reset(); }
    QWidget* find(ScreenName) const override { return m_form.get(); }
    bool isAvailable(ScreenName) const { return true; }
    void endProgram() override {}
    PictForm* form() const { return m_form.get(); }

private:
    std::unique_ptr<PictForm> m_form;
};

void writePicture(const QString& fileName, QSize size) {
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::darkCyan);
    QVERIFY(image.save(fileName, "PNG"));
}

} // namespace

void TestPictForm::windowIsSizedFromThePictureTable() {
    PictureHost host;
    writePicture(QStringLiteral("Tessera06008.gph"), QSize(263, 232));
    ShowPicture(host, 263, 232, QStringLiteral("Tessera06008.gph"));
    PictForm* form = host.form();
    QVERIFY(form->isVisible());
    QCOMPARE(form->windowTitle(), QStringLiteral("Form1"));
    QCOMPARE(form->twips().windowWidth, 263 * 15 + 70);
    QCOMPARE(form->twips().windowHeight, 232 * 15 + 460);
    QCOMPARE(form->twips().imageWidth, 3945);
    QCOMPARE(form->twips().imageHeight, 3480);
    QCOMPARE(form->Image1->size(), QSize(263, 232));

    form->showMinimized();
    ShowPicture(host, 263, 232, QStringLiteral("Tessera06008.gph"));
    QVERIFY(!form->isMinimized());
    QVERIFY(form->isVisible());
}

void TestPictForm::pictureIsRecognisedByContent() {
    PictureHost host;
    QImage image(20, 10, QImage::Format_RGB32);
    image.fill(Qt::red);
    QVERIFY(image.save(QStringLiteral("Tessera09075.gph"), "JPEG"));
    ShowPicture(host, 20, 10, QStringLiteral("Tessera09075.gph"));
    QCOMPARE(host.form()->Image1->pixmap().size(), QSize(20, 10));
}

void TestPictForm::missingPictureLeavesAnEmptyWindow() {
    PictureHost host;
    writePicture(QStringLiteral("Tessera06008.gph"), QSize(8, 8));
    ShowPicture(host, 8, 8, QStringLiteral("Tessera06008.gph"));
    ShowPicture(host, 30, 40, QStringLiteral("missing.gph"));
    QVERIFY(host.form()->isVisible());
    QVERIFY(host.form()->Image1->pixmap().isNull());
    QCOMPARE(host.form()->Image1->size(), QSize(30, 40));
}

} // namespace tessera

QTEST_MAIN(tessera::TestPictForm)
#include "test_pict_form.moc"
