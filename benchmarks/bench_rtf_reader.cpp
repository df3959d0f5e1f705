// The RTF reader alone, into a QTextDocument, on a generated 2 MB document of varied paragraphs.

#include "platform/rtf_reader.h"

#include <QGuiApplication>
#include <QTextDocument>

#include <benchmark/benchmark.h>

#include <memory>
#include <string>

namespace {

// Paragraphs that turn through alignment, indents, tab stops, bold, italic, underline, colour,
// Windows-1252 escapes, Unicode escapes and bookmarks, as a word processor writes them.
std::string variedDocument(std::size_t size) {
    std::string rtf = "{\\rtf1\\ansi\\ansicpg1252\\deff0\\deflang1033{\\fonttbl{\\f0\\fswiss "
                      "Arial;}{\\f1\\froman Times New Roman;}{\\f2\\fmodern Courier New;}}\r\n"
                      "{\\colortbl ;\\red0\\green0\\blue0;\\red0\\green0\\blue128;\\red128\\green0"
                      "\\blue0;}\r\n{\\*\\generator Bench;}\\viewkind4\\uc1\r\n";
    static const char* const aligns[] = {"", "\\qc", "\\qr", "\\qj"};
    for (int n = 0; rtf.size() < size; ++n) {
        rtf += "\\pard";
        rtf += aligns[n % 4];
        rtf += "\\li" + std::to_string(n % 5 * 360) + "\\fi-" + std::to_string(n % 3 * 180);
        if (n % 2 == 0)
            rtf += "\\tx1440\\tqr\\tx5040";
        rtf += "\\plain\\f" + std::to_string(n % 3) + "\\fs" + std::to_string(20 + n % 4 * 2) + " ";
        rtf += "{\\*\\bkmkstart para" + std::to_string(n) + "}{\\*\\bkmkend para" +
               std::to_string(n) + "}";
        rtf += "A licensee who acts for the seller owes \\b loyalty\\b0 , \\i obedience\\i0  and "
               "\\ul disclosure\\ulnone ;\\tab the buyer\\rquote s agent owes the same to the "
               "buyer\\tab {\\cf3 caf\\'e9 \\'96 r\\'e9sum\\'e9} \\u8364? \\u8212? and \\'97 ";
        rtf += "a listing agreement sets the commission, the term and the duties of each party "
               "in writing, and a net listing is illegal in many states.\\par\r\n";
    }
    return rtf + "}";
}

void BM_ReadRtf(benchmark::State& run) {
    const std::string rtf = variedDocument(2 * 1024 * 1024);
    for (auto _ : run) {
        // Making and freeing the document is not reading: both stay out of the time.
        run.PauseTiming();
        auto document = std::make_unique<QTextDocument>();
        run.ResumeTiming();
        tessera::readRtf(rtf, *document);
        benchmark::DoNotOptimize(document->characterCount());
        run.PauseTiming();
        document.reset();
        run.ResumeTiming();
    }
    run.SetBytesProcessed(static_cast<int64_t>(run.iterations() * rtf.size()));
}
BENCHMARK(BM_ReadRtf)->Unit(benchmark::kMillisecond)->Repetitions(7)->ReportAggregatesOnly();

} // namespace

int main(int argc, char** argv) {
    QGuiApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
