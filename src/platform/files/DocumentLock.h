#pragma once

#include <QString>
#include <memory>

class QLockFile;

namespace sargan {

/// Tells two running programs (or two windows of one) that they have the same file open. The lock is a
/// hidden file beside the document, ".name.lock", that holds the process and the computer; all links to one
/// file share it. A lock whose process is gone is taken over. The lock is advice: nothing is prevented,
/// and where no lock file can be made (read-only folder, full disk) a document opens all the same.
class DocumentLock {
public:
    enum class State {
        Open,         ///< not tried, or given back
        Held,         ///< this object has the lock
        Elsewhere,    ///< another program or window has it: see owner()
        Unavailable,  ///< no lock can be made there, so nobody else can be told apart either
    };

    struct Owner {
        qint64 process = 0;  ///< process number, 0 when not known
        QString host;
        QString program;
    };

    explicit DocumentLock(const QString& documentPath);
    ~DocumentLock();
    DocumentLock(const DocumentLock&) = delete;
    DocumentLock& operator=(const DocumentLock&) = delete;

    /// Never waits. False only when someone else holds the lock.
    bool tryLock();
    void unlock();
    /// For a person who knows that the owner is gone (a computer that broke down and will not come back).
    /// The lock of a program that runs on this computer is never taken.
    bool takeOver();

    State state() const { return _state; }
    /// Who holds the lock; meaningful in the state Elsewhere.
    const Owner& owner() const { return _owner; }
    const QString& lockPath() const { return _lockPath; }

private:
    void attempt();

    QString _lockPath;
    std::unique_ptr<QLockFile> _lock;
    State _state = State::Open;
    Owner _owner;
};

}  // namespace sargan
