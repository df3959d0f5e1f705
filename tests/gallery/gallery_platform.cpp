// A course document in its normal and large version, and the picture window, as a candidate
// meets them on an item with a figure.

#include "core/content_file.h"
#include "core/item_text.h"
#include "core/rich_text_documents.h"
#include "course/compiler/content_writer.h"
#include "course/compiler/course_source.h"
#include "platform/picture_window.h"
#include "platform/rich_text_view.h"
#include "review/pict_form.h"
#include "tests/gallery/gallery.h"

#include <QFile>

namespace tessera {

namespace {

// The default course compiled and cut as start-up would; false if the source does not compile.
bool loadCourse(SessionState& state) {
    std::vector<course::SourceError> errors;
    const course::Course source = course::ReadCourse(TESSERA_SOURCE_ROOT "/course", errors);
    const std::string file = course::WriteContent(source, errors);
    if (!errors.empty() || file.empty())
        return false;
    CutContent(std::string_view(file.data(), file.size() - 1), state.catalogue, state.content);
    return true;
}

// The item of topic 6 with the figure, question and explanation joined as after an answer.
QWidget* itemDocument(GalleryScene& scene, bool large) {
    if (!loadCourse(scene.state))
        return nullptr;
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
