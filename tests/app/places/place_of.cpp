// SPDX-License-Identifier: GPL-3.0-or-later
// Asks the program that answers at the port in a file where a thing stands: place_of FILE NAME
// Prints "X Y WIDTH HEIGHT"; status 1 when it stands nowhere, 2 when nobody answers within ten seconds.
#include <QFile>
#include <QHostAddress>
#include <QTcpSocket>

#include <cstdio>

int main(int argc, char* argv[]) {
    constexpr int kPatience = 10'000; // milliseconds
    if (argc != 3)
        return 2;
    QFile file(QString::fromLocal8Bit(argv[1]));
    if (!file.open(QIODevice::ReadOnly))
        return 2;
    QTcpSocket socket;
    socket.connectToHost(QHostAddress::LocalHost, file.readAll().toUShort());
    if (!socket.waitForConnected(kPatience))
        return 2;
    socket.write(QByteArray(argv[2]) + '\n');
    while (!socket.canReadLine()) {
        if (!socket.waitForReadyRead(kPatience))
            return 2;
    }
    const QByteArray place = socket.readLine();
    std::fputs(place.constData(), stdout);
    return place == "\n" ? 1 : 0;
}
