// One item of a review test on the full-size course, screen included: ShowItem, then the right
// answer typed at the text view, which scores it and reveals the explanation, then the paint
// that the event loop does (the view is checked to have painted on every round).

#include "core/content_file.h"
#include "platform/rich_text_view.h"
#include "review/quiz800.h"
#include "tests/support/full_course_generator.h"
#include "tests/support/recording_screens.h"
#include "tests/support/test_services.h"

#include <QApplication>
#include <QDir>
#include <QKeyEvent>
#include <QPushButton>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

namespace {

using namespace tessera;

// Counts the paints of the text view, so that a run proves the explanation was painted.
class PaintCounter final : public QObject {
public:
    int paints = 0;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint)
            ++paints;
        return QObject::eventFilter(watched, event);
    }
};

struct ReviewBench : TestServices {
    SessionState state;
    RecordingScreenHost screens;
    ScreenContext context{state, services, screens};
    std::unique_ptr<Quiz800> quiz;
    PaintCounter painted;

    ReviewBench() {
        FillCatalogue(state);
        const std::string file = FullCourseContent();
        CutContent(std::string_view(file).substr(0, file.size() - 1), state.catalogue,
                   state.content);
        // The largest topic, so that the longest items take part.
        for (int t = 1; t <= TopicCount; ++t) {
            if (state.content.ItemCounts[t][1] > state.content.ItemCounts[state.CurrentTopic][1])
                state.CurrentTopic = static_cast<int16_t>(t);
        }
        state.PassingGrade = 70;
        state.IncludeProgressReport = true;
        state.TimerActive = true;
        quiz = std::make_unique<Quiz800>(context);
        quiz->show();
        QApplication::processEvents();
        quiz->RichTextBox1->viewport()->installEventFilter(&painted);
    }

    // Puts position p on screen as a new item.
    void showNew(int p) {
        state.TestPosition = static_cast<int16_t>(p);
        state.TestFurthest = static_cast<int16_t>(p);
        state.TestMisses[p] = 0;
        state.TestTally.fill(0);
        quiz->ShowItem(p);
    }

    // The right letter typed at the text view, as the key reaches it from the window system.
    void typeRightLetter(int p) {
        const char upper = state.content.ReviewItems[state.TestItems[p]][10];
        const QString text(QChar::fromLatin1(upper).toLower());
        const auto key = static_cast<Qt::Key>(Qt::Key_A + (upper - 'A'));
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
        QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier, text);
        QApplication::sendEvent(quiz->RichTextBox1, &press);
        QApplication::sendEvent(quiz->RichTextBox1, &release);
    }
};

void ShowItemAnswerReveal(benchmark::State& run) {
    ReviewBench bench;
    const int count = bench.state.TestItemCount;
    int p = 1;
    for (auto _ : run) {
        bench.showNew(p);
        bench.typeRightLetter(p);
        QApplication::processEvents();
        p = p % count + 1;
    }
    if (!bench.quiz->Command1[6]->isEnabled())
        run.SkipWithError("the item was not revealed");
    if (bench.painted.paints < static_cast<int>(run.iterations()))
        run.SkipWithError("the explanation was not painted each time");
}
BENCHMARK(ShowItemAnswerReveal)
    ->Unit(benchmark::kMillisecond)
    ->Repetitions(5)
    ->ReportAggregatesOnly();

void ShowItemOnly(benchmark::State& run) {
    ReviewBench bench;
    const int count = bench.state.TestItemCount;
    int p = 1;
    for (auto _ : run) {
        bench.showNew(p);
        QApplication::processEvents();
        p = p % count + 1;
    }
}
BENCHMARK(ShowItemOnly)->Unit(benchmark::kMillisecond)->Repetitions(5)->ReportAggregatesOnly();

} // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    // Saves and the run journal land in the current folder: a scratch one, never the tree.
    QTemporaryDir scratch;
    QDir::setCurrent(scratch.path());
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
