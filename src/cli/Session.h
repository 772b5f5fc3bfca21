#pragma once

#include <functional>

#include "cli/GlobalOptions.h"
#include "cli/Suite.h"
#include "platform/desk/Desk.h"
#include "platform/desk/TerminalPrompt.h"
#include "platform/document/DocumentController.h"
#include "platform/document/RecordEditor.h"

namespace sargan::cli {

/// The desk of one command, and what commands do with documents.
class Session {
public:
    explicit Session(const GlobalOptions& options);

    Desk& desk() { return _desk; }
    DocumentController& controller() { return _controller; }
    const DocumentKinds& kinds() const { return _kinds; }

    /// Opens a file to look at.
    std::unique_ptr<Document> read(const QString& path);
    /// Opens a file, lets `change` change it, and saves it, unless another program has it open. What
    /// `change` throws leaves the file alone; so does answering false.
    void edit(const QString& path, const std::function<bool(Document&)>& change);

    /// A document's editor, or an error that names the file.
    RecordEditor& editor(Document& document);
    /// A file's logbook, or an error that names the file.
    Carnet& logbook(Document& document);

    /// Fills controls and presses buttons, in order. Throws UsageError for unknown names or bad values.
    void fill(Form& form, const QList<std::pair<QString, QString>>& values, const QStringList& presses);
    /// Selects rows of a document. Throws DocumentError when there is no such row.
    void select(Document& document, RecordEditor& editor, const QList<qsizetype>& rows);

private:
    UserDefaults _defaults;
    TerminalPrompt _prompt;
    Strings _strings;
    NotificationCenter _notifications;
    PickLists _pickLists;
    Desk _desk;
    SaveTypes _saveTypes;
    DocumentKinds _kinds;
    DocumentController _controller;
};

/// Text on standard output, with a line end.
void print(const QString& line);
void print(const QJsonValue& json);
/// Bytes to a file, or to standard output for "-".
void writeOutput(const QString& path, const QByteArray& bytes);

}  // namespace sargan::cli
