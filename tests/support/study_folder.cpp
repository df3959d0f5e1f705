#include "tests/support/study_folder.h"

#include <fstream>
#include <iterator>
#include <stdexcept>

namespace tessera {

StudyFolder::StudyFolder() : m_previous(std::filesystem::current_path()) {
    if (!m_folder.isValid())
        throw std::runtime_error("no temporary folder");
    std::filesystem::current_path(path());
}

StudyFolder::~StudyFolder() {
    std::error_code ignored;
    std::filesystem::current_path(m_previous, ignored);
}

std::filesystem::path StudyFolder::path() const {
    return m_folder.path().toStdString();
}

void StudyFolder::write(const std::string& name, const std::string& bytes) const {
    std::ofstream file(path() / name, std::ios::binary | std::ios::trunc);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

std::string StudyFolder::read(const std::string& name) const {
    std::ifstream file(path() / name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

bool StudyFolder::exists(const std::string& name) const {
    return std::filesystem::exists(path() / name);
}

} // namespace tessera
