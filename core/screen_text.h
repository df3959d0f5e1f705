#pragma once
// The user's name as the screens show it. Every other byte string of the course and of the
// progress file goes to a widget through fromWindows1252.

#include <QString>

#include <string>

namespace tessera {

// The user's name as shown: trailing blanks and NULs of the fixed-length field dropped.
QString ShownUserName(const std::string& userName);

} // namespace tessera
