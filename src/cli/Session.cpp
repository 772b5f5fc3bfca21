#include "cli/Session.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <cstdio>

#include "platform/files/DocumentLock.h"
#include "settings/InterfaceChoice.h"
#include "settings/RegisteredDefaults.h"

namespace sargan::cli {

Session::Session(const GlobalOptions& options)
    : _defaults(options.settings),
      _prompt(options.agree),
      _strings(options.language.value_or(preferredLanguage(_defaults))),
      _pickLists(_defaults),
      _desk{_prompt, _defaults, _strings, _notifications, _pickLists, Clock(options.now), Log()},
      _saveTypes(makeSaveTypes()),
      _kinds(makeDocumentKinds(_saveTypes)),
      _controller(_kinds, _desk) {
    registerDefaults(_defaults, _pickLists);
    if (!_defaults.problem().isEmpty()) std::fprintf(stderr, "%s\n", qUtf8Printable(_defaults.problem()));
}

std::unique_ptr<Document> Session::read(const QString& path) {
    return _controller.read(path);
}

void Session::edit(const QString& path, const std::function<bool(Document&)>& change) {
    DocumentLock lock(path);
    std::unique_ptr<Document> document = read(path);
    if (!lock.tryLock())
        throw documentError(documentproblem::openElsewhere, {}, path);
    if (change(*document) && document->isEdited()) document->save();
}

RecordEditor& Session::editor(Document& document) {
    if (RecordEditor* editor = document.editor()) return *editor;
    throw DocumentError(QStringLiteral("%1: documents of the type \"%2\" can only be looked at so far")
                            .arg(document.path(), QLatin1String(document.kind().typeName)));
}

Carnet& Session::logbook(Document& document) {
    if (auto* carnet = qobject_cast<Carnet*>(&document)) return *carnet;
    throw DocumentError(QStringLiteral("%1: this is no logbook but a document of the type \"%2\"")
                            .arg(document.path(), QLatin1String(document.kind().typeName)));
}

void Session::fill(Form& form, const QList<std::pair<QString, QString>>& values, const QStringList& presses) {
    try {
        // All names first: a slip is to be told before any question is asked and answered.
        QList<int> controls;
        for (const auto& [name, value] : values) controls << form.find(name);
        for (const QString& action : presses)
            if (!form.actionNames().contains(action)) throw UnknownControlError(action);
        for (qsizetype i = 0; i < values.size(); ++i) form.fill(controls[i], values[i].second);
        for (const QString& action : presses) form.press(action);
    } catch (const UnknownControlError& error) {
        throw UsageError(error.sentence());
    } catch (const ControlValueError& error) {
        throw UsageError(error.sentence());
    }
}

void Session::select(Document& document, RecordEditor& editor, const QList<qsizetype>& rows) {
    for (const qsizetype row : rows)
        if (row < 0 || row >= editor.rowCount())
            throw DocumentError(
                QStringLiteral("%1: there is no row %2; it has %3")
                    .arg(document.path(), QString::number(row), QString::number(editor.rowCount())));
    editor.selectRows(rows);
}

void print(const QString& line) {
    const QByteArray bytes = line.toUtf8() + '\n';
    std::fwrite(bytes.constData(), 1, std::size_t(bytes.size()), stdout);
}

void print(const QJsonValue& json) {
    const QJsonDocument document =
        json.isArray() ? QJsonDocument(json.toArray()) : QJsonDocument(json.toObject());
    const QByteArray bytes = document.toJson();
    std::fwrite(bytes.constData(), 1, std::size_t(bytes.size()), stdout);
}

void writeOutput(const QString& path, const QByteArray& bytes) {
    if (path != QLatin1String("-")) {
        saveFile(path, bytes);
        return;
    }
    if (std::fwrite(bytes.constData(), 1, std::size_t(bytes.size()), stdout) != std::size_t(bytes.size()))
        throw DocumentError(QStringLiteral("standard output takes no more"));
}

}  // namespace sargan::cli
