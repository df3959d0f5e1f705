#include "core/course_catalogue.h"

#include <charconv>

namespace tessera {

PictureEntry parsePictureEntry(const std::string& entry) {
    PictureEntry picture;
    if (entry.size() < 15)
        return picture;
    picture.key = entry.substr(0, 5);
    std::from_chars(entry.data() + 6, entry.data() + 10, picture.width);
    std::from_chars(entry.data() + 11, entry.data() + 15, picture.height);
    return picture;
}

} // namespace tessera
