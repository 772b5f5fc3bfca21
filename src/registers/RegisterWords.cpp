#include "registers/RegisterWords.h"

#include "platform/text/Numbers.h"

namespace sargan::registerwords {

using namespace Qt::StringLiterals;

QString check(Int value, const Strings& strings) {
    return value == 1 ? strings.text({"Main", "Check", "N/A"}) : QString();
}

QString yesNo(Int value, const Strings& strings) {
    return value == 1 ? strings.text({"Main", "Yes"}) : strings.text({"Main", "No"});
}

QString stars(Int rating, const Strings& strings) {
    static constexpr Message<> words[] = {{"Main", "Cotation 0"}, {"Main", "Cotation 1"},
                                          {"Main", "Cotation 2"}, {"Main", "Cotation 3"},
                                          {"Main", "Cotation 4"}, {"Main", "Cotation 5"}};
    return rating >= 0 && rating <= 5 ? strings.text(words[rating]) : QString();
}

QString word(std::span<const MenuItem> menu, Int tag, const Strings& strings, const QString& other) {
    for (const MenuItem& item : menu)
        if (item.tag == tag) return strings.text(item.words);
    return other;
}

QString ratingInfo(Int rating) {
    return rating == 0 ? u"?"_s : QString::number(rating);
}

QString withUnit(Float value, const char* unit) {
    return shortest(value) + u' ' + QString::fromUtf8(unit);
}

QString formatted(QStringView format, double value) {
    return fillFormat(format, std::array<FormatArgument, 1>{value});
}

QString shortestWhole(double value) {
    return std::isfinite(value) ? QString::number(std::trunc(value), 'f', 0) : shortest(value);
}

double elapsedPercent(const Date& from, const Date& to, const Desk& desk) {
    if (!from.isPresent() || !to.isPresent() || from.seconds() == to.seconds()) return 0;
    const double now = Moment::fromDateTime(desk.clock.now()).seconds();
    return -100 * (from.seconds() - now) / (to.seconds() - from.seconds());
}

Float orMinusOne(const QString& text) {
    if (text == u"-"_s) return -1;
    const Float value = Float(leadingNumber(text));
    return value < 0 ? -1 : value;
}

QString orDash(Float value) {
    return value < 0 ? u"-"_s : shortest(value);
}

}  // namespace sargan::registerwords
