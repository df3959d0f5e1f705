// A course document in its normal and large version, and the picture window, as a candidate
// meets them on an item with a figure.

#include "core/item_text.h"
#include "core/picture_window.h"
#include "core/rich_text_documents.h"
#include "platform/rich_text_view.h"
#include "review/pict_form.h"
#include "tests/gallery/gallery.h"

#include <QFile>

namespace tessera {

namespace {

// The item of topic 6 with the figure, question and explanation joined as after an answer.
QWidget* itemDocument(GalleryScene& scene, bool large) {
    scene.loadDefaultCourse();
    const std::string& item =
        scene.state.content.ReviewItems[RunningItemNumber(scene.state.content, 6, 8)];
    const RtfVersions versions = RtfVersions::of(QuestionWithExplanationDocument(
        scene.state.content.RtfHeader, ItemQuestion(item), ItemExplanation(item)));
    auto* view = new RichTextView;
    view->setCopyOnly(true);
    view->resize(large ? QSize(960, 640) : QSize(620, 420));
    view->setTextRtf(versions.forWindow(large));
    return view;
}

const GalleryEntry normalItem("platform_item_document_normal",
                              [](GalleryScene& scene) { return itemDocument(scene, false); });

const GalleryEntry largeItem("platform_item_document_large",
                             [](GalleryScene& scene) { return itemDocument(scene, true); });

const GalleryEntry pictureWindow("platform_picture_window", [](GalleryScene& scene) -> QWidget* {
    const PictureEntry entry = parsePictureEntry(scene.state.catalogue.PictureItems[1]);
    const QString fileName = QString::fromStdString(entry.fileName());
    QFile::copy(QStringLiteral(TESSERA_SOURCE_ROOT "/course/pictures/") + fileName, fileName);
    auto* form = new PictForm(scene.context);
    form->showPicture(entry.width, entry.height, fileName);
    return form;
});

} // namespace

} // namespace tessera
