#pragma once

#include <QString>
#include <QStringList>

class QWidget;

namespace sargan {

class Document;
class Strings;
struct ExportFormat;

/// Where the person wants a document to be written, and as what.
struct SaveChoice {
    SaveChoice() = default;
    SaveChoice(QString chosenPath, const ExportFormat* chosenFormat = nullptr)
        : path(std::move(chosenPath)), format(chosenFormat) {}

    QString path;                          ///< empty when the person gave up
    const ExportFormat* format = nullptr;  ///< null: the document's own
};

/// "UDCF (Universal Dive Computer Format) (*.udcf)"
QString nameFilter(const ExportFormat& format, const Strings& strings);

/// The formats that this document can be exported in, of all that there are.
QList<const ExportFormat*> exportFormatsOf(const Document& document);

/// Asks where to write and as what. `own` stands first among the kinds of files; without it only exports
/// are offered.
SaveChoice askWhereToSave(QWidget* parent, const QString& title, const QString& folder,
                          const QString& suggested, const Document& document, const QStringList& own);

}  // namespace sargan
