#pragma once
// Content and RTF are byte strings in Windows-1252; the view works in QString.

#include <QString>

#include <array>
#include <string>
#include <string_view>

namespace tessera {

// The UTF-16 unit of each byte of Windows-1252; the five unassigned bytes map to themselves.
const std::array<char16_t, 256>& windows1252Table();

QString fromWindows1252(std::string_view bytes);
// Characters outside the code page become '?'.
std::string toWindows1252(QStringView text);
// The Windows-1252 byte of a character, or -1 if the code page has none.
int windows1252Byte(char16_t unit);
// True when every character of text has its byte in the code page.
bool inWindows1252(QStringView text);

} // namespace tessera
