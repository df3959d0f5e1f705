// Start-up to the first painted title screen on the full-size course, against a bare Qt window
// of the same size and that window with one line of text: all whole processes, timed from
// their launch to their first complete paint.

#include "core/records.h"
#include "tests/support/full_course_generator.h"

#include <benchmark/benchmark.h>

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>

extern char** environ;

namespace {

long long monotonicNanoseconds() {
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC, &now);
    return static_cast<long long>(now.tv_sec) * 1000000000LL + now.tv_nsec;
}

// A study folder of a candidate who has started before: the full course and a named header.
class StudyFolder {
public:
    StudyFolder() : m_path(std::filesystem::temp_directory_path() / "tessera-bench-startup") {
        std::filesystem::create_directories(m_path);
        std::ofstream(m_path / "Tessera", std::ios::binary) << tessera::FullCourseContent();
        tessera::ProgressHeader header;
        header.UserName = "Pat Doe" + std::string(23, ' ');
        header.PassingGrade = 70;
        const tessera::RecordBytes bytes = tessera::EncodeHeader(header);
        std::ofstream(m_path / "TesseraConfig.MS", std::ios::binary)
            .write(reinterpret_cast<const char*>(bytes.data()), bytes.size());
    }
    const std::filesystem::path& path() const { return m_path; }

private:
    std::filesystem::path m_path;
};

// Launches the probe in the study folder and returns seconds from launch to first paint.
double timeToFirstPaint(const char* probe, const StudyFolder& folder) {
    // Each run leaves the running marker behind, since it never reaches its end.
    std::filesystem::remove(folder.path() / "TesseraAppRunning");
    int out[2];
    if (pipe(out) != 0)
        throw std::runtime_error("pipe");
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, out[1], STDOUT_FILENO);
    posix_spawn_file_actions_addclose(&actions, out[0]);
    const std::filesystem::path previous = std::filesystem::current_path();
    std::filesystem::current_path(folder.path());
    char* argv[] = {const_cast<char*>(probe), nullptr};
    pid_t child = 0;
    const long long launched = monotonicNanoseconds();
    const int spawned = posix_spawn(&child, probe, &actions, nullptr, argv, environ);
    std::filesystem::current_path(previous);
    posix_spawn_file_actions_destroy(&actions);
    close(out[1]);
    if (spawned != 0)
        throw std::runtime_error("cannot launch the probe");
    char text[64] = {};
    const ssize_t got = read(out[0], text, sizeof text - 1);
    close(out[0]);
    int status = 0;
    waitpid(child, &status, 0);
    if (got <= 0)
        throw std::runtime_error("the probe never painted");
    return static_cast<double>(std::stoll(text) - launched) / 1e9;
}

void runProbe(benchmark::State& run, const char* probe) {
    static const StudyFolder folder;
    for (auto _ : run)
        run.SetIterationTime(timeToFirstPaint(probe, folder));
}

void BM_StartUpBareWindow(benchmark::State& run) {
    runProbe(run, TESSERA_PROBE_BARE);
}
void BM_StartUpWindowWithOneLine(benchmark::State& run) {
    runProbe(run, TESSERA_PROBE_ONE_LINE);
}
void BM_StartUpTitleScreen(benchmark::State& run) {
    runProbe(run, TESSERA_PROBE_PROGRAM);
}

BENCHMARK(BM_StartUpBareWindow)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->Iterations(10)
    ->Repetitions(5)
    ->ReportAggregatesOnly();
BENCHMARK(BM_StartUpWindowWithOneLine)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->Iterations(10)
    ->Repetitions(5)
    ->ReportAggregatesOnly();
BENCHMARK(BM_StartUpTitleScreen)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->Iterations(10)
    ->Repetitions(5)
    ->ReportAggregatesOnly();

} // namespace
