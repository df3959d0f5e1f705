#pragma once
// The files of the study folder. Every file the program writes goes through here, whole or not
// at all, so that a test can stop the machine at any write, flush or rename.

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tessera {

// A new file under a temporary name until it is renamed over its target.
class FileOutput {
public:
    virtual ~FileOutput() = default;
    // The bytes written: fewer than asked, or -1, when the disk refuses them.
    virtual long long write(std::string_view bytes) = 0;
    // Puts what was written on the disk itself.
    virtual bool flush() = 0;
    // Renames the flushed file over its target.
    virtual bool rename() = 0;
};

class FileSystem {
public:
    virtual ~FileSystem() = default;
    // The whole file; nothing when it is missing or cannot be read.
    virtual std::optional<std::string> read(const std::string& name) const = 0;
    virtual bool exists(const std::string& name) const = 0;
    virtual bool remove(const std::string& name) = 0;
    // Renames a file, replacing any file of the new name.
    virtual bool rename(const std::string& from, const std::string& to) = 0;
    // A new file that becomes `name` once renamed; `temporary` names it meanwhile, or, when
    // empty, the file system chooses a name that no crash can mistake for the file.
    virtual std::unique_ptr<FileOutput> create(const std::string& name,
                                               const std::string& temporary) = 0;
    virtual bool makeFolder(const std::string& folder) = 0;
    // The names of the files in a folder, sorted.
    virtual std::vector<std::string> list(const std::string& folder) const = 0;
};

// Writes `name` whole or not at all: the bytes go to a new file in pieces of `piece` bytes
// (0: at once), which is flushed to the disk and renamed over `name`.
bool WriteWhole(FileSystem& files, const std::string& name, std::string_view bytes,
                const std::string& temporary = {}, std::size_t piece = 0);

// The file system the program works on; tests put a double in its place and take it out again
// with nullptr.
FileSystem& Files();
void UseFiles(FileSystem* files);

} // namespace tessera
