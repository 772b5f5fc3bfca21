#include "interchange/ui/SaveChoice.h"

#include <QFileDialog>
#include <QFileInfo>

#include "interchange/Formats.h"

namespace sargan {

using namespace Qt::StringLiterals;

QString nameFilter(const ExportFormat& format, const Strings& strings) {
    return strings.text(format.title) + u" (*."_s + QLatin1String(format.extension) + u')';
}

QList<const ExportFormat*> exportFormatsOf(const Document& document) {
    QList<const ExportFormat*> formats;
    if (qobject_cast<const Carnet*>(&document))
        for (const ExportFormat& format : exportFormats()) formats << &format;
    return formats;
}

SaveChoice askWhereToSave(QWidget* parent, const QString& title, const QString& folder,
                          const QString& suggested, const Document& document, const QStringList& own) {
    const Strings& strings = document.strings();
    const QList<const ExportFormat*> formats = exportFormatsOf(document);
    QFileDialog dialog(parent, title, folder);
    QStringList filters = own;
    for (const ExportFormat* format : formats) filters << nameFilter(*format, strings);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setNameFilters(filters);
    const auto chosenFormat = [&]() -> const ExportFormat* {
        const qsizetype at = filters.indexOf(dialog.selectedNameFilter()) - own.size();
        return at >= 0 && at < formats.size() ? formats[at] : nullptr;
    };
    const auto followFilter = [&] {
        const ExportFormat* format = chosenFormat();
        const QString extension = QLatin1String(format ? format->extension : document.kind().extension);
        dialog.setDefaultSuffix(extension);
        const QString name = QFileInfo(dialog.selectedFiles().value(0, suggested)).completeBaseName();
        dialog.selectFile((name.isEmpty() ? QFileInfo(suggested).completeBaseName() : name) + u'.' +
                          extension);
    };
    dialog.selectFile(suggested);
    followFilter();
    QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, followFilter);
    if (dialog.exec() != QDialog::Accepted) return {};
    return {dialog.selectedFiles().value(0), chosenFormat()};
}

}  // namespace sargan
