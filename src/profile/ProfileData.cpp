#include "profile/ProfileData.h"

#include <charconv>

#include "platform/text/Numbers.h"

namespace sargan::profile {

namespace {

void appendOneDecimal(QString& text, double value) {
    char digits[330];  // the greatest double has 309 before the point
    const auto end = std::to_chars(digits, digits + sizeof digits, value, std::chars_format::fixed, 1).ptr;
    text += QLatin1String(digits, end - digits);
}

template <class Take>
void eachLine(QStringView text, Take&& take) {
    qsizetype start = 0;
    for (qsizetype end = text.indexOf(u'\n'); end >= 0; end = text.indexOf(u'\n', start)) {
        take(text.sliced(start, end - start));
        start = end + 1;
    }
    take(text.sliced(start));
}

}  // namespace

NumberArray orSurface(const NumberArray& list, bool isReal) {
    if (!list.isEmpty()) return list;
    static constexpr double surface[] = {0.0};
    static constexpr qint32 noFlag[] = {0};
    static const NumberArray real = NumberArray::ofDoubles(surface);
    static const NumberArray flag = NumberArray::ofInts(noFlag);
    return isReal ? real : flag;
}

QString editProfil(const NumberArray& list, int precision) {
    QString text;
    text.reserve(list.size() * 5);
    for (qsizetype i = 0; i < list.size(); ++i) {
        if (i > 0) text += u'\n';
        if (precision == 1) appendOneDecimal(text, list.at(i));
        if (precision == 0) text += list.textAt(i);
    }
    return text;
}

NumberArray realsFrom(QStringView text) {
    NumberArray list = NumberArray::empty();
    eachLine(text, [&](QStringView line) { list.append(leadingNumber(line)); });
    return list;
}

NumberArray flagsFrom(QStringView text) {
    NumberArray list = NumberArray::empty();
    eachLine(text, [&](QStringView line) { list.appendInt(leadingInteger(line)); });
    return list;
}

float greatest(const NumberArray& list) {
    if (list.isEmpty()) return 0;
    float deepest = float(list.at(0));
    for (qsizetype i = 1; i < list.size(); ++i)
        if (const auto depth = float(list.at(i)); depth > deepest) deepest = depth;
    return deepest;
}

std::optional<double> sampleInterval(int samplingRate) {
    // Two codes for five seconds: computers that tell apart how they take them.
    static constexpr double seconds[] = {10, 20, 30, 60, 120, 4, 5, 5};
    if (samplingRate < 0 || samplingRate >= int(std::size(seconds))) return std::nullopt;
    return seconds[samplingRate];
}

}  // namespace sargan::profile
