#include "platform/files/ScratchFile.h"

#include <fcntl.h>
#include <sys/file.h>

#include <QByteArray>
#include <QRandomGenerator>
#include <algorithm>
#include <string_view>

namespace sargan {

namespace {

constexpr std::string_view prefix = ".sargan-";
constexpr int digits = 16;
constexpr int mostTries = 100;

std::string freshName() {
    const quint64 number = QRandomGenerator::system()->generate64();
    return std::string(prefix) + QByteArray::number(number, 16).rightJustified(digits, '0').toStdString();
}

bool isScratchName(std::string_view name) {
    const auto isDigit = [](char c) { return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f'); };
    return name.size() == prefix.size() + digits && name.starts_with(prefix) &&
           std::all_of(name.begin() + prefix.size(), name.end(), isDigit);
}

// A lock that the file system does not know is as good as held: then nobody can take it, nobody sweeps.
bool tryLock(FileSystem& system, int file, int kind) {
    return uninterrupted([&] { return system.lock(file, kind | LOCK_NB); }) == 0 || errno != EWOULDBLOCK;
}

// Between its creation and its lock the file looks abandoned, and a sweep may have taken it away.
bool isStillThere(FileSystem& system, int file) {
    struct stat status;
    checked([&] { return system.status(file, status); });
    return status.st_nlink > 0;
}

void sweep(FileSystem& system, int folder, const char* name) {
    const int flags = O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY;
    const Descriptor file(system, uninterrupted([&] { return system.openAt(folder, name, flags, 0); }));
    struct stat status;
    if (!file || system.status(file.get(), status) < 0 || !S_ISREG(status.st_mode)) return;
    if (system.lock(file.get(), LOCK_EX | LOCK_NB) == 0) system.unlinkAt(folder, name);
}

}  // namespace

ScratchName::ScratchName(FileSystem& system, int folder, std::string name)
    : _system(system), _folder(folder), _name(std::move(name)) {}

void ScratchName::remove() {
    if (!_name.empty()) _system.unlinkAt(_folder, _name.c_str());
    _name.clear();
}

void ScratchName::change(std::string name) {
    remove();
    _name = std::move(name);
}

ScratchFile::ScratchFile(FileSystem& system, int folder, mode_t mode)
    : _system(system), _folder(folder), _name(system, folder, {}), _file(system), _lockKeeper(system) {
    for (int tries = 0; tries < mostTries; ++tries) {
        if (create(mode)) return;
    }
    throw SystemFailure{EEXIST};
}

bool ScratchFile::create(mode_t mode) {
    const std::string name = freshName();
    const int flags = O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW;
    const int file = uninterrupted([&] { return _system.openAt(_folder, name.c_str(), flags, mode); });
    if (file < 0 && errno == EEXIST) return false;
    if (file < 0) throw SystemFailure{errno};
    _file = Descriptor(_system, file);
    _name.change(name);
    return tryLock(_system, file, LOCK_EX) && isStillThere(_system, file);
}

void ScratchFile::sync() {
    checked([&] { return _system.sync(file()); });
}

void ScratchFile::close() {
    _lockKeeper = Descriptor(_system, checked([&] { return _system.duplicate(file()); }));
    _file.close();
}

bool ScratchFile::standsAt(const std::string& name) {
    struct stat mine;
    struct stat there;
    return _system.status(_lockKeeper.get(), mine) == 0 &&
           _system.statusAt(_folder, name.c_str(), there) == 0 && mine.st_ino == there.st_ino &&
           mine.st_dev == there.st_dev;
}

void ScratchFile::renameTo(const std::string& name) {
    const char* own = _name.text().c_str();
    if (uninterrupted([&] { return _system.renameAt(_folder, own, name.c_str()); }) < 0) {
        const int error = errno;
        // On a network the rename can have happened although its answer was lost.
        if (!standsAt(name)) throw SystemFailure{error};
    }
    _name.forget();
}

ScratchLink::ScratchLink(FileSystem& system, int folder, const std::string& linkedName)
    : _system(system), _folder(folder), _name(system, folder, freshName()) {
    checked([&] { return system.linkAt(folder, linkedName.c_str(), _name.text().c_str()); });
}

void ScratchLink::renameTo(const std::string& name) {
    // The name is still removed afterwards: between two names of one file a rename succeeds and leaves both.
    checked([&] { return _system.renameAt(_folder, _name.text().c_str(), name.c_str()); });
}

void sweepScratchNames(FileSystem& system, int folder) {
    std::vector<std::string> names;
    if (system.list(folder, names) < 0) return;
    for (const std::string& name : names) {
        if (isScratchName(name)) sweep(system, folder, name.c_str());
    }
}

}  // namespace sargan
