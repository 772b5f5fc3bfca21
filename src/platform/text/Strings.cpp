#include "platform/text/Strings.h"

#include <QLocale>

namespace sargan {

Strings::Strings(Language language) {
    setLanguage(language);
}

Strings::~Strings() = default;

void Strings::setLanguage(Language language) {
    _language = language;
    _catalogues.clear();
    if (language == Language::Keys) return;
    const QString ending = language == Language::French ? QStringLiteral("_fr.qm") : QStringLiteral("_en.qm");
    for (const char* subject : {"sargan", "archive", "calculators", "settings", "profile", "logbook",
                                "interchange", "stats", "registers"}) {
        auto catalogue = std::make_unique<QTranslator>();
        if (catalogue->load(QStringLiteral(":/i18n/") + QLatin1String(subject) + ending))
            _catalogues.push_back(std::move(catalogue));
    }
}

std::optional<Strings::Language> Strings::languageNamed(const QString& name) {
    if (name == QLatin1String("en")) return Language::English;
    if (name == QLatin1String("fr")) return Language::French;
    if (name == QLatin1String("keys")) return Language::Keys;
    return std::nullopt;
}

Strings::Language Strings::systemLanguage() {
    return QLocale::system().language() == QLocale::French ? Language::French : Language::English;
}

QString Strings::lookup(const char* key, const char* fallback, const char* table) const {
    if (_language == Language::Keys) return QString::fromUtf8(key);
    for (const auto& catalogue : _catalogues) {
        QString text = catalogue->translate(table, key);
        if (!text.isNull()) return text;
    }
    return QString::fromUtf8(fallback);
}

QString Strings::filled(const char* key, const char* fallback, const char* table,
                        std::span<const ArgumentKind> kinds,
                        std::span<const FormatArgument> arguments) const {
    if (_language == Language::Keys) {
        QString shown = QString::fromUtf8(key);
        for (const FormatArgument& argument : arguments)
            shown += u'|' + fillFormat(u"%@", std::span(&argument, 1));
        return shown;
    }
    QString format = lookup(key, fallback, table);
    if (!placeholdersTake(format, kinds)) format = QString::fromUtf8(fallback);
    return fillFormat(format, arguments);
}

bool placeholdersTake(QStringView format, std::span<const ArgumentKind> kinds) {
    const std::vector<ArgumentKind> found = placeholdersOf(format);
    return std::equal(
        found.begin(), found.end(), kinds.begin(), kinds.end(),
        [](ArgumentKind has, ArgumentKind given) { return has == given || has == ArgumentKind::Text; });
}

}  // namespace sargan
