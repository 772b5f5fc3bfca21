#pragma once

#include <pugixml.hpp>

#include "interchange/ImportError.h"

namespace sargan {

/// The white space between two tags: most of a file's nodes, if they are kept.
enum class SpaceBetweenTags { Dropped, Kept };

/// The bytes of an XML file as UTF-8 without byte order mark. Understands UTF-8, UTF-16 and UTF-32 by their
/// first bytes, and by declaration ISO 8859-1, Windows-1252 and Mac OS Roman. A declaration of anything
/// else counts for nothing when the bytes are UTF-8. Throws ImportError.
QByteArray utf8OfXml(QByteArray bytes);

/// A parsed XML file. Nothing that the file names is ever fetched: document types are passed over and
/// entities other than the five of XML stay as they are written.
class XmlFile {
public:
    /// Throws ImportError with line and column where the bytes are no well-formed XML.
    XmlFile(const QByteArray& bytes, SpaceBetweenTags space);

    pugi::xml_node root() const { return _document.document_element(); }

private:
    QByteArray _utf8;  ///< the tree points into it
    pugi::xml_document _document;
};

/// The beginning of a file, as UTF-8 as far as its first bytes tell.
QByteArray beginningOf(const QByteArray& bytes);

/// The name of the first element, as far as a file's beginning shows it; empty when there is none.
QByteArray rootNameOf(const QByteArray& bytes);

}  // namespace sargan
