#pragma once

#include <QJsonObject>
#include <QJsonValue>
#include <QString>
#include <QStringList>
#include <functional>

namespace sargan {

/// The per-user settings: key -> JSON value, in two layers. A registered value applies while the user has
/// not stored one. Stored values live in one file of the settings folder, written whole through the safe
/// file module at every change; without a folder (tests) they live in memory only.
class UserDefaults {
public:
    UserDefaults() = default;
    /// Reads the folder's settings file. A damaged file is set aside beside it and `problem` says so; the
    /// program then starts with the registered values. A file that cannot be read at all is never replaced:
    /// what is stored then lives in memory only.
    explicit UserDefaults(const QString& folder);

    const QString& folder() const { return _folder; }
    /// What went wrong when the settings were read or last written, as a sentence; empty when nothing did.
    const QString& problem() const { return _problem; }
    /// Called when the settings could not be written, the first time in a row.
    std::function<void(const QString&)> onProblem;

    /// Stored, else registered, else undefined.
    QJsonValue value(const QString& key) const;
    QJsonValue stored(const QString& key) const { return _stored.value(key); }
    QJsonValue registered(const QString& key) const { return _registered.value(key); }
    bool contains(const QString& key) const { return !value(key).isUndefined(); }
    QStringList keys() const;  ///< of both layers, sorted
    /// Another number after every change, for those who keep what they have read; never 0.
    quint64 version() const { return _version; }

    void registerDefault(const QString& key, const QJsonValue& value) {
        _registered.insert(key, value);
        ++_version;
    }
    void store(const QString& key, const QJsonValue& value);
    /// Many at once: all of them are in the file, or none.
    void storeAll(const QJsonObject& values);
    void remove(const QString& key);

    /// Loose readings, as a settings store gives them: booleans from numbers and words, numbers from texts
    /// (leading number, else 0), texts from numbers; whole numbers truncated towards zero, within int32.
    bool boolean(const QString& key) const;
    int integer(const QString& key) const;
    double number(const QString& key) const;
    QString text(const QString& key) const;
    QStringList list(const QString& key) const;

private:
    /// Another program of this person may have stored something since: its values are kept.
    void takeOver();
    void write();

    QString _folder;
    bool _isReadable = true;
    QString _problem;
    QJsonObject _stored;
    QJsonObject _registered;
    quint64 _version = 1;
};

}  // namespace sargan
