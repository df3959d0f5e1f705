// LoadContent on a full-size course: start-up cuts the whole content file into memory once.

#include "core/content_file.h"
#include "tests/support/full_course_generator.h"

#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>

namespace {

// Writes the full-size course as Tessera into a folder of its own and works there.
class FullCourseFolder {
public:
    FullCourseFolder()
        : m_folder(std::filesystem::temp_directory_path() / "tessera-bench-load-content") {
        std::filesystem::create_directories(m_folder);
        std::filesystem::current_path(m_folder);
        std::ofstream("Tessera", std::ios::binary) << tessera::FullCourseContent();
    }

private:
    std::filesystem::path m_folder;
};

void BM_LoadContent(benchmark::State& run) {
    static const FullCourseFolder folder;
    tessera::SessionState state;
    tessera::FillCatalogue(state);
    for (auto _ : run) {
        const bool loaded = tessera::LoadContent(state);
        benchmark::DoNotOptimize(loaded);
    }
    run.counters["bytes"] = static_cast<double>(std::filesystem::file_size("Tessera"));
}
BENCHMARK(BM_LoadContent)->Unit(benchmark::kMillisecond)->Repetitions(10)->ReportAggregatesOnly();

void BM_CutContent(benchmark::State& run) {
    const std::string file = tessera::FullCourseContent();
    const std::string_view text(file.data(), file.size() - 1);
    tessera::SessionState state;
    tessera::FillCatalogue(state);
    for (auto _ : run) {
        tessera::CourseContent content;
        tessera::CutContent(text, state.catalogue, content);
        benchmark::DoNotOptimize(content.ReviewItems.data());
    }
}
BENCHMARK(BM_CutContent)->Unit(benchmark::kMillisecond)->Repetitions(10)->ReportAggregatesOnly();

} // namespace
