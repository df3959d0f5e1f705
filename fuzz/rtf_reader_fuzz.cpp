// RTF in, read into a document, written back and read again: the writer's RTF must read back
// to the same plain text, as a saved notebook must.

#include "platform/rtf_reader.h"
#include "platform/rtf_writer.h"

#include <QGuiApplication>
#include <QTextDocument>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static QGuiApplication app(*argc, *argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const std::string_view rtf(reinterpret_cast<const char*>(data), size);
    QTextDocument first;
    tessera::readRtf(rtf, first);
    const QString text = tessera::plainTextOf(first);
    const std::string written = tessera::writeRtf(first);
    QTextDocument second;
    tessera::readRtf(written, second);
    if (const QString again = tessera::plainTextOf(second); again != text) {
        std::fprintf(stderr, "read:\n%s\nwritten back:\n%s\nread again:\n%s\n", qPrintable(text),
                     written.c_str(), qPrintable(again));
        std::abort();
    }
    return 0;
}
