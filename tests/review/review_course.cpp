#include "review_course.h"

#include "core/progress_file.h"

#include <QFile>

namespace tessera {

char RightLetterOf(int runningNumber) {
    return static_cast<char>('A' + (runningNumber + 2) % 4);
}

std::string SmallCourseItem(int topic, int ordinal, int runningNumber) {
    char key[8];
    std::snprintf(key, sizeof key, "%02d%03d", topic, ordinal);
    const std::string n = std::to_string(runningNumber);
    return "\\par " + std::string(key) + RightLetterOf(runningNumber) + "\r\n\\par Question " + n +
           ": which answer is right?\r\n"
           "\\par A. Alpha " +
           n + "\r\n\\par B. Bravo " + n + "\r\n\\par C. Charlie " + n + "\r\n\\par D. Delta " + n +
           "\r\n\\par \r\n\\par *\r\n\\par Explanation " + n + ": the book says so.\r\n\\par }\r\n";
}

void FillSmallCourse(SessionState& state) {
    FillCatalogue(state);
    state.content.RtfHeader = "{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0\\fswiss Arial;}}\\f0\\fs24 ";
    int running = 0;
    for (int t = 1; t <= TopicCount; ++t) {
        state.content.ItemCounts[t][1] = static_cast<int16_t>(SmallCourseCounts[t]);
        for (int j = 1; j <= SmallCourseCounts[t]; ++j) {
            ++running;
            state.content.ReviewItems[running] = SmallCourseItem(t, j, running);
            if (t == 6 && j == 8)
                state.content.ItemPicture[running] = 1;
        }
    }
}

void ReviewScreenFixture::startFresh() {
    QFile::remove(QString::fromLatin1(ProgressFile));
    state = SessionState{};
    FillSmallCourse(state);
    state.PassingGrade = 70;
    state.IncludeProgressReport = true;
}

void ReviewScreenFixture::startNewRun() {
    state = SessionState{};
    FillSmallCourse(state);
    state.PassingGrade = 70;
    state.IncludeProgressReport = true;
    const ProgressHeader header = ReadProgressHeader();
    for (int i = 1; i <= TakeCounterCount; ++i)
        state.TakeCounts[i] = header.TakeCounts[i];
    RestoreSuspended(state);
}

} // namespace tessera
