#pragma once

#include <QString>
#include <memory>
#include <stdexcept>

#include "platform/files/FileMessage.h"

namespace sargan {

class ArchiveError;

/// A document operation that failed for a reason of its own; what() is one sentence for people, in English.
/// `message` is the same apart from its values, for other languages; its key is empty when there is none.
class DocumentError : public std::runtime_error {
public:
    explicit DocumentError(QString sentence)
        : std::runtime_error(onOneLine(std::move(sentence)).toStdString()) {}
    explicit DocumentError(FileMessage message, const QString& path = {})
        : std::runtime_error(onOneLine(withPath(path, message.text())).toStdString()),
          _message(std::move(message)),
          _path(path) {}
    /// A file that is no readable archive.
    DocumentError(const ArchiveError& error, const QString& path);

    const FileMessage& message() const { return _message; }
    /// The file that the sentence names in front; empty when it names none.
    const QString& path() const { return _path; }
    /// What is wrong with the bytes of the file; null when it is something else.
    const ArchiveError* damage() const { return _damage.get(); }

    static QString withPath(const QString& path, const QString& sentence) {
        return path.isEmpty() ? sentence : path + QStringLiteral(": ") + sentence;
    }
    /// A sentence may quote bytes of a damaged file, or a file's name with a line end in it.
    static QString onOneLine(QString sentence) {
        for (QChar& c : sentence)
            if (c.category() == QChar::Other_Control) c = QChar::ReplacementCharacter;
        return sentence;
    }

private:
    FileMessage _message;
    QString _path;
    std::shared_ptr<const ArchiveError> _damage;
};

/// What can be wrong with a document, in words: key of the table "Files", and the English sentence.
namespace documentproblem {
struct Wording {
    const char* key;
    const char* format;
};
inline constexpr Wording noRecords{.key = "Document no records",
                                   .format = "its content is not a list of records"};
inline constexpr Wording damaged{.key = "Document damaged", .format = "byte %@: %@"};
inline constexpr Wording otherType{.key = "Document other type",
                                   .format = "a document of the type \"%@\" was expected, not \"%@\""};
inline constexpr Wording lookOnly{
    .key = "Document look only",
    .format = "this document was opened to look at only, so the file was left alone"};
inline constexpr Wording openElsewhere{.key = "Document open elsewhere",
                                       .format = "another program has this file open, so it was left alone"};
inline constexpr Wording notTheSame{
    .key = "Document not the same",
    .format = "what would be written does not read back as this document, so nothing was written"};
inline constexpr Wording noExport{.key = "Document no export", .format = "there is no export type \"%@\""};
inline constexpr Wording neverSaved{.key = "Document never saved",
                                    .format = "the document has never been saved"};
inline constexpr Wording foreignRecords{
    .key = "Document foreign records",
    .format = "its records are of the class \"%@\", which is none of this program's"};
inline constexpr Wording all[] = {noRecords,  damaged,  otherType,  lookOnly,      openElsewhere,
                                  notTheSame, noExport, neverSaved, foreignRecords};
}  // namespace documentproblem

/// The error for one of these problems.
DocumentError documentError(const documentproblem::Wording& wording, const QStringList& arguments = {},
                            const QString& path = {});

/// The sentence of any exception that the core throws, in English.
inline QString sentenceOf(const std::exception& error) {
    return QString::fromUtf8(error.what());
}

}  // namespace sargan
