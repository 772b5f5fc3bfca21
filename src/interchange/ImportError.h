#pragma once

#include "platform/document/DocumentError.h"

namespace sargan {

/// Where in a file something stands, for a person: lines and columns count from 1, columns in bytes.
struct FilePlace {
    int line = 1;
    int column = 1;
};

FilePlace placeOf(QByteArrayView bytes, qsizetype offset);

/// A file that cannot be read as what it should be. Nothing of it was taken.
class ImportError : public DocumentError {
public:
    ImportError(const documentproblem::Wording& wording, FilePlace place)
        : DocumentError(FileMessage{QLatin1String(wording.key),
                                    QLatin1String(wording.format),
                                    {QString::number(place.line), QString::number(place.column)}}),
          _place(place) {}

    FilePlace place() const { return _place; }

private:
    FilePlace _place;
};

/// What can be wrong with a file to import or a logbook to export, in words: key of the table "Files", and
/// the English sentence. Those about a file's content take line and column.
namespace interchangeproblem {
using Wording = documentproblem::Wording;
inline constexpr Wording noMemory{.key = "Import no memory",
                                  .format = "line %@, column %@: there is not enough memory to read on"};
inline constexpr Wording badTag{.key = "Import bad tag", .format = "line %@, column %@: this is no tag"};
inline constexpr Wording badComment{.key = "Import bad comment",
                                    .format = "line %@, column %@: a comment does not end"};
inline constexpr Wording badAttribute{.key = "Import bad attribute",
                                      .format = "line %@, column %@: an attribute is not written correctly"};
inline constexpr Wording badEnd{.key = "Import bad end",
                                .format = "line %@, column %@: an element does not end as it began"};
inline constexpr Wording noElement{.key = "Import no element",
                                   .format = "line %@, column %@: there is no XML element in this file"};
inline constexpr Wording badXml{.key = "Import bad XML",
                                .format = "line %@, column %@: this is not well-formed XML"};
inline constexpr Wording zeroByte{.key = "Import zero byte",
                                  .format = "line %@, column %@: there is a zero byte in the text"};
inline constexpr Wording notUtf8{.key = "Import not UTF-8",
                                 .format =
                                     "line %@, column %@: this is no UTF-8, and the file names no "
                                     "other encoding that can be read"};
inline constexpr Wording notUtf16{.key = "Import not UTF-16",
                                  .format = "line %@, column %@: this is no text in UTF-16 or UTF-32"};
inline constexpr Wording aboutContent[] = {noMemory,  badTag, badComment, badAttribute, badEnd,
                                           noElement, badXml, zeroByte,   notUtf8,      notUtf16};

inline constexpr Wording tooManyDives{
    .key = "Import too many dives",
    .format = "there are %@ dives in it, more than the %@ that are read at once"};
inline constexpr Wording emptyLogbook{
    .key = "Export empty logbook",
    .format = "an empty logbook cannot be exported as UDDF, whose gas is that of the first dive"};
inline constexpr Wording missingMarks{
    .key = "Export missing marks",
    .format =
        "dive %@ has %@ depths but only %@ marks \"%@\", so nothing was exported; its profile's data "
        "have to be completed first"};
inline constexpr Wording all[] = {noMemory,     badTag,       badComment,  badAttribute, badEnd,
                                  noElement,    badXml,       zeroByte,    notUtf8,      notUtf16,
                                  tooManyDives, emptyLogbook, missingMarks};
}  // namespace interchangeproblem

}  // namespace sargan
