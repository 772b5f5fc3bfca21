#pragma once

#include <QMap>
#include <QString>
#include <QStringList>
#include <span>
#include <stdexcept>

namespace sargan::cli {

/// A command line that does not say what it should; ends with exit status 2.
class UsageError : public std::runtime_error {
public:
    explicit UsageError(const QString& sentence) : std::runtime_error(sentence.toStdString()) {}
};

/// What an option takes behind its name.
enum class Takes : char {
    Nothing,
    One,      ///< one value
    Numbers,  ///< one or more whole numbers
    Words,    ///< all words up to the next option
};

struct OptionSpec {
    const char* name;  ///< "--row"
    Takes takes;
    const char* value;  ///< what the help calls its value
    const char* help;
};

/// The words of a command line behind the command's name, told apart by the command's options.
class Arguments {
public:
    /// Throws UsageError for an option that is not in `options` or lacks its value.
    Arguments(const QStringList& words, std::span<const OptionSpec> options);

    const QStringList& positional() const { return _positional; }
    bool has(const char* option) const { return _options.contains(QLatin1String(option)); }
    /// All its values, wherever it stood.
    QStringList all(const char* option) const;
    /// Its values, each time that it was given.
    QList<QStringList> occurrences(const char* option) const { return _options.value(QLatin1String(option)); }
    /// The last value given. Throws UsageError when there is none.
    QString one(const char* option) const;
    /// The values as whole numbers. Throws UsageError.
    QList<qsizetype> numbers(const char* option) const;
    /// The one whole number of an option. Throws UsageError.
    int number(const char* option) const;

    /// The positional word at this place. Throws UsageError, calling it `what`, when it is missing.
    QString at(int place, const char* what) const;
    /// Throws UsageError when there are more positional words than this.
    void atMost(int count) const;
    /// The positional words from this place on as name and value: "lieu=Brest". Throws UsageError.
    QList<std::pair<QString, QString>> assignments(int from) const;
    static QList<std::pair<QString, QString>> assignments(const QStringList& words);

private:
    QStringList _positional;
    QMap<QString, QList<QStringList>> _options;
};

}  // namespace sargan::cli
