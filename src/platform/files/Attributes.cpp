#include "platform/files/Attributes.h"

#include <sys/xattr.h>
#include <unistd.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "platform/files/Descriptor.h"

namespace sargan {

namespace {

constexpr mode_t allModeBits = 07777;

bool isKept(std::string_view attribute) {
    return attribute.starts_with("user.") || attribute == "system.posix_acl_access";
}

// Best effort: a file system without them, or one that refuses, is no reason not to save.
void copyExtendedAttributes(int oldFile, int newFile) {
    const ssize_t length = ::flistxattr(oldFile, nullptr, 0);
    if (length <= 0) return;
    std::vector<char> names(static_cast<size_t>(length));
    const ssize_t listed = ::flistxattr(oldFile, names.data(), names.size());
    if (listed <= 0) return;
    std::string_view rest(names.data(), static_cast<size_t>(listed));
    while (!rest.empty()) {
        const std::string name(rest.substr(0, rest.find('\0')));
        rest.remove_prefix(std::min(rest.size(), name.size() + 1));
        if (!isKept(name)) continue;
        const ssize_t size = ::fgetxattr(oldFile, name.c_str(), nullptr, 0);
        if (size < 0) continue;
        std::vector<char> value(static_cast<size_t>(size));
        const ssize_t got = ::fgetxattr(oldFile, name.c_str(), value.data(), value.size());
        if (got >= 0) ::fsetxattr(newFile, name.c_str(), value.data(), static_cast<size_t>(got), 0);
    }
}

bool keepsGroup(FileSystem& system, const struct stat& old, int newFile) {
    struct stat fresh;
    checked([&] { return system.status(newFile, fresh); });
    if (fresh.st_uid == old.st_uid && fresh.st_gid == old.st_gid) return true;
    if (system.changeOwner(newFile, old.st_uid, old.st_gid) == 0) return true;
    return fresh.st_gid == old.st_gid || system.changeOwner(newFile, static_cast<uid_t>(-1), old.st_gid) == 0;
}

bool hasNoModes(int error) {
    return error == EPERM || error == EOPNOTSUPP || error == ENOSYS;
}

}  // namespace

void takeOverAttributes(FileSystem& system, int oldFile, const struct stat& old, int newFile) {
    mode_t mode = old.st_mode & allModeBits;
    if (!keepsGroup(system, old, newFile)) {
        const mode_t others = mode & 07;
        mode = (mode & ~mode_t{070} & ~mode_t{S_ISUID | S_ISGID}) | (mode & (others << 3));
    }
    if (uninterrupted([&] { return system.changeMode(newFile, mode); }) < 0 && !hasNoModes(errno)) {
        throw SystemFailure{errno};
    }
    copyExtendedAttributes(oldFile, newFile);
}

}  // namespace sargan
