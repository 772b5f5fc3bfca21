#include "FaultyFileSystem.h"

#include <algorithm>
#include <cerrno>

using sargan::FileSystem;

bool FaultyFileSystem::fails(const char* name) {
    auto known = std::find_if(_occurrences.begin(), _occurrences.end(),
                              [&](const auto& entry) { return entry.first == name; });
    if (known == _occurrences.end()) known = _occurrences.insert(known, {name, 0});
    const int error = fault({++_calls, name, ++known->second});
    if (error == 0) return false;
    ++_faults;
    errno = error;
    return true;
}

int FaultyFileSystem::open(const char* path, int flags) {
    return fails("open") ? -1 : FileSystem::open(path, flags);
}

int FaultyFileSystem::openAt(int folder, const char* name, int flags, mode_t mode) {
    return fails("openAt") ? -1 : FileSystem::openAt(folder, name, flags, mode);
}

int FaultyFileSystem::close(int file) {
    const int result = FileSystem::close(file);
    return fails("close") ? -1 : result;
}

int FaultyFileSystem::duplicate(int file) {
    return fails("duplicate") ? -1 : FileSystem::duplicate(file);
}

ssize_t FaultyFileSystem::read(int file, void* bytes, size_t count) {
    return fails("read") ? -1 : FileSystem::read(file, bytes, count);
}

ssize_t FaultyFileSystem::write(int file, const void* bytes, size_t count) {
    return fails("write") ? -1 : FileSystem::write(file, bytes, std::min(count, largestWrite));
}

int FaultyFileSystem::sync(int) {
    return fails("sync") ? -1 : 0;
}

int FaultyFileSystem::syncWholeFileSystem(int) {
    return fails("syncWholeFileSystem") ? -1 : 0;
}

int FaultyFileSystem::status(int file, struct stat& status) {
    return fails("status") ? -1 : FileSystem::status(file, status);
}

int FaultyFileSystem::statusAt(int folder, const char* name, struct stat& status) {
    return fails("statusAt") ? -1 : FileSystem::statusAt(folder, name, status);
}

int FaultyFileSystem::changeMode(int file, mode_t mode) {
    return fails("changeMode") ? -1 : FileSystem::changeMode(file, mode);
}

int FaultyFileSystem::changeOwner(int file, uid_t user, gid_t group) {
    return fails("changeOwner") ? -1 : FileSystem::changeOwner(file, user, group);
}

int FaultyFileSystem::lock(int file, int operation) {
    return fails("lock") ? -1 : FileSystem::lock(file, operation);
}

int FaultyFileSystem::checkWritableAt(int folder, const char* name) {
    return fails("checkWritableAt") ? -1 : FileSystem::checkWritableAt(folder, name);
}

int FaultyFileSystem::linkAt(int folder, const char* name, const char* newName) {
    return fails("linkAt") ? -1 : FileSystem::linkAt(folder, name, newName);
}

int FaultyFileSystem::renameAt(int folder, const char* name, const char* newName) {
    const bool failing = fails("renameAt");
    const int error = errno;
    if (failing && renamesBeforeFailing) FileSystem::renameAt(folder, name, newName);
    errno = error;
    return failing ? -1 : FileSystem::renameAt(folder, name, newName);
}

int FaultyFileSystem::unlinkAt(int folder, const char* name) {
    return fails("unlinkAt") ? -1 : FileSystem::unlinkAt(folder, name);
}

ssize_t FaultyFileSystem::readLink(const char* path, char* bytes, size_t count) {
    return fails("readLink") ? -1 : FileSystem::readLink(path, bytes, count);
}

int FaultyFileSystem::list(int folder, std::vector<std::string>& names) {
    return fails("list") ? -1 : FileSystem::list(folder, names);
}
