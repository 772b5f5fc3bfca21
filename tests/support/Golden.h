#pragma once

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <stdexcept>

/// The golden archives and what a reader must make of them. A script makes them, which shares nothing with
/// the program.
namespace golden {

inline QString path(const QString& file) {
    return QStringLiteral(SARGAN_SOURCE_DIR "/tests/data/archives/") + file;
}

inline QByteArray bytes(const QString& file) {
    QFile opened(path(file));
    if (!opened.open(QIODevice::ReadOnly)) throw std::runtime_error("no golden file " + file.toStdString());
    return opened.readAll();
}

/// The expectation beside an archive: golden::json("plongee-v27").
inline QJsonObject json(const QString& name) {
    return QJsonDocument::fromJson(bytes(name + QStringLiteral(".json"))).object();
}

inline QJsonArray records(const QString& name) {
    return json(name).value(QLatin1String("records")).toArray();
}

/// The archives whose names match, without their folder.
inline QStringList files(const QString& pattern) {
    const QStringList found = QDir(path({})).entryList({pattern}, QDir::Files, QDir::Name);
    if (found.isEmpty()) throw std::runtime_error("no golden files " + pattern.toStdString());
    return found;
}

/// The names of the logbooks that hold dives, without their extension.
inline QStringList logbooks() {
    QStringList names = files(QStringLiteral("plongee-*.carnet"));
    for (QString& name : names) name.chop(int(qstrlen(".carnet")));
    return names;
}

}  // namespace golden
