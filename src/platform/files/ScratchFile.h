#pragma once

#include <string>

#include "platform/files/Descriptor.h"

namespace sargan {

/// A hidden name in `folder` that is removed with the object.
class ScratchName {
public:
    ScratchName(FileSystem& system, int folder, std::string name);
    ~ScratchName() { remove(); }
    ScratchName(const ScratchName&) = delete;
    ScratchName& operator=(const ScratchName&) = delete;

    const std::string& text() const { return _name; }
    void remove();
    /// It has become another name: nothing is left to remove.
    void forget() { _name.clear(); }
    /// Starts again with another name.
    void change(std::string name);

private:
    FileSystem& _system;
    int _folder;
    std::string _name;
};

/// A new file under a hidden name of its own in `folder`, locked while it is in use and removed with the
/// object unless it was renamed. Names are ".sargan-" and 16 hexadecimal digits; whoever finds such a name
/// whose file nobody has locked knows that its program was killed (see sweepScratchNames).
class ScratchFile {
public:
    /// `mode` as for open(2). Throws SystemFailure.
    ScratchFile(FileSystem& system, int folder, mode_t mode);

    int file() const { return _file.get(); }

    /// Flushes to the disk. Throws SystemFailure.
    void sync();
    /// Closes for writing, to learn of late errors; the lock stays. Throws SystemFailure.
    void close();
    /// Gives it its real name, in place of what is there. Throws SystemFailure when it is not in place.
    void renameTo(const std::string& name);

private:
    bool create(mode_t mode);
    bool standsAt(const std::string& name);

    FileSystem& _system;
    int _folder;
    ScratchName _name;
    Descriptor _file;
    Descriptor _lockKeeper;
};

/// A second name for a file, for the time until it is renamed: how a backup is made without copying. The
/// file should be locked (shared) meanwhile, so that no other program sweeps the name away.
class ScratchLink {
public:
    /// Throws SystemFailure, with EPERM and the like where links cannot be made.
    ScratchLink(FileSystem& system, int folder, const std::string& linkedName);

    void renameTo(const std::string& name);

private:
    FileSystem& _system;
    int _folder;
    ScratchName _name;
};

/// Removes what killed programs left behind in `folder`. Never fails: what cannot be removed stays.
void sweepScratchNames(FileSystem& system, int folder);

}  // namespace sargan
