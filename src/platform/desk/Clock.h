#pragma once

#include <QDateTime>

namespace sargan {

/// The time of day, so that tests and `--now` can set it.
class Clock {
public:
    Clock() = default;
    explicit Clock(QDateTime fixed) : _fixed(std::move(fixed)) {}

    /// Local time.
    QDateTime now() const { return _fixed.isValid() ? _fixed : QDateTime::currentDateTime(); }

private:
    QDateTime _fixed;
};

}  // namespace sargan
