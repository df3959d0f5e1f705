#pragma once
// The RTF control words the reader acts on, looked up by name.

#include <cstdint>
#include <string_view>

namespace tessera {

enum class RtfWord : uint8_t {
    Unknown,
    // Destinations
    FontTable,
    ColorTable,
    Picture,
    SkippedDestination, // info, stylesheet, header, footer and the like
    ReadDestination,    // a group whose text shows: fldrslt, shppict...
    ListTable,
    ListOverrideTable,
    LevelText,
    ListText, // a list label kept for readers that know no lists
    // Document
    Ansi,
    Mac,
    Pc,
    Pca,
    AnsiCodePage,
    DefaultFont,
    DefaultTab,
    // Font table
    FontCharset,
    FontCodePage,
    // Colour table
    Red,
    Green,
    Blue,
    // Character formatting
    Plain,
    Bold,
    Italic,
    Underline,
    UnderlineNone,
    Strike,
    Superscript,
    Subscript,
    NoSuperSub,
    Hidden,
    Font,
    FontSize,
    Colour,
    // Paragraph formatting
    Pard,
    AlignLeft,
    AlignCentre,
    AlignRight,
    AlignJustify,
    LeftIndent,
    RightIndent,
    FirstIndent,
    SpaceBefore,
    SpaceAfter,
    TabStop,
    BarTab,
    TabRight,
    TabCentre,
    TabDecimal,
    // Characters and breaks
    Par,
    Line,
    Tab,
    Cell,
    Row,
    LeftQuote,
    RightQuote,
    LeftDoubleQuote,
    RightDoubleQuote,
    EmDash,
    EnDash,
    Bullet,
    Space,
    Unicode,
    UnicodeSkip,
    Binary,
    // Lists
    ListBegin,
    ListLevel,
    LevelFormat,
    LevelStart,
    LevelFollow,
    ListId,
    ListNumber,
    ListLevelIndex,
    // Pictures
    PngBlip,
    JpegBlip,
    OtherBlip,
    PictureWidthGoal,
    PictureHeightGoal,
    PictureScaleX,
    PictureScaleY,
};

RtfWord lookupRtfWord(std::string_view name);

} // namespace tessera
