#pragma once

#include <sys/stat.h>
#include <sys/types.h>

#include <string>
#include <vector>

namespace sargan {

/// The system calls that reading and saving make, one method each, with the results and the errno of the
/// call itself. They are virtual so that tests can let any one of them fail.
class FileSystem {
public:
    virtual ~FileSystem() = default;

    /// The real one.
    static FileSystem& system();

    virtual int open(const char* path, int flags);
    virtual int openAt(int folder, const char* name, int flags, mode_t mode);
    virtual int close(int file);
    virtual int duplicate(int file);
    virtual ssize_t read(int file, void* bytes, size_t count);
    virtual ssize_t write(int file, const void* bytes, size_t count);
    virtual int sync(int file);
    virtual int syncWholeFileSystem(int file);
    virtual int status(int file, struct stat& status);
    /// Of the name itself: a link is not followed.
    virtual int statusAt(int folder, const char* name, struct stat& status);
    virtual int changeMode(int file, mode_t mode);
    virtual int changeOwner(int file, uid_t user, gid_t group);
    /// `operation` as for flock(2).
    virtual int lock(int file, int operation);
    virtual int checkWritableAt(int folder, const char* name);
    virtual int linkAt(int folder, const char* name, const char* newName);
    virtual int renameAt(int folder, const char* name, const char* newName);
    virtual int unlinkAt(int folder, const char* name);
    virtual ssize_t readLink(const char* path, char* bytes, size_t count);
    /// Names of the folder's entries into `names`; 0 or -1.
    virtual int list(int folder, std::vector<std::string>& names);
};

}  // namespace sargan
