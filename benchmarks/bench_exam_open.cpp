// Opening a 300-item custom exam: the draw, both lists filled, the first item painted.
// Target: under 50 ms.

#include "core/content_file.h"
#include "core/session_state.h"
#include "exam/exam_test.h"
#include "tests/support/full_course_generator.h"
#include "tests/support/recording_screens.h"
#include "tests/support/test_services.h"

#include <QApplication>
#include <QDir>
#include <QPixmap>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <memory>

namespace tessera {
namespace {

void OpenCustomExam(benchmark::State& run) {
    SessionState state;
    FillCatalogue(state);
    const std::string file = FullCourseContent();
    CutContent(std::string_view(file.data(), file.size() - 1), state.catalogue, state.content);
    TestServices doubles;
    RecordingScreenHost screens;
    ScreenContext context{state, doubles.services, screens};
    std::unique_ptr<ExamTest> exam;
    for (auto _ : run) {
        state.ExamKind = state.ExamType = 3;
        state.ExamItemCount = 300;
        state.ExamPosition = 0;
        state.ExamScrambled = true;
        exam = std::make_unique<ExamTest>(context);
        exam->show();
        const QPixmap painted = exam->grab();
        benchmark::DoNotOptimize(painted.cacheKey());
        run.PauseTiming();
        exam.reset(); // destroyed without closing: nothing is saved
        run.ResumeTiming();
    }
}
BENCHMARK(OpenCustomExam)->Unit(benchmark::kMillisecond)->Repetitions(5)->ReportAggregatesOnly();

} // namespace
} // namespace tessera

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    // Saves and the run journal land in the current folder: a scratch one, never the tree.
    QTemporaryDir scratch;
    QDir::setCurrent(scratch.path());
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
