#pragma once

#include <functional>
#include <string>

#include "platform/files/FileSystem.h"

/// The real file system with faults: which call fails, and with which errno, is decided by `fault` (0: the
/// call is made). A failing close still closes, as the system does. Flushing to the disk is only counted: a
/// test cannot see its effect, and thousands of saves would wait for it.
class FaultyFileSystem : public sargan::FileSystem {
public:
    struct Call {
        int number;        ///< 1 for the first call of all
        std::string name;  ///< the method's name
        int occurrence;    ///< 1 for the first call of that name
    };

    std::function<int(const Call&)> fault = [](const Call&) { return 0; };
    /// Makes every write take at most this many bytes.
    size_t largestWrite = SIZE_MAX;
    /// A failing rename has happened all the same: its answer was lost.
    bool renamesBeforeFailing = false;

    int calls() const { return _calls; }
    int faults() const { return _faults; }

    int open(const char* path, int flags) override;
    int openAt(int folder, const char* name, int flags, mode_t mode) override;
    int close(int file) override;
    int duplicate(int file) override;
    ssize_t read(int file, void* bytes, size_t count) override;
    ssize_t write(int file, const void* bytes, size_t count) override;
    int sync(int file) override;
    int syncWholeFileSystem(int file) override;
    int status(int file, struct stat& status) override;
    int statusAt(int folder, const char* name, struct stat& status) override;
    int changeMode(int file, mode_t mode) override;
    int changeOwner(int file, uid_t user, gid_t group) override;
    int lock(int file, int operation) override;
    int checkWritableAt(int folder, const char* name) override;
    int linkAt(int folder, const char* name, const char* newName) override;
    int renameAt(int folder, const char* name, const char* newName) override;
    int unlinkAt(int folder, const char* name) override;
    ssize_t readLink(const char* path, char* bytes, size_t count) override;
    int list(int folder, std::vector<std::string>& names) override;

private:
    bool fails(const char* name);

    int _calls = 0;
    int _faults = 0;
    std::vector<std::pair<std::string, int>> _occurrences;
};
