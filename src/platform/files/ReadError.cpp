#include "platform/files/ReadError.h"

#include <array>

#include "platform/files/FileWording.h"

namespace sargan {

namespace {

using Wording = FileWording<ReadProblem>;

constexpr auto wordings = std::to_array<Wording>({
    {ReadProblem::BadName, "Read bad name", "“%@” cannot be read: this name cannot be the name of a file."},
    {ReadProblem::Missing, "Read missing", "“%@” cannot be read: there is no such file in “%@”."},
    {ReadProblem::Directory, "Read directory", "“%@” cannot be read: it is a folder, not a file."},
    {ReadProblem::NotAFile, "Read not a file", "“%@” cannot be read: it is a pipe or a device, not a file."},
    {ReadProblem::NoPermission, "Read no permission",
     "“%@” cannot be read: you may not read it, or not enter its folder “%@”."},
    {ReadProblem::TooLarge, "Read too large", "“%@” cannot be read: it is too large."},
    {ReadProblem::Io, "Read failed", "“%@” in “%@” cannot be read: %@."},
});

FileMessage messageOf(ReadProblem reason, const QString& path, int systemError) {
    return wordingFor(std::span<const Wording>(wordings), reason, path, systemError);
}

}  // namespace

ReadError::ReadError(ReadProblem reason, QString path, int systemError)
    : std::runtime_error(messageOf(reason, path, systemError).text().toStdString()),
      _reason(reason),
      _path(std::move(path)),
      _systemError(systemError) {}

QList<FileMessage> ReadError::allMessages() {
    return allWordings(std::span<const Wording>(wordings));
}

FileMessage ReadError::message() const {
    return messageOf(_reason, _path, _systemError);
}

}  // namespace sargan
