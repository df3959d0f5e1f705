#include "core/rich_text_documents.h"
#include "core/scale_rtf.h"

#include <gtest/gtest.h>

namespace tessera {
namespace {

std::string scaled(std::string document) {
    ScaleRtf(document);
    return document;
}

const std::string Prologue = "{\\rtf1\\ansi{\\fonttbl{\\f0 Arial;}}\\fs20\\li300 Title\\par ";

TEST(ScaleRtf, ScalesTheFourWordsBehindTheFirstParagraph) {
    struct Case {
        const char* why;
        std::string before, after;
    };
    const std::string untouched = "\\li0 \\fi0\\line\\field\\fsmilli1\\txe a";
    const Case cases[] = {
        {"the four words by 16/11", Prologue + "\\fs22 a\\fs24 b\\li720 c\\fi-360 d\\tx1440 e}",
         Prologue + "\\fs32 a\\fs34 b\\li1047 c\\fi-524 d\\tx2094 e}"},
        {"rounded towards minus infinity", Prologue + "\\fi-1 x\\li-11 y\\li10 z",
         Prologue + "\\fi-2 x\\li-16 y\\li14 z"},
        {"1008 of 10080 is scaled, the 0 behind stays", Prologue + "\\tx10080 a",
         Prologue + "\\tx14660 a"},
        {"three digits", Prologue + "\\fs100 a", Prologue + "\\fs140 a"},
        {"one digit and a blank", Prologue + "\\fs8 small", Prologue + "\\fs11 small"},
        {"zero and longer words", Prologue + untouched, Prologue + untouched},
        {"the prologue", Prologue + "text}", Prologue + "text}"},
        {"no paragraph mark at all", "{\\rtf1\\fs22 no mark}", "{\\rtf1\\fs32 no mark}"},
        {"\\pard is the first \\par too", "{\\rtf1\\fs20\\pard\\fs20 a\\par b}",
         "{\\rtf1\\fs20\\pard\\fs29 a\\par b}"},
        {"on behind each replacement", Prologue + "\\fs22 a \\fs22 b \\fs22 c",
         Prologue + "\\fs32 a \\fs32 b \\fs32 c"},
    };
    for (const Case& c : cases)
        EXPECT_EQ(scaled(c.before), c.after) << c.why;
}

TEST(RichTextDocuments, KeepBothVersionsForTheWindowState) {
    const RtfVersions versions = RtfVersions::of(Prologue + "\\fs24 a}");
    EXPECT_EQ(versions.forWindow(false), Prologue + "\\fs24 a}");
    EXPECT_EQ(versions.forWindow(true), Prologue + "\\fs34 a}");
}

} // namespace
} // namespace tessera
