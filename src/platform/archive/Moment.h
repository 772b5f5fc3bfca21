#pragma once

#include <QDateTime>
#include <bit>

namespace sargan {

/// A point in time as archives keep it: seconds since 1 January 2001 00:00 UTC, or absent.
/// The double is kept bit for bit, so that a date that nobody edits is written back as it was read.
class Moment {
public:
    constexpr Moment() = default;
    static constexpr Moment fromSeconds(double seconds) { return Moment(seconds); }
    /// Absent when `dateTime` is invalid.
    static Moment fromDateTime(const QDateTime& dateTime);
    /// Local ISO 8601: "2016-06-07", "14:30" (on 1 January 2001), "2016-06-07T14:30:00[.fff]", or "@" and
    /// seconds as iso() writes what no calendar shows. Absent when the text is none of these.
    static Moment fromIso(const QString& text);

    constexpr bool isPresent() const { return _present; }
    constexpr double seconds() const { return _seconds; }

    /// In local time, to the millisecond; invalid when absent, not finite, or outside years 1 to 9999.
    QDateTime local() const;
    /// Local ISO 8601 with seconds, and with the fraction in its shortest exact form when there is one.
    /// Empty when absent; a moment that no calendar shows is written "@" and its seconds.
    QString iso() const;

    friend constexpr bool operator==(const Moment& a, const Moment& b) {
        return a._present == b._present &&
               std::bit_cast<quint64>(a._seconds) == std::bit_cast<quint64>(b._seconds);
    }

private:
    explicit constexpr Moment(double seconds) : _seconds(seconds), _present(true) {}

    double _seconds = 0;
    bool _present = false;
};

}  // namespace sargan
