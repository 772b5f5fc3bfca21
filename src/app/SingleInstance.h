#pragma once

#include <QObject>
#include <QStringList>

class QLocalServer;
class QLocalSocket;

namespace sargan {

/// One process per person and settings folder: a second start hands its files to the first and ends.
class SingleInstance : public QObject {
    Q_OBJECT

public:
    explicit SingleInstance(QString name);
    ~SingleInstance() override;

    /// The name under which the program with this settings folder is found.
    static QString nameFor(const QString& settingsFolder);

    /// Gives the files to a program that is running already. False when there is none that answers.
    bool handOver(const QStringList& files) const;
    /// From now on other starts hand over to this one. A socket that a dead program left is cleared away.
    bool listen();

Q_SIGNALS:
    void filesReceived(const QStringList& files);

private:
    void accept();
    void read(QLocalSocket* socket);

    QString _name;
    QLocalServer* _server = nullptr;
};

}  // namespace sargan
