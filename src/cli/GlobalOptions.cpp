#include "cli/GlobalOptions.h"

#include <QStandardPaths>

namespace sargan::cli {

namespace {

constexpr OptionSpec specs[] = {
    {"--lang", Takes::One, "en|fr|keys", "language of all texts; keys shows each text as its key"},
    {"--settings", Takes::One, "DIR", "this folder instead of the user's own settings"},
    {"--yes", Takes::Nothing, "", "agree to every question"},
    {"--no", Takes::Nothing, "", "decline every question (this is the default)"},
    {"--now", Takes::One, "TIME", "set the clock, for example 2016-06-07T14:30:00"},
    {"--help", Takes::Nothing, "", "what the program or a command does"},
    {"--version", Takes::Nothing, "", "the program's version"},
};

void apply(GlobalOptions& options, const QString& name, const QString& value) {
    if (name == QLatin1String("--lang")) {
        options.language = Strings::languageNamed(value);
        if (!options.language)
            throw UsageError(QStringLiteral("--lang takes en, fr or keys, not \"%1\"").arg(value));
    } else if (name == QLatin1String("--settings")) {
        options.settings = value;
    } else if (name == QLatin1String("--now")) {
        options.now = QDateTime::fromString(value, Qt::ISODate).toLocalTime();
        if (!options.now.isValid())
            throw UsageError(
                QStringLiteral("--now takes a time such as 2016-06-07T14:30:00, not \"%1\"").arg(value));
    } else if (name == QLatin1String("--help")) {
        options.help = true;
    } else if (name == QLatin1String("--version")) {
        options.version = true;
    } else {
        options.agree = name == QLatin1String("--yes");
    }
}

}  // namespace

std::span<const OptionSpec> globalOptionSpecs() {
    return specs;
}

GlobalOptions GlobalOptions::take(const QStringList& arguments) {
    GlobalOptions options;
    for (qsizetype i = 0; i < arguments.size(); ++i) {
        if (arguments[i] == QLatin1String("--")) {
            options.rest += arguments.mid(i);
            break;
        }
        const auto spec = std::find_if(std::begin(specs), std::end(specs), [&](const OptionSpec& option) {
            return arguments[i] == QLatin1String(option.name);
        });
        if (spec == std::end(specs)) {
            options.rest << arguments[i];
            continue;
        }
        const QString name = arguments[i];
        const bool takesValue = spec->takes == Takes::One;
        if (takesValue && i + 1 >= arguments.size())
            throw UsageError(QStringLiteral("%1 needs a value").arg(name));
        apply(options, name, takesValue ? arguments[++i] : QString());
    }
    if (options.settings.isEmpty()) options.settings = standardSettingsFolder();
    return options;
}

QString standardSettingsFolder() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/sargan");
}

}  // namespace sargan::cli
