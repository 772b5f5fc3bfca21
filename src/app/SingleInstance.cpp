#include "app/SingleInstance.h"

#include <QCryptographicHash>
#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QLocalServer>
#include <QLocalSocket>

namespace sargan {

using namespace Qt::StringLiterals;

namespace {

constexpr int connectPatience = 500;  // ms
constexpr int answerPatience = 3000;  // ms
constexpr qint64 longestMessage = 1 << 20;
const QByteArray answer = "ok\n";

}  // namespace

SingleInstance::SingleInstance(QString name) : _name(std::move(name)) {}

SingleInstance::~SingleInstance() = default;

QString SingleInstance::nameFor(const QString& settingsFolder) {
    const QByteArray who = (QDir::homePath() + u'\n' + QDir(settingsFolder).absolutePath()).toUtf8();
    return u"sargan-"_s +
           QString::fromLatin1(QCryptographicHash::hash(who, QCryptographicHash::Sha1).toHex().first(16));
}

bool SingleInstance::handOver(const QStringList& files) const {
    QLocalSocket socket;
    socket.connectToServer(_name);
    if (!socket.waitForConnected(connectPatience)) return false;
    socket.write(QJsonDocument(QJsonArray::fromStringList(files)).toJson(QJsonDocument::Compact) + '\n');
    while (socket.bytesAvailable() < answer.size())
        if (!socket.waitForReadyRead(answerPatience)) return false;
    return socket.readAll().startsWith(answer);
}

bool SingleInstance::listen() {
    if (_server) return _server->isListening();
    _server = new QLocalServer(this);
    _server->setSocketOptions(QLocalServer::UserAccessOption);
    connect(_server, &QLocalServer::newConnection, this, &SingleInstance::accept);
    if (_server->listen(_name)) return true;
    QLocalSocket other;
    other.connectToServer(_name);
    if (other.waitForConnected(connectPatience)) return false;
    QLocalServer::removeServer(_name);
    return _server->listen(_name);
}

void SingleInstance::accept() {
    while (QLocalSocket* socket = _server->nextPendingConnection()) {
        connect(socket, &QLocalSocket::readyRead, this, [this, socket] { read(socket); });
        connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
        read(socket);
    }
}

void SingleInstance::read(QLocalSocket* socket) {
    if (!socket->canReadLine()) {
        if (socket->bytesAvailable() > longestMessage) socket->abort();
        return;
    }
    const QJsonDocument message = QJsonDocument::fromJson(socket->readLine());
    if (!message.isArray()) return socket->abort();
    QStringList files;
    const QJsonArray list = message.array();
    for (const QJsonValue& file : list)
        if (file.isString()) files << file.toString();
    socket->write(answer);
    socket->flush();
    Q_EMIT filesReceived(files);
}

}  // namespace sargan
