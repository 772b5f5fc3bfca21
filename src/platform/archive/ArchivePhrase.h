#pragma once

#include <QByteArrayView>
#include <QString>
#include <concepts>
#include <functional>
#include <vector>

namespace sargan {

/// English words of a sentence about an archive. They are also their key in the table "Archive" of the texts;
/// each "%@" takes one value. A pointer and no more: readers hand them on with every byte that they take.
struct ArchiveWords {
    const char* english;
};

consteval ArchiveWords operator""_words(const char* english, std::size_t) {
    return {english};
}

/// Such words with their values, or a value that stands as it is. What it says is not put together before a
/// person is to read it, so it can be said in another language.
class ArchivePhrase {
public:
    /// Other words for the given English ones.
    using Translation = std::function<QString(const char* english)>;

    ArchivePhrase(ArchiveWords words, std::vector<ArchivePhrase> values = {})
        : _english(words.english), _values(std::move(values)) {}
    ArchivePhrase(QString value) : _value(std::move(value)) {}
    template <std::integral Number>
    ArchivePhrase(Number number) : _value(QString::number(number)) {}

    /// A name that stands in the archive, quoted no further than it helps.
    static ArchivePhrase name(QByteArrayView bytes);

    QString text() const;
    QString text(const Translation& translation) const;

private:
    const char* _english = nullptr;  ///< null for a value
    QString _value;
    std::vector<ArchivePhrase> _values;
};

}  // namespace sargan
