#include "platform/file_system.h"

#include <QDir>
#include <QFile>
#include <QSaveFile>

#include <algorithm>
#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

namespace tessera {

namespace {

QString QtName(const std::string& name) {
    return QString::fromStdString(name);
}

// A file of a name of our own choosing, as NewConfig is while the progress file is rewritten:
// left behind by a crash, start-up knows it by that name.
class NamedOutput final : public FileOutput {
public:
    NamedOutput(std::string target, std::string temporary)
        : m_target(std::move(target)), m_temporary(std::move(temporary)),
          m_file(QtName(m_temporary)) {
        m_file.open(QIODevice::WriteOnly | QIODevice::Truncate);
    }

    long long write(std::string_view bytes) override {
        return m_file.write(bytes.data(), static_cast<qint64>(bytes.size()));
    }
    bool flush() override { return m_file.flush() && ::fsync(m_file.handle()) == 0; }
    bool rename() override {
        m_file.close();
        if (std::rename(m_temporary.c_str(), m_target.c_str()) != 0)
            return false;
        // The rename itself reaches the disk only with the folder.
        const int folder = ::open(".", O_RDONLY | O_CLOEXEC);
        if (folder >= 0) {
            ::fsync(folder);
            ::close(folder);
        }
        return true;
    }

private:
    std::string m_target;
    std::string m_temporary;
    QFile m_file;
};

// QSaveFile's own temporary, which it drops unless the file is committed.
class SavedOutput final : public FileOutput {
public:
    explicit SavedOutput(const std::string& target) : m_file(QtName(target)) {
        m_file.open(QIODevice::WriteOnly);
    }

    long long write(std::string_view bytes) override {
        return m_file.write(bytes.data(), static_cast<qint64>(bytes.size()));
    }
    bool flush() override { return m_file.flush(); }
    bool rename() override { return m_file.commit(); } // syncs, then renames

private:
    QSaveFile m_file;
};

class RealFileSystem final : public FileSystem {
public:
    std::optional<std::string> read(const std::string& name) const override {
        QFile file(QtName(name));
        if (!file.open(QIODevice::ReadOnly))
            return std::nullopt;
        return file.readAll().toStdString();
    }
    bool exists(const std::string& name) const override { return QFile::exists(QtName(name)); }
    bool remove(const std::string& name) override { return QFile::remove(QtName(name)); }
    bool rename(const std::string& from, const std::string& to) override {
        return std::rename(from.c_str(), to.c_str()) == 0;
    }
    std::unique_ptr<FileOutput> create(const std::string& name,
                                       const std::string& temporary) override {
        if (temporary.empty())
            return std::make_unique<SavedOutput>(name);
        return std::make_unique<NamedOutput>(name, temporary);
    }
    bool makeFolder(const std::string& folder) override { return QDir().mkpath(QtName(folder)); }
    std::vector<std::string> list(const std::string& folder) const override {
        std::vector<std::string> names;
        for (const QString& name : QDir(QtName(folder)).entryList(QDir::Files, QDir::Name))
            names.push_back(name.toStdString());
        return names;
    }
};

RealFileSystem TheRealFileSystem;
FileSystem* Current = &TheRealFileSystem;

} // namespace

bool WriteWhole(FileSystem& files, const std::string& name, std::string_view bytes,
                const std::string& temporary, std::size_t piece) {
    std::unique_ptr<FileOutput> output = files.create(name, temporary);
    // A file that failed is not left for start-up to find.
    const auto dropTemporary = [&] {
        output.reset();
        if (!temporary.empty())
            files.remove(temporary);
        return false;
    };
    const std::size_t step = piece == 0 ? std::max<std::size_t>(bytes.size(), 1) : piece;
    for (std::size_t done = 0; done < bytes.size(); done += step) {
        const std::string_view part = bytes.substr(done, step);
        if (output->write(part) != static_cast<long long>(part.size()))
            return dropTemporary();
    }
    return (output->flush() && output->rename()) || dropTemporary();
}

FileSystem& Files() {
    return *Current;
}

void UseFiles(FileSystem* files) {
    Current = files != nullptr ? files : &TheRealFileSystem;
}

} // namespace tessera
