#include "platform/text/Numbers.h"

#include <QString>
#include <limits>

namespace sargan {

namespace {

bool isDigit(QChar c) { return c >= u'0' && c <= u'9'; }

qsizetype afterBlanksAndSign(QStringView text, qsizetype& start) {
    start = 0;
    while (start < text.size() && text[start].isSpace()) ++start;
    const bool sign = start < text.size() && (text[start] == u'-' || text[start] == u'+');
    return start + (sign ? 1 : 0);
}

qsizetype afterDigits(QStringView text, qsizetype at) {
    while (at < text.size() && isDigit(text[at])) ++at;
    return at;
}

/// Behind an exponent that is complete; `at` when there is none.
qsizetype afterExponent(QStringView text, qsizetype at) {
    if (at >= text.size() || (text[at] != u'e' && text[at] != u'E')) return at;
    qsizetype digits = at + 1;
    if (digits < text.size() && (text[digits] == u'-' || text[digits] == u'+')) ++digits;
    const qsizetype end = afterDigits(text, digits);
    return end > digits ? end : at;
}

}  // namespace

double leadingNumber(QStringView text) {
    qsizetype start = 0;
    const qsizetype digits = afterBlanksAndSign(text, start);
    qsizetype end = afterDigits(text, digits);
    qsizetype count = end - digits;
    if (end < text.size() && (text[end] == u'.' || text[end] == u',')) {
        const qsizetype fraction = afterDigits(text, end + 1);
        count += fraction - end - 1;
        end = fraction;
    }
    if (count == 0) return 0;
    QString number = text.sliced(start, afterExponent(text, end) - start).toString();
    number.replace(u',', u'.');
    bool fine = false;
    const double value = number.toDouble(&fine);
    if (fine) return value;
    // Only an exponent out of range is left: infinite for a large one, zero for a small one.
    return number.contains(u"e-", Qt::CaseInsensitive) ? 0 : value;
}

int leadingInteger(QStringView text) {
    qsizetype start = 0;
    const qsizetype digits = afterBlanksAndSign(text, start);
    const qsizetype end = afterDigits(text, digits);
    const bool negative = digits > start && text[start] == u'-';
    constexpr qint64 limit = std::numeric_limits<int>::max();
    qint64 value = 0;
    for (qsizetype i = digits; i < end && value <= limit; ++i) value = value * 10 + text[i].digitValue();
    value = negative ? -value : value;
    return int(std::clamp<qint64>(value, std::numeric_limits<int>::min(), limit));
}

}  // namespace sargan
