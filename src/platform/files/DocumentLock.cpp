#include "platform/files/DocumentLock.h"

#include <QFile>
#include <QFileInfo>
#include <QLockFile>

#include "platform/files/Descriptor.h"
#include "platform/files/SaveTarget.h"

namespace sargan {

namespace {

using namespace Qt::StringLiterals;

// Empty where no lock can be beside the document.
QString lockPathOf(const QString& documentPath) {
    if (!isPossiblePath(documentPath)) return {};
    try {
        const SaveTarget target = resolveSaveTarget(FileSystem::system(), documentPath);
        const QString folder = QFileInfo(QFile::decodeName(target.folder.c_str())).absoluteFilePath();
        return folder + u"/."_s + QFile::decodeName(target.name.c_str()) + u".lock"_s;
    } catch (const SystemFailure&) {
        return {};
    }
}

// Whatever else stands there could make reading the lock wait for ever.
bool isFileOrNothing(const QString& path) {
    struct stat status;
    const QByteArray name = QFile::encodeName(path);
    return ::lstat(name.constData(), &status) == 0 ? S_ISREG(status.st_mode) : errno == ENOENT;
}

DocumentLock::Owner ownerOf(const QLockFile& lock) {
    DocumentLock::Owner owner;
    lock.getLockInfo(&owner.process, &owner.host, &owner.program);
    return owner;
}

}  // namespace

DocumentLock::DocumentLock(const QString& documentPath) : _lockPath(lockPathOf(documentPath)) {}

DocumentLock::~DocumentLock() = default;

void DocumentLock::attempt() {
    _state = State::Unavailable;
    _owner = {};
    if (_lock->tryLock(0)) {
        _state = State::Held;
    } else if (_lock->error() == QLockFile::LockFailedError) {
        _state = State::Elsewhere;
        _owner = ownerOf(*_lock);
    }
}

bool DocumentLock::tryLock() {
    if (_state == State::Held) return true;
    _state = State::Unavailable;
    if (_lockPath.isEmpty() || !isFileOrNothing(_lockPath)) return true;
    _lock = std::make_unique<QLockFile>(_lockPath);
    // Old is not abandoned: a logbook may stay open for weeks. Only a process that is gone gives its lock up.
    _lock->setStaleLockTime(0);
    attempt();
    // Nobody's name in it: its maker was killed, or the power failed, before it was written.
    const bool nobodys = _state == State::Elsewhere && _owner.process == 0;
    if (nobodys && _lock->removeStaleLockFile()) attempt();
    return _state != State::Elsewhere;
}

bool DocumentLock::takeOver() {
    if (_state == State::Elsewhere && _lock->removeStaleLockFile()) attempt();
    return _state != State::Elsewhere;
}

void DocumentLock::unlock() {
    _lock.reset();
    _state = State::Open;
    _owner = {};
}

}  // namespace sargan
