// SPDX-License-Identifier: GPL-3.0-or-later
// Asks the program that answers at a socket where a thing stands: place_of SOCKET NAME
// Prints "X Y WIDTH HEIGHT"; status 1 when it stands nowhere, 2 when nobody answers within ten seconds.
#include <QLocalSocket>

#include <cstdio>

int main(int argc, char* argv[]) {
    constexpr int kPatience = 10'000; // milliseconds
    if (argc != 3)
        return 2;
    QLocalSocket socket;
    socket.connectToServer(QString::fromLocal8Bit(argv[1]));
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
