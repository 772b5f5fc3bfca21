#pragma once

#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <stdexcept>

#include "platform/files/SafeFile.h"

/// A folder of its own for one test, with plain Qt access to look at what the code under test did.
class Folder {
public:
    enum class Where {
        Disk,
        Memory,  ///< where the system has such a place: for thousands of folders, which are slow on a disk
    };

    explicit Folder(Where where = Where::Disk) : _folder(templateFor(where)) {}

    QString path(const QString& name) const { return _folder.filePath(name); }
    QString path() const { return _folder.path(); }

    void put(const QString& name, const QByteArray& bytes) const {
        QFile file(path(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
            throw std::runtime_error("the test could not prepare its file");
        }
    }

    /// Null when there is no such file.
    QByteArray content(const QString& name) const {
        QFile file(path(name));
        if (!file.open(QIODevice::ReadOnly)) return {};
        return file.size() ? file.readAll() : QByteArray("");
    }

    /// All names, hidden ones too, sorted.
    QStringList names() const {
        return QDir(path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                                      QDir::Name);
    }

private:
    static QString templateFor(Where where) {
        const QFileInfo memory(QStringLiteral("/dev/shm"));
        const bool inMemory = where == Where::Memory && memory.isDir() && memory.isWritable();
        return QDir(inMemory ? memory.filePath() : QDir::tempPath()).filePath(QStringLiteral("files-XXXXXX"));
    }

    QTemporaryDir _folder;
};

/// Permissions count only for people other than root: while it lives, root is nobody in particular.
class OrdinaryPerson {
public:
    OrdinaryPerson() : _was(::geteuid()) {
        if (_was == 0 && ::seteuid(65534) != 0) throw std::runtime_error("cannot become an ordinary person");
    }
    ~OrdinaryPerson() {
        if (_was == 0 && ::seteuid(0) != 0) std::abort();
    }
    OrdinaryPerson(const OrdinaryPerson&) = delete;
    OrdinaryPerson& operator=(const OrdinaryPerson&) = delete;

private:
    uid_t _was;
};

/// The problem that `action` reports as an `Error`, or nothing when it reports none.
template <typename Error, typename Action>
std::optional<Error> errorOf(Action action) {
    try {
        action();
    } catch (const Error& error) {
        return error;
    }
    return std::nullopt;
}
