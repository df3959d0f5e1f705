// An item screen's document: both versions built from the content, then set into the view and
// laid out. Run on the largest item of a full-size course.

#include "core/content_file.h"
#include "core/item_text.h"
#include "core/rich_text_documents.h"
#include "core/session_state.h"
#include "platform/rich_text_view.h"
#include "tests/support/full_course_generator.h"

#include <QAbstractTextDocumentLayout>
#include <QApplication>

#include <benchmark/benchmark.h>

#include <algorithm>

namespace {

struct LargestItem {
    std::string header;
    std::string question;
    std::string explanation;
};

const LargestItem& largestItem() {
    static const LargestItem item = [] {
        const std::string file = tessera::FullCourseContent();
        tessera::SessionState state;
        tessera::FillCatalogue(state);
        tessera::CourseContent content;
        tessera::CutContent(std::string_view(file.data(), file.size() - 1), state.catalogue,
                            content);
        const auto largest = std::max_element(
            content.ReviewItems.begin(), content.ReviewItems.end(),
            [](const std::string& a, const std::string& b) { return a.size() < b.size(); });
        return LargestItem{content.RtfHeader, tessera::ItemQuestion(*largest),
                           tessera::ItemExplanation(*largest)};
    }();
    return item;
}

void BM_BuildItemVersions(benchmark::State& run) {
    const LargestItem& item = largestItem();
    for (auto _ : run) {
        auto versions = tessera::RtfVersions::of(
            tessera::QuestionWithExplanationDocument(item.header, item.question, item.explanation));
        benchmark::DoNotOptimize(versions.large.data());
    }
    run.counters["bytes"] = static_cast<double>(item.question.size() + item.explanation.size());
}
BENCHMARK(BM_BuildItemVersions)
    ->Unit(benchmark::kMicrosecond)
    ->Repetitions(7)
    ->ReportAggregatesOnly();

void BM_ShowItemInView(benchmark::State& run) {
    const LargestItem& item = largestItem();
    tessera::RichTextView view;
    view.resize(640, 480);
    for (auto _ : run) {
        const auto versions = tessera::RtfVersions::of(
            tessera::QuestionWithExplanationDocument(item.header, item.question, item.explanation));
        view.setTextRtf(versions.normal);
        // Asking for the size lays the whole document out, as showing it would.
        benchmark::DoNotOptimize(view.document()->documentLayout()->documentSize());
    }
}
BENCHMARK(BM_ShowItemInView)->Unit(benchmark::kMicrosecond)->Repetitions(7)->ReportAggregatesOnly();

} // namespace

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
