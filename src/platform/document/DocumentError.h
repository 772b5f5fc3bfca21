#pragma once

#include <QString>
#include <stdexcept>

namespace sargan {

/// A document operation that failed for a reason of its own; what() is one sentence for people.
class DocumentError : public std::runtime_error {
public:
    explicit DocumentError(const QString& sentence) : std::runtime_error(sentence.toStdString()) {}
};

/// The sentence of any exception that the core throws.
inline QString sentenceOf(const std::exception& error) { return QString::fromUtf8(error.what()); }

}  // namespace sargan
