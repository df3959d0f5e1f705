// The review test report card with a term's worth of tests, and empty.

#include "core/progress_file.h"
#include "review/quiz_summ.h"
#include "tests/gallery/gallery.h"

#include <QListWidget>
#include <QRadioButton>

#include <fstream>

namespace tessera {

namespace {

struct SampleTest {
    int topic;
    const char* date;
    int type;
    int asked;
    int right;
    int wild;
    float minutes;
};

ReviewTestRecord SampleRecord(const SampleTest& test) {
    ReviewTestRecord r;
    r.Topic = static_cast<uint8_t>(test.topic);
    r.Date = test.date;
    r.TestType = static_cast<uint8_t>(test.type);
    r.ItemCount = static_cast<int16_t>(test.asked);
    r.Score = static_cast<float>(test.right) / static_cast<float>(test.asked);
    int tries = 0;
    for (int k = 1; k <= test.asked; ++k) {
        const int misses = k <= test.wild ? 2 : k <= test.asked - test.right ? 1 : 0;
        r.Items[static_cast<size_t>(k)] = static_cast<int16_t>(k);
        r.Misses[static_cast<size_t>(k)] = static_cast<uint8_t>(misses);
        tries += misses + 1;
    }
    r.TriesRatio = static_cast<float>(tries) / static_cast<float>(test.asked);
    r.Scrambled = test.topic % 2 == 0 ? 1 : 0;
    r.MinutesUsed = test.minutes;
    return r;
}

void WriteSampleCard() {
    const std::array<SampleTest, 9> tests = {{
        {1, "09-14-2026", 1, 88, 61, 9, 74.5F},
        {1, "09-21-2026", 3, 27, 20, 3, 18.25F},
        {2, "10-02-2026", 1, 92, 70, 6, 81.0F},
        {3, "10-09-2026", 1, 75, 68, 2, 52.75F},
        {1, "10-12-2026", 1, 88, 79, 1, 60.5F},
        {4, "10-30-2026", 1, 110, 74, 14, 96.0F},
        {4, "11-04-2026", 4, 14, 12, 0, 8.5F},
        {6, "11-18-2026", 1, 30, 30, 0, 21.0F},
        {5, "01-06-2027", 1, 64, 49, 5, 47.25F},
    }};
    std::ofstream file(ProgressFile, std::ios::binary | std::ios::trunc);
    const RecordBytes header = EncodeHeader(ProgressHeader{});
    file.write(reinterpret_cast<const char*>(header.data()), RecordSize);
    for (const SampleTest& test : tests) {
        const RecordBytes record = EncodeReviewTest(SampleRecord(test));
        file.write(reinterpret_cast<const char*>(record.data()), RecordSize);
    }
}

void CountDrills(GalleryScene& scene) {
    for (int t = 1; t <= TopicCount; ++t)
        scene.state.content.ItemCounts[t][1] = 88;
    scene.state.TakeCounts[1] = 2;
}

} // namespace

const GalleryEntry quizSummCard("review_quiz_summ_card", [](GalleryScene& scene) {
    CountDrills(scene);
    WriteSampleCard();
    auto* card = new QuizSumm(scene.context);
    card->List1->setCurrentRow(1);
    return card;
});

const GalleryEntry quizSummByPercent("review_quiz_summ_by_percent", [](GalleryScene& scene) {
    CountDrills(scene);
    WriteSampleCard();
    auto* card = new QuizSumm(scene.context);
    card->Option1[2]->setChecked(true);
    card->Option2[1]->setChecked(true);
    return card;
});

const GalleryEntry quizSummEmpty("review_quiz_summ_empty",
                                 [](GalleryScene& scene) { return new QuizSumm(scene.context); });

} // namespace tessera
