#pragma once

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMap>
#include <QProcess>

#include "platform/files/Folder.h"
#include "support/Golden.h"

/// What a command left behind.
struct Outcome {
    int status = -1;  ///< -1: crashed or hung
    QByteArray output;
    QString errors;

    QString text() const { return QString::fromUtf8(output); }
    /// The one JSON value on standard output; empty when it is no object, or not alone there.
    QJsonObject json() const { return QJsonDocument::fromJson(output).object(); }
};

/// A folder to run commands in, with settings of its own, so that nothing of the person's is touched.
class Workshop {
public:
    /// Runs the program in the folder; texts are English unless `words` say otherwise.
    Outcome run(const QStringList& words, const QString& outputFile = {}) const {
        QProcess core;
        core.setWorkingDirectory(_folder.path());
        if (!outputFile.isEmpty()) core.setStandardOutputFile(outputFile);
        core.start(QStringLiteral(SARGAN_CORE_PROGRAM),
                   QStringList{QStringLiteral("--settings"), _settings.path(), QStringLiteral("--lang"),
                               QStringLiteral("en")} +
                       words);
        const bool ended = core.waitForFinished() && core.exitStatus() == QProcess::NormalExit;
        return {ended ? core.exitCode() : -1, core.readAllStandardOutput(),
                QString::fromUtf8(core.readAllStandardError())};
    }

    const Folder& folder() const { return _folder; }
    const Folder& settings() const { return _settings; }
    void put(const QString& name, const QByteArray& bytes) const { _folder.put(name, bytes); }
    void putGolden(const QString& golden, const QString& name) const { put(name, golden::bytes(golden)); }

    /// Writes the logbook of these dives.
    void putLogbook(const QString& name, const QJsonArray& dives) const {
        const QJsonObject json{{QStringLiteral("type"), QStringLiteral("Carnet de plongee")},
                               {QStringLiteral("records"), dives}};
        put(QStringLiteral("dives.json"), QJsonDocument(json).toJson());
        const Outcome loaded =
            run({QStringLiteral("load"), QStringLiteral("dives.json"), QStringLiteral("-o"), name});
        QFile::remove(_folder.path(QStringLiteral("dives.json")));
        if (loaded.status != 0) throw std::runtime_error(loaded.errors.toStdString());
    }

    QJsonArray records(const QString& name) const {
        return run({QStringLiteral("dump"), name}).json().value(QLatin1String("records")).toArray();
    }
    QJsonObject record(const QString& name, int row) const { return records(name).at(row).toObject(); }

    /// Every name in the folder, hidden ones too, with the file's bytes.
    QMap<QString, QByteArray> everything() const {
        QMap<QString, QByteArray> found;
        for (const QString& name : _folder.names()) {
            // Opening a pipe would wait for somebody to write into it.
            const bool isPlain = QFileInfo(_folder.path(name)).isFile();
            found.insert(name, isPlain ? _folder.content(name) : QByteArray("no file"));
        }
        return found;
    }

private:
    Folder _folder{Folder::Where::Memory};
    Folder _settings{Folder::Where::Memory};
};

/// Whether these errors are one sentence of the program.
inline bool isOneSentence(const QString& errors) {
    return errors.startsWith(QLatin1String("sargan: ")) && errors.endsWith(u'\n') && errors.count(u'\n') == 1;
}

/// A dive as JSON with the given fields and a mix that is taken over as it stands.
inline QJsonObject dive(QJsonObject fields) {
    for (const char* mix : {"o2Mix", "o2Mix_2"})
        if (!fields.contains(QLatin1String(mix))) fields.insert(QLatin1String(mix), 21);
    return fields;
}
