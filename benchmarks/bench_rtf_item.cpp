// An item screen's document: both versions built from the content, then set into the view and
// laid out. Run on the largest item of a full-size course and on a long item made here.

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

// A long item in the content file's own form: a stem of several paragraphs, four choices and an
// explanation of many paragraphs, with bold, italic, tabs and Windows-1252 escapes.
const LargestItem& longItem() {
    static const LargestItem item = [] {
        const std::string sentence =
            "A broker\\'92s \\b fiduciary\\b0  duties run to the \\i principal\\i0 , while "
            "customers are owed honesty,\\tab fair dealing and disclosure of known defects. ";
        LargestItem made{largestItem().header, {}, {}};
        for (int p = 0; p < 4; ++p)
            made.question += std::string(p == 0 ? "" : "\r\n\\par ") + sentence + sentence;
        made.question += " Which statement is \\b best\\b0 ?";
        for (char letter = 'A'; letter <= 'D'; ++letter)
            made.question += std::string("\r\n\\par ") + letter + ". " + sentence;
        made.question += "\r\n\\par \r\n";
        for (int p = 0; p < 16; ++p)
            made.explanation += "\r\n\\par " + sentence + sentence + sentence;
        made.explanation += "\\par }\r\n";
        return made;
    }();
    return item;
}

const LargestItem& itemFor(const benchmark::State& run) {
    return run.range(0) == 0 ? largestItem() : longItem();
}

void BM_BuildItemVersions(benchmark::State& run) {
    const LargestItem& item = itemFor(run);
    for (auto _ : run) {
        auto versions = tessera::RtfVersions::of(
            tessera::QuestionWithExplanationDocument(item.header, item.question, item.explanation));
        benchmark::DoNotOptimize(versions.large.data());
    }
    run.counters["bytes"] = static_cast<double>(item.question.size() + item.explanation.size());
}
BENCHMARK(BM_BuildItemVersions)
    ->ArgName("long")
    ->Arg(0)
    ->Arg(1)
    ->Unit(benchmark::kMicrosecond)
    ->Repetitions(7)
    ->ReportAggregatesOnly();

void BM_ShowItemInView(benchmark::State& run) {
    const LargestItem& item = itemFor(run);
    tessera::RichTextView view;
    view.resize(640, 480);
    for (auto _ : run) {
        const auto versions = tessera::RtfVersions::of(
            tessera::QuestionWithExplanationDocument(item.header, item.question, item.explanation));
        view.setTextRtf(versions.normal);
        // Asking for the size lays the whole document out, as showing it would.
        benchmark::DoNotOptimize(view.document()->documentLayout()->documentSize());
    }
    run.counters["bytes"] = static_cast<double>(item.question.size() + item.explanation.size());
}
BENCHMARK(BM_ShowItemInView)
    ->ArgName("long")
    ->Arg(0)
    ->Arg(1)
    ->Unit(benchmark::kMicrosecond)
    ->Repetitions(7)
    ->ReportAggregatesOnly();

} // namespace

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
