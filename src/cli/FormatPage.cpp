#include "cli/Command.h"
#include "logbook/PlongeeArchive.h"
#include "registers/Budget.h"
#include "registers/Compresseur.h"
#include "registers/Consommables.h"
#include "registers/DiversDocs.h"
#include "registers/Entreprises.h"
#include "registers/Epaves.h"
#include "registers/Materiel.h"
#include "registers/Rebreather.h"
#include "registers/Structures.h"

namespace sargan::cli {

namespace {

const char* const introduction = R"(# File format

This page is printed by the program (`sargan file-format`) from the slot tables that it reads and writes
with; a test holds it to them.

Every document is one typedstream archive: 16 bytes of header (`04 0b "streamtyped" 81 e8 03`), then one
group `@` whose object is an `NSMutableArray` of the document's records, then the end of the file. A file's
kind is the class of its records; an array without records takes the kind of the file's extension.

A record is an object of its class, whose superclass is `NSObject`, followed by one group for each slot below,
in this order. The class version stands in the file; a slot is there when its versions hold that version.

- `i` is a 32-bit whole number, `f` a 32-bit float, `@` an object or nil.
- Texts are `NSString` (UTF-8), dates `NSDate` (seconds since 1 January 2001 00:00 UTC), lists
  `NSMutableArray` of `NSNumber`.
- An object of a class that the program does not know, in place of a text, date, number or picture, is kept
  and written back as it was as long as nobody changes the field.
- A picture is read from any object that holds bytes beginning like a TIFF, PNG or JPEG file; the program
  writes an `NSImage` (version 0, superclass `NSObject`) whose one group `@` is an `NSData` with those bytes.

What is one instance in the file: whole numbers and booleans once for each kind and value, ASCII texts of up to
seven characters once for each text, and the same record twice in a list. Everything else is written in full.
)";

template <class R>
QString tableOf(const RecordClass<R>& cls, const char* what) {
    QString page =
        QStringLiteral(
            "\n## %1, version %2: %3\n\n| # | Field | Type | Versions | |\n|---|---|---|---|---|\n")
            .arg(QLatin1String(cls.name))
            .arg(cls.version)
            .arg(QLatin1String(what));
    for (const SlotDescription& row : describeSlots(cls))
        page += QStringLiteral("| %1 | `%2` | %3 | %4 | %5 |\n")
                    .arg(row.number)
                    .arg(row.field)
                    .arg(QLatin1Char(row.type))
                    .arg(row.versions, row.remark);
    return page;
}

QString registerTables() {
    QString page = tableOf(epavesClass(), "one wreck of a wreck register");
    page += QStringLiteral(
        "\nA third bearing is read but never written. Up to version 4, the texts that later versions added "
        "are "
        "empty,\nnot absent.\n");
    page += tableOf(materielClass(), "one item of an equipment inventory");
    page += QStringLiteral(
        "\nUp to version 2, `dateAchat` is the day that the text `dateAchatMatos` names as day/month/year. "
        "`progress` and\nthe texts in place of dates are not written.\n");
    page += tableOf(compresseurClass(), "one service of a compressor");
    page += tableOf(rebreatherClass(), "one intervention on a rebreather");
    page += tableOf(consommablesClass(), "one spare part");
    page += tableOf(budgetClass(), "one priced service of a budget forecast");
    page += tableOf(entreprisesClass(), "one firm of an address book");
    page += tableOf(structuresClass(), "one club of an address book");
    page += tableOf(diversDocsClass(), "one of the diver's papers");
    return page.trimmed();
}

}  // namespace

QString fileFormatPage() {
    QString page = QString::fromUtf8(introduction) + tableOf(plongeeClass(), "one dive of a logbook");
    page += QStringLiteral(
        "\nUp to version 26, each pony tank's value of 1 or more takes the place of the bail-out tank's "
        "value of the\n"
        "same position. `computerMode`, `etranger`, the stage switches and the pony tanks are not "
        "written.\n");
    return page + registerTables();
}

}  // namespace sargan::cli
