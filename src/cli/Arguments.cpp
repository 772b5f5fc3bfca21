#include "cli/Arguments.h"

namespace sargan::cli {

namespace {

bool isWhole(const QString& word) {
    bool fine = false;
    word.toInt(&fine);
    return fine;
}

int whole(const QString& option, const QString& word) {
    if (!isWhole(word))
        throw UsageError(QStringLiteral("%1 takes a whole number, not \"%2\"").arg(option, word));
    return word.toInt();
}

const OptionSpec& find(std::span<const OptionSpec> options, const QString& word) {
    for (const OptionSpec& option : options)
        if (word == QLatin1String(option.name)) return option;
    throw UsageError(QStringLiteral("there is no option \"%1\"").arg(word));
}

bool isOption(const QString& word) {
    return word.startsWith(u'-') && word.size() > 1 && !isWhole(word);
}

}  // namespace

Arguments::Arguments(const QStringList& words, std::span<const OptionSpec> options) {
    for (qsizetype i = 0; i < words.size(); ++i) {
        if (words[i] == QLatin1String("--")) {
            _positional += words.mid(i + 1);
            return;
        }
        if (!isOption(words[i])) {
            _positional << words[i];
            continue;
        }
        const OptionSpec& option = find(options, words[i]);
        QStringList& values = _options[words[i]].emplaceBack();
        if (option.takes == Takes::Nothing) continue;
        if (option.takes == Takes::Words) {
            while (i + 1 < words.size() && !isOption(words[i + 1])) values << words[++i];
            continue;
        }
        if (i + 1 >= words.size()) throw UsageError(QStringLiteral("%1 needs a value").arg(words[i]));
        values << words[++i];
        if (option.takes == Takes::Numbers)
            while (i + 1 < words.size() && isWhole(words[i + 1])) values << words[++i];
    }
}

QStringList Arguments::all(const char* option) const {
    QStringList values;
    for (const QStringList& occurrence : occurrences(option)) values += occurrence;
    return values;
}

QString Arguments::one(const char* option) const {
    const QStringList values = all(option);
    if (values.isEmpty()) throw UsageError(QStringLiteral("%1 is missing").arg(QLatin1String(option)));
    return values.last();
}

QList<qsizetype> Arguments::numbers(const char* option) const {
    QList<qsizetype> numbers;
    for (const QString& value : all(option)) numbers << whole(QLatin1String(option), value);
    if (numbers.isEmpty()) throw UsageError(QStringLiteral("%1 is missing").arg(QLatin1String(option)));
    return numbers;
}

int Arguments::number(const char* option) const {
    const QList<qsizetype> all = numbers(option);
    if (all.size() > 1) throw UsageError(QStringLiteral("%1 takes one number").arg(QLatin1String(option)));
    return int(all.first());
}

QString Arguments::at(int place, const char* what) const {
    if (place >= _positional.size())
        throw UsageError(QStringLiteral("%1 is missing").arg(QLatin1String(what)));
    return _positional[place];
}

void Arguments::atMost(int count) const {
    if (_positional.size() > count)
        throw UsageError(QStringLiteral("\"%1\" is too much").arg(_positional[count]));
}

QList<std::pair<QString, QString>> Arguments::assignments(int from) const {
    return assignments(_positional.mid(from));
}

QList<std::pair<QString, QString>> Arguments::assignments(const QStringList& words) {
    QList<std::pair<QString, QString>> pairs;
    for (const QString& word : words) {
        const qsizetype sign = word.indexOf(u'=');
        if (sign <= 0) throw UsageError(QStringLiteral("\"%1\" is not of the form control=value").arg(word));
        pairs.append({word.left(sign), word.mid(sign + 1)});
    }
    return pairs;
}

}  // namespace sargan::cli
