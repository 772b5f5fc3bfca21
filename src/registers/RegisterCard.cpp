#include "registers/RegisterCard.h"

namespace sargan {

using namespace Qt::StringLiterals;

namespace {

const TextStyle titleStyle{.color = inkcolor::red, .bold = true, .size = 18};
const TextStyle ruleStyle{.color = inkcolor::black};
const TextStyle headingStyle{.color = QColor(128, 0, 128), .bold = true, .underline = true, .size = 14};
const TextStyle labelStyle{.color = inkcolor::blue};
const TextStyle valueStyle{.color = inkcolor::black};
const TextStyle closingStyle{.color = QColor(128, 80, 30), .size = 10};

}  // namespace

void CardWriter::title(const Message<>& words) {
    _text.append(strings().text(words), titleStyle);
}

void CardWriter::rule(const char* dashes) {
    _text.append(QLatin1String(dashes), ruleStyle);
}

void CardWriter::heading(const Message<>& words) {
    _text.append(u"\r"_s + strings().text(words) + u'\r', headingStyle);
}

void CardWriter::line(const Message<>& label, const QString& value) {
    _text.append(strings().text(label) + u" : "_s, labelStyle);
    _text.append(value + u'\r', valueStyle);
}

void CardWriter::line(const Message<>& label, const QString& value, const Message<>& label2,
                      const QString& value2) {
    _text.append(strings().text(label) + u" : "_s, labelStyle);
    _text.append(value + u"   "_s, valueStyle);
    line(label2, value2);
}

void CardWriter::line(const Message<>& words) {
    line(strings().text(words));
}

void CardWriter::line(const QString& text) {
    _text.append(text + u'\r', valueStyle);
}

void CardWriter::closing(const char* beforePath) {
    const QString today = desk().clock.now().toString(u"dd/MM/yyyy"_s);
    _text.append(QLatin1String(beforePath) +
                     strings().text(Message<QString>{"Main", "File dir : %@", "File dir : %@"}, _path),
                 closingStyle);
    _text.append(
        u"\r\r"_s + strings().text(Message<QString>{"Main", "Edition date : %@", "Edition date : %@"}, today),
        closingStyle);
    _text.append(u"\r"_s, closingStyle);
}

QString cardDate(const Date& date) {
    return date.local().toString(u"dd/MM/yyyy"_s);
}

QString cardTime(const Date& time) {
    return time.local().toString(u"HH:mm"_s);
}

}  // namespace sargan
