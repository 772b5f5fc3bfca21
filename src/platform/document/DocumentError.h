#pragma once

#include <QString>
#include <stdexcept>

namespace sargan {

/// A document operation that failed for a reason of its own; what() is one sentence for people.
class DocumentError : public std::runtime_error {
public:
    explicit DocumentError(QString sentence)
        : std::runtime_error(onOneLine(std::move(sentence)).toStdString()) {}

private:
    /// A sentence may quote bytes of a damaged file, or a file's name with a line end in it.
    static QString onOneLine(QString sentence) {
        for (QChar& c : sentence)
            if (c.category() == QChar::Other_Control) c = QChar::ReplacementCharacter;
        return sentence;
    }
};

/// The sentence of any exception that the core throws.
inline QString sentenceOf(const std::exception& error) {
    return QString::fromUtf8(error.what());
}

}  // namespace sargan
