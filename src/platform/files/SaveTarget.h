#pragma once

#include <QString>
#include <string>

namespace sargan {

class FileSystem;

/// The place that a save replaces, after following the links that the path itself may be.
struct SaveTarget {
    std::string folder;
    std::string name;

    std::string path() const;
};

/// Is `path` one that the system can be asked about at all (not empty, no NUL inside)?
bool isPossiblePath(const QString& path);

/// Follows links at the end of the path, also to a file that does not exist yet. Throws SystemFailure:
/// ELOOP for links without end, EISDIR for a path that can only be a folder.
SaveTarget resolveSaveTarget(FileSystem& system, const QString& path);

}  // namespace sargan
