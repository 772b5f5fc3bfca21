#include "platform/files/SaveError.h"

#include <array>

#include "platform/files/FileWording.h"

namespace sargan {

namespace {

using Wording = FileWording<SaveProblem>;

constexpr auto wordings = std::to_array<Wording>({
    {SaveProblem::BadName, "Save bad name",
     "“%@” could not be saved: this name cannot be used for a file. Nothing was changed."},
    {SaveProblem::NoFolder, "Save no folder",
     "“%@” could not be saved: its folder “%@” cannot be found. Nothing was changed."},
    {SaveProblem::NoPermission, "Save no permission",
     "“%@” could not be saved: you may not write to it or to its folder “%@”. The file on the disk is "
     "unchanged."},
    {SaveProblem::ReadOnly, "Save read only",
     "“%@” could not be saved: the disk that holds “%@” is read-only. The file on the disk is unchanged."},
    {SaveProblem::NotAFile, "Save not a file",
     "“%@” could not be saved: what stands at this name in “%@” is not a file. Nothing was changed."},
    {SaveProblem::DiskFull, "Save disk full",
     "“%@” could not be saved: no space is left on the disk that holds “%@”. The file on the disk is "
     "unchanged."},
    {SaveProblem::TooLarge, "Save too large",
     "“%@” could not be saved: it is larger than a file in “%@” may be. The file on the disk is unchanged."},
    {SaveProblem::ChangedOnDisk, "Save changed on disk",
     "“%@” was not saved: the file in “%@” was changed by another program since it was read. "
     "That file is unchanged."},
    {SaveProblem::Backup, "Save backup",
     "“%@” was not saved: its previous version could not be kept as a backup in “%@” (%@). "
     "The file on the disk is unchanged."},
    {SaveProblem::Flush, "Save flush",
     "“%@” could not be saved: the disk that holds “%@” did not confirm the data (%@). "
     "The file on the disk is unchanged."},
    {SaveProblem::Io, "Save failed",
     "“%@” could not be saved in “%@”: %@. The file on the disk is unchanged."},
    {SaveProblem::NotDurable, "Save not durable",
     "“%@” was saved in “%@”, but the disk did not confirm it (%@): "
     "the new version is in place and may be lost in a power failure."},
});

FileMessage messageOf(SaveProblem reason, const QString& path, int systemError) {
    return wordingFor(std::span<const Wording>(wordings), reason, path, systemError);
}

}  // namespace

SaveError::SaveError(SaveProblem reason, QString path, int systemError)
    : std::runtime_error(messageOf(reason, path, systemError).text().toStdString()),
      _reason(reason),
      _path(std::move(path)),
      _systemError(systemError) {}

QList<FileMessage> SaveError::allMessages() {
    return allWordings(std::span<const Wording>(wordings));
}

FileMessage SaveError::message() const {
    return messageOf(_reason, _path, _systemError);
}

}  // namespace sargan
