#include "platform/desk/UserDefaults.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <algorithm>
#include <climits>
#include <cmath>

#include "platform/files/SafeFile.h"
#include "platform/text/Message.h"
#include "platform/text/Numbers.h"

namespace sargan {

namespace {

QString settingsFile(const QString& folder) {
    return folder + QStringLiteral("/settings.json");
}

}  // namespace

UserDefaults::UserDefaults(const QString& folder) : _folder(folder) {
    const QString file = settingsFile(folder);
    if (!QFileInfo::exists(file)) return;
    try {
        QJsonParseError error;
        const QJsonDocument document = QJsonDocument::fromJson(readFile(file), &error);
        if (document.isObject()) {
            _stored = document.object();
            return;
        }
        const QString aside = file + QStringLiteral(".damaged");
        QFile::remove(aside);
        const bool moved = QFile::rename(file, aside);
        _problem =
            QStringLiteral("%1: the settings could not be read (byte %2: %3); %4")
                .arg(file)
                .arg(error.offset)
                .arg(document.isNull() ? error.errorString() : QStringLiteral("an object was expected"),
                     moved ? QStringLiteral("they were set aside as %1").arg(aside)
                           : QStringLiteral("they will be replaced"));
    } catch (const ReadError& error) {
        _isReadable = false;
        _problem = error.sentence();
    }
}

QJsonValue UserDefaults::value(const QString& key) const {
    const auto found = _stored.constFind(key);
    return found != _stored.constEnd() ? *found : _registered.value(key);
}

QStringList UserDefaults::keys() const {
    QStringList keys = _stored.keys() + _registered.keys();
    keys.sort();
    keys.removeDuplicates();
    return keys;
}

void UserDefaults::store(const QString& key, const QJsonValue& value) {
    storeAll({{key, value}});
}

void UserDefaults::storeAll(const QJsonObject& values) {
    takeOver();
    const QJsonObject before = _stored;
    for (auto value = values.begin(); value != values.end(); ++value) _stored.insert(value.key(), *value);
    if (_stored == before) return;
    ++_version;
    write();
}

void UserDefaults::remove(const QString& key) {
    takeOver();
    if (!_stored.contains(key)) return;
    _stored.remove(key);
    ++_version;
    write();
}

void UserDefaults::takeOver() {
    // What could not be written lives in memory only.
    if (_folder.isEmpty() || !_isReadable || !_problem.isEmpty()) return;
    const QString file = settingsFile(_folder);
    if (!QFileInfo::exists(file)) return;
    try {
        const QJsonDocument document = QJsonDocument::fromJson(readFile(file));
        if (!document.isObject() || document.object() == _stored) return;
        _stored = document.object();
        ++_version;
    } catch (const ReadError&) {
        // What is in memory is then the best that there is.
    }
}

void UserDefaults::write() {
    if (_folder.isEmpty() || !_isReadable) return;
    const bool wasFine = _problem.isEmpty();
    _problem.clear();
    QDir().mkpath(_folder);
    try {
        saveFile(settingsFile(_folder), QJsonDocument(_stored).toJson());
    } catch (const SaveError& error) {
        _problem = error.sentence();
        if (wasFine && onProblem) onProblem(_problem);
    }
}

bool UserDefaults::boolean(const QString& key) const {
    const QJsonValue found = value(key);
    if (found.isString()) {
        const QString word = found.toString().trimmed().toLower();
        return word == QLatin1String("true") || word == QLatin1String("yes") || leadingInteger(word) != 0;
    }
    return found.isBool() ? found.toBool() : found.toDouble() != 0;
}

int UserDefaults::integer(const QString& key) const {
    const QJsonValue found = value(key);
    if (found.isString()) return leadingInteger(found.toString());
    if (found.isBool()) return found.toBool();
    return int(std::clamp<double>(std::trunc(found.toDouble()), INT_MIN, INT_MAX));
}

double UserDefaults::number(const QString& key) const {
    const QJsonValue found = value(key);
    if (found.isString()) return leadingNumber(found.toString());
    return found.isBool() ? found.toBool() : found.toDouble();
}

QString UserDefaults::text(const QString& key) const {
    const QJsonValue found = value(key);
    if (found.isString()) return found.toString();
    if (found.isBool()) return found.toBool() ? QStringLiteral("1") : QStringLiteral("0");
    return found.isDouble() ? shortest(found.toDouble()) : QString();
}

QStringList UserDefaults::list(const QString& key) const {
    QStringList texts;
    const QJsonArray array = value(key).toArray();
    for (const QJsonValue& entry : array) texts << entry.toString();
    return texts;
}

}  // namespace sargan
