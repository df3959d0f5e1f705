// The RTF reader alone, into a QTextDocument, on a generated 2 MB document of varied paragraphs.

#include "platform/rtf_reader.h"

#include <QGuiApplication>
#include <QTextBlock>
#include <QTextDocument>

#include <benchmark/benchmark.h>

#include <memory>
#include <string>

namespace {

// Paragraphs as LibreOffice writes them, each run a group of its own, turning through alignment,
// indents, tab stops, bold, italic, underline, colour, Windows-1252 escapes, Unicode escapes and
// bookmarks.
std::string variedDocument(std::size_t size) {
    std::string rtf =
        "{\\rtf1\\ansi\\deff3\\adeflang1025\r\n{\\fonttbl{\\f0\\froman\\fprq2\\fcharset0 "
        "Times New Roman;}{\\f1\\froman\\fprq2\\fcharset2 Symbol;}{\\f2\\fswiss"
        "\\fprq2\\fcharset0 Arial;}{\\f3\\froman\\fprq2\\fcharset0 Liberation Serif;}}\r\n"
        "{\\colortbl;\\red0\\green0\\blue0;\\red0\\green0\\blue128;\\red128\\green0"
        "\\blue0;}\r\n{\\stylesheet{\\s0\\snext0\\ql\\widctlpar\\hyphpar0\\ltrpar\\cf0"
        "\\kerning1\\loch\\f3\\fs24\\lang1033 Normal;}}{\\*\\generator Bench;}"
        "{\\info{\\creatim\\yr2024\\mo5\\dy1\\hr9\\min30}}\\formshade\\paperh15840"
        "\\paperw12240\\margl1134\\margr1134\\margt1134\\margb1134\\sectd\\sbknone\r\n";
    static const char* const aligns[] = {"\\ql", "\\qc", "\\qr", "\\qj"};
    static const char* const marks[] = {"{\\rtlch\\ab \\ltrch\\loch\\b\\loch\r\n",
                                        "{\\rtlch\\ai \\ltrch\\loch\\i\\loch\r\n",
                                        "{\\ul\\ulc0\\loch\r\n", "{\\cf3\\loch\r\n"};
    for (int n = 0; rtf.size() < size; ++n) {
        const std::string number = std::to_string(n);
        rtf += "\\pard\\plain \\s0\\loch";
        rtf += aligns[n % 4];
        rtf += "\\widctlpar\\hyphpar0\\sb0\\sa140\\ltrpar\\cf0\\kerning1\\loch\\f3\\fs" +
               std::to_string(20 + n % 4 * 2) + "\\lang1033\\li" + std::to_string(n % 5 * 360) +
               "\\ri0\\lin" + std::to_string(n % 5 * 360) + "\\rin0\\fi-" +
               std::to_string(n % 3 * 180);
        if (n % 2 == 0)
            rtf += "\\tx1440\\tqr\\tx5040";
        rtf += "{\\*\\bkmkstart para" + number + "}{\\*\\bkmkend para" + number + "}";
        rtf +=
            "{\\loch\r\nA licensee who acts for the seller owes loyalty, obedience and disclosure;"
            "\\tab the buyer\\rquote s agent owes the same to the buyer.\\tab }";
        rtf += marks[n % 4];
        rtf += "caf\\'e9 \\'96 r\\'e9sum\\'e9 \\u8364\\'80 \\u8212\\'97 }";
        rtf += "{\\loch\r\n A listing agreement sets the commission, the term and the duties of "
               "each party in writing, and a net listing is illegal in many states.}\r\n\\par ";
    }
    return rtf + "}";
}

// The same turns written tightly, a format change every few words: the worst case, where the
// time goes into QTextDocument's inserts rather than into reading.
std::string denseDocument(std::size_t size) {
    std::string rtf =
        "{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0\\fswiss Arial;}{\\f1\\froman Times New "
        "Roman;}{\\f2\\fmodern Courier New;}}{\\colortbl ;\\red0\\green0\\blue128;}\r\n";
    static const char* const aligns[] = {"", "\\qc", "\\qr", "\\qj"};
    for (int n = 0; rtf.size() < size; ++n) {
        rtf += "\\pard";
        rtf += aligns[n % 4];
        rtf += "\\li" + std::to_string(n % 5 * 360) + "\\tx1440\\plain\\f" + std::to_string(n % 3) +
               " {\\*\\bkmkstart p" + std::to_string(n) +
               "}A licensee owes \\b loyalty\\b0 , \\i "
               "obedience\\i0  and \\ul disclosure\\ulnone ;\\tab the buyer\\rquote s agent owes "
               "the same\\tab {\\cf1 caf\\'e9 \\'96 r\\'e9sum\\'e9} \\u8364? and \\'97 a net "
               "listing is illegal in many states.\\par\r\n";
    }
    return rtf + "}";
}

void BM_ReadRtf(benchmark::State& run) {
    const std::size_t size = 2 * 1024 * 1024;
    const std::string rtf = run.range(0) == 0 ? variedDocument(size) : denseDocument(size);
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
    // How much the reader made of it: paragraphs and runs of one format.
    QTextDocument document;
    tessera::readRtf(rtf, document);
    int runs = 0;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (auto it = block.begin(); !it.atEnd(); ++it)
            ++runs;
    }
    run.counters["paragraphs"] = document.blockCount();
    run.counters["runs"] = runs;
    run.counters["characters"] = document.characterCount();
}
BENCHMARK(BM_ReadRtf)
    ->ArgName("dense")
    ->Arg(0)
    ->Arg(1)
    ->Unit(benchmark::kMillisecond)
    ->Repetitions(7)
    ->ReportAggregatesOnly();

} // namespace

int main(int argc, char** argv) {
    QGuiApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
