#pragma once
// A fresh temporary folder made the current directory for the life of a test, as the program
// finds all its files by bare name there.

#include <QTemporaryDir>

#include <filesystem>
#include <string>

namespace tessera {

class StudyFolder final {
public:
    StudyFolder();
    ~StudyFolder();
    StudyFolder(const StudyFolder&) = delete;
    StudyFolder& operator=(const StudyFolder&) = delete;

    std::filesystem::path path() const;
    void write(const std::string& name, const std::string& bytes) const;
    std::string read(const std::string& name) const;
    bool exists(const std::string& name) const;

private:
    std::filesystem::path m_previous;
    QTemporaryDir m_folder;
};

} // namespace tessera
