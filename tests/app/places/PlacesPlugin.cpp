// SPDX-License-Identifier: GPL-3.0-or-later
// Qt loads this into a program that is started with QT_QPA_GENERIC_PLUGINS=orvaneplaces. It answers at the
// local socket that ORVANE_PLACES names: a name comes in on a line, "X Y WIDTH HEIGHT" goes back, or an empty
// line (Places.h). The program itself is the one that is shipped and knows nothing of it.
#include "app/places/Places.h"

#include <QGenericPlugin>
#include <QLocalServer>
#include <QLocalSocket>

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

void AnswerAt(QLocalSocket& socket) {
    while (socket.canReadLine())
        socket.write(Answer(QString::fromUtf8(socket.readLine()).trimmed()));
}

} // namespace

class PlacesPlugin : public QGenericPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "places.json")

  public:
    QObject* create(const QString&, const QString&) override {
        auto* server = new QLocalServer(this);
        QObject::connect(server, &QLocalServer::newConnection, server, [server] {
            QLocalSocket* socket = server->nextPendingConnection();
            QObject::connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
            QObject::connect(socket, &QLocalSocket::readyRead, socket, [socket] { AnswerAt(*socket); });
        });
        if (!server->listen(qEnvironmentVariable("ORVANE_PLACES")))
            qWarning("no answers at %s: %s", qPrintable(qEnvironmentVariable("ORVANE_PLACES")),
                     qPrintable(server->errorString()));
        return server;
    }
};

} // namespace orvane::test

#include "PlacesPlugin.moc"
