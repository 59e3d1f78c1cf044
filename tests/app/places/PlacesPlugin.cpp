// SPDX-License-Identifier: GPL-3.0-or-later
// Qt loads this into a program that is started with QT_QPA_GENERIC_PLUGINS=orvaneplaces. It answers at the
// port of this machine whose number it writes into the file that ORVANE_PLACES names: a name comes in on a
// line, "X Y WIDTH HEIGHT" goes back, or an empty line (Places.h). The program itself is the one that is
// shipped and knows nothing of it. A port, because a program for Windows can answer there to this system's
// tests.
#include "app/places/Places.h"

#include <QGenericPlugin>
#include <QSaveFile>
#include <QTcpServer>
#include <QTcpSocket>

namespace orvane::test {

namespace {

QByteArray Answer(const QString& name) {
    const QRect place = PlaceOf(name);
    if (place.isEmpty())
        return "\n";
    return QStringLiteral("%1 %2 %3 %4\n")
        .arg(place.x())
        .arg(place.y())
        .arg(place.width())
        .arg(place.height())
        .toUtf8();
}

void AnswerAt(QTcpSocket& socket) {
    while (socket.canReadLine())
        socket.write(Answer(QString::fromUtf8(socket.readLine()).trimmed()));
}

// Whoever looks into the file finds the whole number or none.
bool WriteDown(quint16 port) {
    QSaveFile file(qEnvironmentVariable("ORVANE_PLACES"));
    return file.open(QIODevice::WriteOnly) && file.write(QByteArray::number(port)) > 0 && file.commit();
}

} // namespace

class PlacesPlugin : public QGenericPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "places.json")

  public:
    QObject* create(const QString&, const QString&) override {
        auto* server = new QTcpServer(this);
        QObject::connect(server, &QTcpServer::newConnection, server, [server] {
            QTcpSocket* socket = server->nextPendingConnection();
            QObject::connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
            QObject::connect(socket, &QTcpSocket::readyRead, socket, [socket] { AnswerAt(*socket); });
        });
        if (!server->listen(QHostAddress::LocalHost) || !WriteDown(server->serverPort()))
            qWarning("no answers for %s: %s", qPrintable(qEnvironmentVariable("ORVANE_PLACES")),
                     qPrintable(server->errorString()));
        return server;
    }
};

} // namespace orvane::test

#include "PlacesPlugin.moc"
