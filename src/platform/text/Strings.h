#pragma once

#include <QString>
#include <QStringList>
#include <QTranslator>
#include <memory>
#include <vector>

#include "platform/text/Message.h"

namespace sargan {

/// The localised texts. A text is looked up by key in a named table of the current language's catalogue;
/// what no catalogue has is shown as the fallback that the caller names.
class Strings {
public:
    /// `keys` shows every text as its key, followed by a format's arguments, each after a "|".
    enum class Language { English, French, Keys };

    explicit Strings(Language language = Language::English);
    ~Strings();

    Language language() const { return _language; }
    void setLanguage(Language language);
    /// "en", "fr" or "keys"; none for another word.
    static std::optional<Language> languageNamed(const QString& name);
    /// French for a French-speaking locale, else English.
    static Language systemLanguage();

    QString lookup(const char* key, const char* fallback, const char* table) const;

    /// The text of a message that takes no argument.
    QString text(const Message<>& message) const {
        return lookup(message.key, message.fallback, message.table);
    }

    /// A message filled with its arguments. A catalogue entry whose placeholders do not take them is passed
    /// over in favour of the fallback.
    template <typename... Arguments>
    QString text(const Message<Arguments...>& message,
                 const std::type_identity_t<Arguments>&... arguments) const {
        const std::array<FormatArgument, sizeof...(Arguments)> list{argument(arguments)...};
        const auto kinds = Message<Arguments...>::argumentKinds();
        return filled(message.key, message.fallback, message.table, kinds, list);
    }

    /// A text of the program's own interface: table "Interface", key = the English text.
    QString ui(const char* english) const { return lookup(english, english, "Interface"); }

private:
    template <typename T>
    static FormatArgument argument(const T& value) {
        if constexpr (std::is_same_v<T, WholeNumber>)
            return value.argument();
        else if constexpr (std::is_integral_v<T>)
            return qint64(value);
        else if constexpr (std::is_floating_point_v<T>)
            return value;
        else
            return QString(value);
    }
    QString filled(const char* key, const char* fallback, const char* table,
                   std::span<const ArgumentKind> kinds, std::span<const FormatArgument> arguments) const;

    Language _language = Language::English;
    std::vector<std::unique_ptr<QTranslator>> _catalogues;
};

/// Whether a format's placeholders take arguments of these kinds, in order. `%@` takes anything.
bool placeholdersTake(QStringView format, std::span<const ArgumentKind> kinds);

}  // namespace sargan
