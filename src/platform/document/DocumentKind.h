#pragma once

#include <QString>
#include <functional>
#include <memory>
#include <span>
#include <vector>

#include "platform/text/Message.h"

namespace sargan {

class Document;
struct Desk;

/// One of the document kinds: how the person, the files and the code know it.
struct DocumentKind {
    const char* typeName;  ///< by which load and save dispatch: "Carnet de plongee"
    bool isLocalised;      ///< whether the type name is a key of the table "Main", looked up when used
    const char* documentClass;
    const char* recordClass;  ///< the class of the records in its archive
    const char* extension;    ///< of its files, without the dot
    const char* newAction;    ///< the new-document action: "newCarnetDocumentMenuAction"
    std::function<std::unique_ptr<Document>(const DocumentKind&, Desk&)> create;

    /// The type name as it is used now.
    QString currentTypeName(const Desk& desk) const;
};

/// All kinds that the program knows; the first is the framework's own default.
class DocumentKinds {
public:
    explicit DocumentKinds(std::vector<DocumentKind> kinds) : _kinds(std::move(kinds)) {}

    std::span<const DocumentKind> all() const { return _kinds; }
    const DocumentKind& standard() const { return _kinds.front(); }

    /// By type name as it stands in the tables, or as it is in the current language. Null when unknown.
    const DocumentKind* named(const QString& typeName, const Desk& desk) const;
    const DocumentKind* forRecordClass(const QString& recordClass) const;
    /// By a path's extension; the standard kind for any other.
    const DocumentKind& forExtension(const QString& path) const;
    /// By content first: the record class in the archive, else (empty archive) the extension. Throws
    /// ArchiveError when the bytes are no archive, or DocumentError for records of a class of no kind.
    const DocumentKind& forContent(const QByteArray& bytes, const QString& path) const;

private:
    std::vector<DocumentKind> _kinds;
};

}  // namespace sargan
