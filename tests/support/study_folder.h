#pragma once
// A fresh temporary folder made the current directory for the life of a test, as the program
// finds all its files by bare name there.

#include <QTemporaryDir>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>

namespace tessera {

class StudyFolder final {
public:
    StudyFolder() {
        if (!m_folder.isValid())
            throw std::runtime_error("no temporary folder");
        std::filesystem::current_path(path());
    }
    ~StudyFolder() {
        std::error_code ignored;
        std::filesystem::current_path(m_previous, ignored);
    }
    StudyFolder(const StudyFolder&) = delete;
    StudyFolder& operator=(const StudyFolder&) = delete;

    std::filesystem::path path() const { return m_folder.path().toStdString(); }
    void write(const std::string& name, const std::string& bytes) const {
        std::ofstream(path() / name, std::ios::binary) << bytes;
    }
    std::string read(const std::string& name) const {
        std::ifstream file(path() / name, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    }
    bool exists(const std::string& name) const { return std::filesystem::exists(path() / name); }

private:
    std::filesystem::path m_previous = std::filesystem::current_path();
    QTemporaryDir m_folder;
};

} // namespace tessera
