#include "platform/archive/Moment.h"

#include <charconv>
#include <cmath>

using namespace Qt::StringLiterals;

namespace sargan {

namespace {

/// 1 January 2001 00:00 UTC in seconds since 1970.
constexpr qint64 epoch = 978307200;
/// More seconds than any calendar year from 1 to 9999 is away from the epoch.
constexpr double calendarSpan = 1e12;

QByteArray shortestDigits(double value) {
    char text[400];
    const auto result = std::to_chars(text, text + sizeof(text), value, std::chars_format::fixed);
    return {text, result.ptr - text};
}

/// 1 minus a decimal fraction that is not zero, digit by digit: "25" gives "75".
QByteArray complementOf(QByteArray fraction) {
    while (fraction.endsWith('0')) fraction.chop(1);
    for (char& digit : fraction) digit = char('9' - (digit - '0'));
    ++fraction.back();
    return fraction;
}

struct SplitSeconds {
    qint64 whole = 0;     ///< rounded down
    QByteArray fraction;  ///< decimal digits after the point
};

SplitSeconds split(double seconds) {
    const QByteArray digits = shortestDigits(std::abs(seconds));
    const qsizetype point = digits.indexOf('.');
    SplitSeconds parts{qint64(seconds), point < 0 ? QByteArray() : digits.mid(point + 1)};
    if (seconds < 0 && !parts.fraction.isEmpty()) {
        parts.fraction = complementOf(parts.fraction);
        --parts.whole;
    }
    return parts;
}

double joined(qint64 whole, QByteArray fraction) {
    const bool negative = whole < 0;
    if (negative && fraction.count('0') < fraction.size()) {
        fraction = complementOf(fraction);
        ++whole;
    }
    const double value = (QByteArray::number(qAbs(whole)) + '.' + fraction + '0').toDouble();
    return negative ? -value : value;
}

bool isShown(const QDateTime& dateTime) {
    return dateTime.isValid() && dateTime.date().year() >= 1 && dateTime.date().year() <= 9999;
}

QDateTime localAt(qint64 milliseconds) {
    const QDateTime dateTime = QDateTime::fromMSecsSinceEpoch(epoch * 1000 + milliseconds, Qt::LocalTime);
    return isShown(dateTime) ? dateTime : QDateTime();
}

bool allDigits(const QString& text) {
    return !text.isEmpty() &&
           std::all_of(text.begin(), text.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
}

Moment fromOddSeconds(const QString& text) {
    bool ok = false;
    const double seconds = text.toDouble(&ok);
    return ok ? Moment::fromSeconds(seconds) : Moment();
}

}  // namespace

Moment Moment::fromDateTime(const QDateTime& dateTime) {
    if (!dateTime.isValid()) return {};
    return fromSeconds(double(dateTime.toMSecsSinceEpoch() - epoch * 1000) / 1000.0);
}

Moment Moment::fromIso(const QString& text) {
    if (text.startsWith(u'@')) return fromOddSeconds(text.mid(1));
    if (text.size() == 5) {
        const QTime time = QTime::fromString(text, u"HH:mm"_s);
        return time.isValid() ? fromDateTime(QDateTime(QDate(2001, 1, 1), time)) : Moment();
    }
    const QDate date = QDate::fromString(text.left(10), u"yyyy-MM-dd"_s);
    if (!date.isValid() || date.year() < 1) return {};
    if (text.size() == 10) return fromDateTime(date.startOfDay());
    const QTime time = QTime::fromString(text.mid(11, 8), u"HH:mm:ss"_s);
    if (text.at(10) != u'T' || !time.isValid()) return {};
    const QString fraction = text.mid(20);
    if (text.size() > 19 && (text.at(19) != u'.' || !allDigits(fraction))) return {};
    const QDateTime dateTime(date, time);
    if (!dateTime.isValid()) return {};
    return fromSeconds(joined(dateTime.toSecsSinceEpoch() - epoch, fraction.toLatin1()));
}

QDateTime Moment::local() const {
    if (!_present || !(std::abs(_seconds) < calendarSpan)) return {};
    return localAt(std::llround(_seconds * 1000));
}

QString Moment::iso() const {
    if (!_present) return {};
    const bool inSpan = std::abs(_seconds) < calendarSpan;
    const SplitSeconds parts = inSpan ? split(_seconds) : SplitSeconds{};
    const QDateTime dateTime = inSpan ? localAt(parts.whole * 1000) : QDateTime();
    if (!dateTime.isValid()) return u"@"_s + QString::number(_seconds, 'g', QLocale::FloatingPointShortest);
    QString text = dateTime.toString(u"yyyy-MM-dd'T'HH:mm:ss"_s);
    if (!parts.fraction.isEmpty()) text += u'.' + QString::fromLatin1(parts.fraction);
    return text;
}

}  // namespace sargan
