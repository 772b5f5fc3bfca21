#include "platform/files/FileSystem.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>

namespace sargan {

FileSystem& FileSystem::system() {
    static FileSystem real;
    return real;
}

int FileSystem::open(const char* path, int flags) {
    return ::open(path, flags | O_CLOEXEC);
}

int FileSystem::openAt(int folder, const char* name, int flags, mode_t mode) {
    return ::openat(folder, name, flags | O_CLOEXEC, mode);
}

int FileSystem::close(int file) {
    return ::close(file);
}

int FileSystem::duplicate(int file) {
    return ::fcntl(file, F_DUPFD_CLOEXEC, 0);
}

ssize_t FileSystem::read(int file, void* bytes, size_t count) {
    return ::read(file, bytes, count);
}

ssize_t FileSystem::write(int file, const void* bytes, size_t count) {
    return ::write(file, bytes, count);
}

int FileSystem::sync(int file) {
    return ::fsync(file);
}

int FileSystem::syncWholeFileSystem(int file) {
    return ::syncfs(file);
}

int FileSystem::status(int file, struct stat& status) {
    return ::fstat(file, &status);
}

int FileSystem::statusAt(int folder, const char* name, struct stat& status) {
    return ::fstatat(folder, name, &status, AT_SYMLINK_NOFOLLOW);
}

int FileSystem::changeMode(int file, mode_t mode) {
    return ::fchmod(file, mode);
}

int FileSystem::changeOwner(int file, uid_t user, gid_t group) {
    return ::fchown(file, user, group);
}

int FileSystem::lock(int file, int operation) {
    return ::flock(file, operation);
}

int FileSystem::checkWritableAt(int folder, const char* name) {
    return ::faccessat(folder, name, W_OK, AT_EACCESS);
}

int FileSystem::linkAt(int folder, const char* name, const char* newName) {
    return ::linkat(folder, name, folder, newName, 0);
}

int FileSystem::renameAt(int folder, const char* name, const char* newName) {
    return ::renameat(folder, name, folder, newName);
}

int FileSystem::unlinkAt(int folder, const char* name) {
    return ::unlinkat(folder, name, 0);
}

ssize_t FileSystem::readLink(const char* path, char* bytes, size_t count) {
    return ::readlink(path, bytes, count);
}

int FileSystem::list(int folder, std::vector<std::string>& names) {
    // A descriptor of its own: a duplicate would share, and move, the reading position of `folder`.
    const int own = ::openat(folder, ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (own < 0) return -1;
    DIR* entries = ::fdopendir(own);
    if (!entries) {
        ::close(own);
        return -1;
    }
    errno = 0;
    while (const dirent* entry = ::readdir(entries)) names.emplace_back(entry->d_name);
    const int problem = errno;
    ::closedir(entries);
    errno = problem;
    return problem ? -1 : 0;
}

}  // namespace sargan
