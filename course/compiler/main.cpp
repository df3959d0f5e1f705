// tessera-course: compiles the course source into the content file Tessera, and checks any
// content file against the format.
//
//   tessera-course build SOURCE_DIR OUT_FILE
//   tessera-course check FILE
//   tessera-course text FILE    the plain text the rich text view makes of any RTF file

#include "core/content_file.h"
#include "course/compiler/content_check.h"
#include "course/compiler/content_writer.h"
#include "course/compiler/course_source.h"
#include "platform/rtf_reader.h"

#include <QTextDocument>

#include <fstream>
#include <iostream>

namespace {

using namespace tessera::course;

int Usage() {
    std::cerr << "usage: tessera-course build SOURCE_DIR OUT_FILE\n"
                 "       tessera-course check FILE\n"
                 "       tessera-course text FILE\n";
    return 2;
}

// Lists the violations, or ends with the ok line; true when the text is valid.
bool Report(const ContentSummary& summary, std::ostream& out) {
    for (const Violation& v : summary.violations)
        out << "line " << v.line << ": " << v.message << "\n";
    if (!summary.violations.empty())
        return false;
    out << OkLine(summary) << "\n";
    return true;
}

int Build(const std::string& folder, const std::string& outFile) {
    std::vector<SourceError> errors;
    const Course course = ReadCourse(folder, errors);
    const std::string content = WriteContent(course, errors);
    for (const SourceError& error : errors)
        std::cerr << Describe(error) << "\n";
    if (!errors.empty())
        return 1;
    // The file's last byte is not part of the text: the check sees what the program sees.
    if (!Report(CheckContent(std::string_view(content).substr(0, content.size() - 1)), std::cout))
        return 1;
    std::ofstream out(outFile, std::ios::binary | std::ios::trunc);
    out << content;
    out.close();
    if (!out) {
        std::cerr << outFile << ": cannot be written\n";
        return 1;
    }
    return 0;
}

int Check(const std::string& file) {
    if (!std::ifstream(file)) {
        std::cerr << file << ": cannot be read\n";
        return 1;
    }
    return Report(CheckContent(tessera::ReadContentText(file)), std::cout) ? 0 : 1;
}

// Prints the text as the program's rich text view reads it, so that an author can proofread.
int Text(const std::string& file) {
    std::ifstream in(file, std::ios::binary);
    if (!in) {
        std::cerr << file << ": cannot be read\n";
        return 1;
    }
    const std::string rtf((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    QTextDocument document;
    tessera::readRtf(rtf, document);
    std::cout << tessera::plainTextOf(document).toStdString() << "\n";
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    const std::vector<std::string> args(argv + 1, argv + argc);
    if (args.size() == 3 && args[0] == "build")
        return Build(args[1], args[2]);
    if (args.size() == 2 && args[0] == "check")
        return Check(args[1]);
    if (args.size() == 2 && args[0] == "text")
        return Text(args[1]);
    return Usage();
}
