#include "platform/rtf_code_pages.h"

#include "platform/windows1252.h"

#include <iconv.h>

#include <cerrno>
#include <map>
#include <memory>
#include <string>

namespace tessera {
namespace {

std::string iconvName(int number) {
    switch (number) {
    case 10000:
        return "MACINTOSH";
    case 1361:
        return "JOHAB";
    case 20127:
        return "ASCII";
    default:
        return "CP" + std::to_string(number);
    }
}

// One conversion into UTF-16 through an open converter; the error number when it fails.
struct Converted {
    QString text;
    int error = 0;
};

Converted convert(iconv_t cd, const char* bytes, std::size_t size) {
    iconv(cd, nullptr, nullptr, nullptr, nullptr);
    char16_t out[8] = {};
    char* in = const_cast<char*>(bytes);
    std::size_t inLeft = size;
    char* outPtr = reinterpret_cast<char*>(out);
    std::size_t outLeft = sizeof(out);
    const std::size_t result = iconv(cd, &in, &inLeft, &outPtr, &outLeft);
    const int error = result == static_cast<std::size_t>(-1) ? errno : 0;
    const auto units = static_cast<qsizetype>((sizeof(out) - outLeft) / sizeof(char16_t));
    return {QString::fromUtf16(out, units), error};
}

// iconv_open's own failure value.
const iconv_t NoConverter = reinterpret_cast<iconv_t>(-1); // NOLINT(performance-no-int-to-ptr)

} // namespace

CodePage::CodePage(int number) : m_number(number), m_converter(NoConverter) {
    const auto& fallback = windows1252Table();
    if (number != 1252)
        m_converter = iconv_open("UTF-16LE", iconvName(number).c_str());
    if (m_converter == NoConverter) {
        m_number = 1252;
        m_units = fallback;
        return;
    }
    for (int byte = 0; byte < 256; ++byte) {
        const char in = static_cast<char>(byte);
        const Converted one = convert(m_converter, &in, 1);
        if (one.error == EINVAL) {
            m_units[byte] = LeadByte;
            m_hasLeadBytes = true;
        } else if (one.error == 0 && one.text.size() == 1) {
            m_units[byte] = one.text.at(0).unicode();
        } else {
            m_units[byte] = byte < 0x80 ? static_cast<char16_t>(byte) : u'?';
        }
    }
}

CodePage::~CodePage() {
    if (m_converter != NoConverter)
        iconv_close(m_converter);
}

QString CodePage::pair(unsigned char lead, unsigned char trail) const {
    const char bytes[2] = {static_cast<char>(lead), static_cast<char>(trail)};
    Converted two = convert(m_converter, bytes, 2);
    if (two.error != 0 || two.text.isEmpty())
        return QString(QChar(0xFFFD));
    return two.text;
}

const CodePage& CodePage::byNumber(int number) {
    static const CodePage windows1252(1252);
    if (number == 1252)
        return windows1252;
    // The reader runs on the one GUI thread. Only code pages that iconv knows are kept, so a
    // document naming many strange numbers cannot make the table grow.
    static std::map<int, std::unique_ptr<CodePage>> pages;
    auto found = pages.find(number);
    if (found != pages.end())
        return *found->second;
    std::unique_ptr<CodePage> page(new CodePage(number));
    if (page->number() == 1252)
        return windows1252;
    return *pages.emplace(number, std::move(page)).first->second;
}

int CodePage::numberForCharset(int charset) {
    switch (charset) {
    case 77:
        return 10000;
    case 128:
        return 932;
    case 129:
        return 949;
    case 130:
        return 1361;
    case 134:
        return 936;
    case 136:
        return 950;
    case 161:
        return 1253;
    case 162:
        return 1254;
    case 163:
        return 1258;
    case 177:
        return 1255;
    case 178:
        return 1256;
    case 186:
        return 1257;
    case 204:
        return 1251;
    case 222:
        return 874;
    case 238:
        return 1250;
    case 254:
        return 437;
    case 255:
        return 850;
    default:
        return 0;
    }
}

} // namespace tessera
