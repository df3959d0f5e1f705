// The default course as the candidate meets it: the first item of each topic on the review test
// screen, and the two items that come with a figure, shown beside their picture window.

#include "core/content_file.h"
#include "course/compiler/content_writer.h"
#include "course/compiler/course_source.h"
#include "review/pict_form.h"
#include "review/quiz800.h"
#include "tests/gallery/gallery.h"
#include "tests/support/full_course_generator.h"

#include <QFile>
#include <QHBoxLayout>

#include <filesystem>

namespace tessera {

void GalleryScene::loadDefaultCourse() {
    std::vector<course::SourceError> errors;
    const course::Course source =
        course::ReadCourse(std::filesystem::path(TESSERA_SOURCE_ROOT) / "course", errors);
    std::string file = errors.empty() ? course::WriteContent(source, errors) : std::string();
    if (!errors.empty() || file.size() < 2)
        file = FullCourseContent();
    CutContent(std::string_view(file.data(), file.size() - 1), state.catalogue, state.content);
}

void GalleryScene::setUpReviewTest(int topic, int position) {
    loadDefaultCourse();
    SessionState& s = state;
    s.PassingGrade = 70;
    s.IncludeProgressReport = true;
    s.CurrentTopic = static_cast<int16_t>(topic);
    s.TestType = 1;
    s.TestItemCount = s.content.ItemCounts[topic][1];
    for (int j = 1; j <= s.TestItemCount; ++j)
        s.TestItems[j] = static_cast<int16_t>(RunningItemNumber(s.content, topic, j));
    s.TestPosition = static_cast<int16_t>(position);
    s.TestFurthest = static_cast<int16_t>(position - 1);
    for (int i = 1; i <= 3; ++i)
        s.WishesLeft[i] = static_cast<int16_t>(s.TestItemCount / 40 + 1);
}

namespace {

Quiz800* OpenItem(GalleryScene& scene, int topic, int position) {
    scene.setUpReviewTest(topic, position);
    return new Quiz800(scene.context);
}

// The item screen with its picture window beside it, as the two stand on the desktop.
QWidget* FigureItem(GalleryScene& scene, int pictureEntry) {
    const PictureEntry entry = parsePictureEntry(scene.state.catalogue.PictureItems[pictureEntry]);
    const QString fileName = QString::fromStdString(entry.fileName());
    QFile::copy(QStringLiteral(TESSERA_SOURCE_ROOT "/course/pictures/") + fileName, fileName);
    const int topic = std::stoi(entry.key.substr(0, 2));
    const int ordinal = std::stoi(entry.key.substr(2));
    auto* desk = new QWidget;
    auto* row = new QHBoxLayout(desk);
    row->addWidget(OpenItem(scene, topic, ordinal), 1);
    // The picture window set into the desk, so that one image shows both windows.
    auto* picture = new PictForm(desk);
    picture->setWindowFlags(Qt::Widget);
    picture->showPicture(entry.width, entry.height, fileName);
    picture->setFixedSize(entry.width, entry.height);
    row->addWidget(picture, 0, Qt::AlignTop);
    return desk;
}

// One entry a topic, each opening the topic's first item.
const bool topicEntries = [] {
    for (int t = 1; t <= TopicCount; ++t) {
        const std::string name = "course_topic_" + std::to_string(t) + "_first_item";
        GalleryEntry(name.c_str(), [t](GalleryScene& scene) { return OpenItem(scene, t, 1); });
    }
    return true;
}();

const GalleryEntry figure1("course_figure_item_06008",
                           [](GalleryScene& scene) { return FigureItem(scene, 1); });
const GalleryEntry figure2("course_figure_item_09075",
                           [](GalleryScene& scene) { return FigureItem(scene, 2); });

} // namespace

} // namespace tessera
