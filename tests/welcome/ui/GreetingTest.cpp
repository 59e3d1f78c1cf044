// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/ui/OpenedAddresses.h"
#include "support/ui/TableFixture.h"

#include "core/ProgramVersion.h"
#include "welcome/ui/UpdateCheck.h"

#include <QApplication>
#include <QLabel>
#include <QSignalSpy>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTest>

namespace orvane {
namespace {

// The table with a download page on the loopback address.
class Greeting : public TableFixture {
  protected:
    Greeting() {
        EXPECT_TRUE(server_.listen(QHostAddress::LocalHost));
        QObject::connect(&server_, &QTcpServer::newConnection, &server_, [this] {
            QTcpSocket* socket = server_.nextPendingConnection();
            QObject::connect(socket, &QTcpSocket::readyRead, socket, [this, socket] {
                socket->write("HTTP/1.1 200 OK\r\nConnection: close\r\n\r\n" + page_);
                socket->disconnectFromHost();
                ++answered_;
            });
        });
        qputenv("ORVANE_DOWNLOAD_URL", Address().toEncoded());
        qputenv("ORVANE_HOME_URL", "https://home.invalid/orvane");
    }
    ~Greeting() override {
        qunsetenv("ORVANE_DOWNLOAD_URL");
        qunsetenv("ORVANE_HOME_URL");
    }

    QUrl Address() const {
        return QUrl(QStringLiteral("http://127.0.0.1:%1/download").arg(server_.serverPort()));
    }

    // Starts on a page that offers this version, and answers when it is told.
    void StartOnOffer(const QByteArray& version, QMessageBox::StandardButton answer) {
        page_ = "<p>Download Orvane for Zorlan " + version + "</p>";
        Answers.Press(answer);
        Start({QStringLiteral("/nosplash")});
        ASSERT_TRUE(QTest::qWaitFor([this] { return !Answers.Seen().empty(); }, 5000));
    }

    OpenedAddresses Desktop;
    QByteArray page_;
    int answered_ = 0;

  private:
    QTcpServer server_;
};

TEST_F(Greeting, ANewerVersionIsOfferedAndYesOpensTheDownloadPage) {
    StartOnOffer("v0.9.999", QMessageBox::Yes);
    const SeenDialog& offer = Answers.Seen().front();
    EXPECT_EQ(offer.Title, "Update available");
    EXPECT_EQ(offer.Icon, QMessageBox::Information);
    EXPECT_EQ(offer.Buttons, QMessageBox::Yes | QMessageBox::No);
    EXPECT_EQ(offer.Text, "There is a new version of this program available\r\nYou have version " +
                              ProgramVersion() +
                              ". The latest one is V0.9.999\r\n\r\n\r\n\r\n"
                              "Do you want to download the new version?\r\n"
                              "If you click Yes you will be taken to the download page online "
                              "where you can download the latest version\r\n\r\n");
    EXPECT_EQ(Desktop.Addresses, QList<QUrl>{Address()});
}

TEST_F(Greeting, NoOpensNothing) {
    StartOnOffer("v0.9.999", QMessageBox::No);
    EXPECT_TRUE(Desktop.Addresses.isEmpty());
}

TEST_F(Greeting, AHigherMajorWithoutAHigherRevisionIsNotOffered) {
    page_ = "<p>Download Orvane for Zorlan V9.0.000</p>";
    Start({QStringLiteral("/nosplash")});
    const UpdateCheck* check = nullptr;
    ASSERT_TRUE(
        QTest::qWaitFor([&] { return (check = Window().findChild<UpdateCheck*>()) != nullptr; }, 5000));
    const QSignalSpy found(check, &UpdateCheck::NewerVersionFound);
    EXPECT_TRUE(QTest::qWaitFor([check] { return !check->IsAsking(); }, 5000));
    EXPECT_EQ(answered_, 1);
    EXPECT_EQ(found.count(), 0);
}

TEST_F(Greeting, TheSplashLinkOpensTheHomePage) {
    Start();
    QLabel* link = nullptr;
    EXPECT_TRUE(QTest::qWaitFor(
        [&] {
            Window().repaint();
            return (link = Find<QLabel>("lblURL")) != nullptr;
        },
        5000));
    ASSERT_NE(link, nullptr);
    QTest::mouseClick(link, Qt::LeftButton);
    EXPECT_EQ(Desktop.Addresses, QList<QUrl>{QUrl(QStringLiteral("https://home.invalid/orvane"))});
}

} // namespace
} // namespace orvane
