#pragma once
// The system's byte strings as the widgets show them: every text of the course and of the
// progress file is Windows-1252.

#include <QString>

#include <string>
#include <string_view>

namespace tessera {

// A text of the system for a widget.
QString Text(std::string_view bytes);

// The user's name as shown: trailing blanks and NULs of the fixed-length field dropped.
QString ShownUserName(const std::string& userName);

} // namespace tessera
