#pragma once

#include <sys/stat.h>

namespace sargan {

class FileSystem;

/// Gives `newFile` the owner, group, mode and extended attributes (access list, desktop tags) of `oldFile`,
/// as far as the person and the file system may. A group that cannot be kept takes its permissions with
/// it, so that nobody gains access. Throws SystemFailure when a mode that can be kept was not.
void takeOverAttributes(FileSystem& system, int oldFile, const struct stat& old, int newFile);

}  // namespace sargan
