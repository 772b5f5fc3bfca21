#include "platform/files/SaveTarget.h"

#include <QFile>
#include <array>
#include <climits>
#include <optional>
#include <string_view>

#include "platform/files/Descriptor.h"

namespace sargan {

namespace {

constexpr int longestLinkChain = 40;

SaveTarget split(const std::string& path) {
    const size_t slash = path.rfind('/');
    if (slash == std::string::npos) return {".", path};
    return {slash == 0 ? "/" : path.substr(0, slash), path.substr(slash + 1)};
}

std::optional<std::string> linkAt(FileSystem& system, const std::string& path) {
    std::array<char, PATH_MAX> text;
    const ssize_t length =
        uninterrupted([&] { return system.readLink(path.c_str(), text.data(), text.size()); });
    if (length >= 0) return std::string(text.data(), static_cast<size_t>(length));
    if (errno == EINVAL || errno == ENOENT) return std::nullopt;
    throw SystemFailure{errno};
}

}  // namespace

std::string SaveTarget::path() const {
    return folder == "/" ? folder + name : folder + "/" + name;
}

bool isPossiblePath(const QString& path) {
    return !path.isEmpty() && !path.contains(QChar(u'\0'));
}

SaveTarget resolveSaveTarget(FileSystem& system, const QString& path) {
    SaveTarget target = split(QFile::encodeName(path).toStdString());
    for (int links = 0; links < longestLinkChain; ++links) {
        if (target.name.empty() || target.name == "." || target.name == "..") throw SystemFailure{EISDIR};
        const std::optional<std::string> next = linkAt(system, target.path());
        if (!next) return target;
        const bool absolute = next->starts_with('/');
        target = split(absolute ? *next : SaveTarget{target.folder, *next}.path());
    }
    throw SystemFailure{ELOOP};
}

}  // namespace sargan
