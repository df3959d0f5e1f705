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

TEST(ScaleRtf, ScalesTheFourWordsBySixteenElevenths) {
    EXPECT_EQ(scaled(Prologue + "\\fs22 a\\fs24 b\\li720 c\\fi-360 d\\tx1440 e}"),
              Prologue + "\\fs32 a\\fs34 b\\li1047 c\\fi-524 d\\tx2094 e}");
}

TEST(ScaleRtf, RoundsTowardsMinusInfinity) {
    EXPECT_EQ(scaled(Prologue + "\\fi-1 x\\li-11 y\\li10 z"),
              Prologue + "\\fi-2 x\\li-16 y\\li14 z");
}

TEST(ScaleRtf, ReadsOnlyTheDigitsItsWordAllows) {
    // 1008 of 10080 is scaled; the 0 behind it stays.
    EXPECT_EQ(scaled(Prologue + "\\tx10080 a"), Prologue + "\\tx14660 a");
    EXPECT_EQ(scaled(Prologue + "\\fs100 a"), Prologue + "\\fs140 a");
    // One digit followed by a blank is read as that digit.
    EXPECT_EQ(scaled(Prologue + "\\fs8 small"), Prologue + "\\fs11 small");
}

TEST(ScaleRtf, LeavesZeroAndLongerWordsAlone) {
    const std::string body = "\\li0 \\fi0\\line\\field\\fsmilli1\\txe a";
    EXPECT_EQ(scaled(Prologue + body), Prologue + body);
}

TEST(ScaleRtf, LeavesThePrologueAndFirstParagraphAlone) {
    EXPECT_EQ(scaled(Prologue + "text}"), Prologue + "text}");
    EXPECT_EQ(scaled("{\\rtf1\\fs22 no paragraph mark at all}"),
              "{\\rtf1\\fs32 no paragraph mark at all}");
    // The search is for the four letters, so "\\pard" is the first "\\par" as well.
    EXPECT_EQ(scaled("{\\rtf1\\fs20\\pard\\fs20 a\\par b}"), "{\\rtf1\\fs20\\pard\\fs29 a\\par b}");
}

TEST(ScaleRtf, GoesOnBehindEachReplacement) {
    EXPECT_EQ(scaled(Prologue + "\\fs22 a \\fs22 b \\fs22 c"),
              Prologue + "\\fs32 a \\fs32 b \\fs32 c");
}

TEST(RichTextDocuments, JoinPrologueFragmentAndClosing) {
    const std::string header = "{\\rtf1 ";
    EXPECT_EQ(HelpDocument(header, "Help}"), "{\\rtf1 Help}");
    EXPECT_EQ(DiscussionDocument(header, "Text"), "{\\rtf1 Text\r\n\\par }");
    EXPECT_EQ(GlossaryDefinitionDocument(header, "Def"), "{\\rtf1 Def\\par }");
    EXPECT_EQ(GlossaryTermDocument(header, "Term"), "{\\rtf1 \\b\\qc Term\\par }");
    EXPECT_EQ(QuestionDocument(header, "Q?"), "{\\rtf1 Q?\\par }");
    EXPECT_EQ(QuestionWithExplanationDocument(header, "Q?", "Because."),
              "{\\rtf1 Q?" + std::string(15, ' ') + std::string(25, '\x97') +
                  "\\par \r\nBecause.\\par }");
}

TEST(RichTextDocuments, KeepBothVersionsForTheWindowState) {
    const RtfVersions versions = RtfVersions::of(Prologue + "\\fs24 a}");
    EXPECT_EQ(versions.forWindow(false), Prologue + "\\fs24 a}");
    EXPECT_EQ(versions.forWindow(true), Prologue + "\\fs34 a}");
}

} // namespace
} // namespace tessera
