// SPDX-License-Identifier: GPL-3.0-or-later
#include "welcome/ui/UpdateCheck.h"

#include <QCoreApplication>
#include <QSignalSpy>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryFile>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <memory>

namespace orvane {
namespace {

const QByteArray kOffer = "<html><p>Download Orvane for Zorlan v9.0.999</p></html>";

QByteArray Answer(const QByteArray& body) {
    return "HTTP/1.1 200 OK\r\nContent-Type: text/html\r\nConnection: close\r\n\r\n" + body;
}

// A real HTTP server on the loopback address; what it does with each connection is the test's.
class UpdateCheckTest : public testing::Test {
  protected:
    UpdateCheckTest() {
        EXPECT_TRUE(server_.listen(QHostAddress::LocalHost));
        QObject::connect(&server_, &QTcpServer::newConnection, &server_, [this] {
            QTcpSocket* socket = server_.nextPendingConnection();
            QObject::connect(socket, &QTcpSocket::readyRead, socket, [this, socket] {
                requests_ += socket->readAll();
                if (requests_.endsWith("\r\n\r\n"))
                    serve_(socket);
            });
        });
        QObject::connect(check_.get(), &UpdateCheck::NewerVersionFound, &server_,
                         [this](const std::string& version) { found_.push_back(version); });
    }

    void ServeWhole(const QByteArray& bytes) {
        serve_ = [bytes](QTcpSocket* socket) {
            socket->write(bytes);
            socket->disconnectFromHost();
        };
    }

    QUrl Page() const {
        return QUrl(QStringLiteral("http://127.0.0.1:%1/download").arg(server_.serverPort()));
    }

    void StartAndWait() {
        check_->Start(Page());
        EXPECT_TRUE(check_->IsAsking());
        EXPECT_TRUE(QTest::qWaitFor([this] { return !check_->IsAsking(); }, 10'000));
    }

    QTcpServer server_;
    std::function<void(QTcpSocket*)> serve_ = [](QTcpSocket*) {};
    QByteArray requests_;
    std::vector<std::string> found_;
    std::unique_ptr<UpdateCheck> check_ = std::make_unique<UpdateCheck>();
};

TEST_F(UpdateCheckTest, ANewerVersionIsTold) {
    ServeWhole(Answer(kOffer));
    StartAndWait();
    EXPECT_EQ(found_, std::vector<std::string>{"V9.0.999"});
    EXPECT_TRUE(requests_.startsWith("GET /download HTTP/1.1\r\n"));
}

TEST_F(UpdateCheckTest, AnAnswerInPiecesIsPutTogether) {
    serve_ = [](QTcpSocket* socket) {
        socket->write(Answer(kOffer.left(20)));
        socket->flush();
        QTimer::singleShot(50, socket, [socket] {
            socket->write(kOffer.mid(20, 9));
            socket->flush();
        });
        QTimer::singleShot(100, socket, [socket] {
            socket->write(kOffer.mid(29));
            socket->disconnectFromHost();
        });
    };
    StartAndWait();
    EXPECT_EQ(found_.size(), 1u);
}

TEST_F(UpdateCheckTest, APhraseAcrossTwoChunksIsFound) {
    ServeWhole(Answer(QByteArray(1024 - 12, ' ') + kOffer));
    StartAndWait();
    EXPECT_EQ(found_.size(), 1u);
}

TEST_F(UpdateCheckTest, GarbageIsSilent) {
    ServeWhole(Answer(QByteArray("\x00\xFF\xA4<", 4).repeated(5000)));
    StartAndWait();
    EXPECT_TRUE(found_.empty());
}

TEST_F(UpdateCheckTest, SomethingThatIsNotHttpIsSilent) {
    ServeWhole("220 hello\r\n" + kOffer);
    StartAndWait();
    EXPECT_TRUE(found_.empty());
}

TEST_F(UpdateCheckTest, AnErrorPageIsSilent) {
    ServeWhole("HTTP/1.1 404 Not Found\r\nConnection: close\r\n\r\n" + kOffer);
    StartAndWait();
    EXPECT_TRUE(found_.empty());
}

TEST_F(UpdateCheckTest, NothingAndHangingUpIsSilent) {
    serve_ = [](QTcpSocket* socket) { socket->abort(); };
    StartAndWait();
    EXPECT_TRUE(found_.empty());
}

TEST_F(UpdateCheckTest, HangingUpInTheMiddleIsSilent) {
    ServeWhole("HTTP/1.1 200 OK\r\nContent-Length: 4000\r\n\r\n" + kOffer);
    StartAndWait();
    EXPECT_TRUE(found_.empty());
}

TEST_F(UpdateCheckTest, ARedirectIsFollowed) {
    serve_ = [this](QTcpSocket* socket) {
        const bool first = requests_.startsWith("GET /download");
        const QByteArray target = Page().toEncoded().replace("/download", "/newest");
        socket->write(first ? "HTTP/1.1 302 Found\r\nLocation: " + target +
                                  "\r\nContent-Length: 0\r\nConnection: close\r\n\r\n"
                            : Answer(kOffer));
        requests_.clear();
        socket->disconnectFromHost();
    };
    StartAndWait();
    EXPECT_EQ(found_.size(), 1u);
}

TEST_F(UpdateCheckTest, ARedirectToAnotherSchemeIsNotFollowed) {
    QTemporaryFile page; // what would be told if it were read
    ASSERT_TRUE(page.open() && page.write(kOffer) == kOffer.size() && page.flush());
    for (const QByteArray& target : {QUrl::fromLocalFile(page.fileName()).toEncoded(),
                                     QByteArray("data:text/html," + kOffer.toPercentEncoding())}) {
        requests_.clear();
        ServeWhole("HTTP/1.1 302 Found\r\nLocation: " + target + "\r\nContent-Length: 0\r\n\r\n");
        StartAndWait();
        EXPECT_TRUE(found_.empty()) << target.constData();
    }
}

TEST_F(UpdateCheckTest, AHeadWithoutAnEndIsGivenUp) {
    serve_ = [](QTcpSocket* socket) {
        socket->write("HTTP/1.1 200 OK\r\n");
        auto* drip = new QTimer(socket);
        QObject::connect(drip, &QTimer::timeout, socket,
                         [socket] { socket->write("X-More: of the same\r\n"); });
        drip->start(10);
        QObject::connect(socket, &QTcpSocket::disconnected, socket,
                         [socket] { socket->setObjectName(QStringLiteral("gone")); });
    };
    check_->SetLongest(300);
    check_->Start(Page());
    EXPECT_TRUE(QTest::qWaitFor(
        [this] { return server_.findChild<QTcpSocket*>(QStringLiteral("gone")) != nullptr; }, 5000));
    EXPECT_TRUE(found_.empty());
}

TEST_F(UpdateCheckTest, AnEndlessChainOfRedirectsEnds) {
    int served = 0;
    serve_ = [this, &served](QTcpSocket* socket) {
        ++served;
        requests_.clear();
        socket->write("HTTP/1.1 302 Found\r\nLocation: " + Page().toEncoded() +
                      "\r\nContent-Length: 0\r\nConnection: close\r\n\r\n");
        socket->disconnectFromHost();
    };
    StartAndWait();
    EXPECT_TRUE(found_.empty());
    EXPECT_LE(served, 60);
}

TEST_F(UpdateCheckTest, OnlyTheFirstMebibyteOfAnAnswerIsKept) {
    ServeWhole(Answer(QByteArray(10 << 20, ' ') + kOffer));
    StartAndWait();
    EXPECT_TRUE(found_.empty());
}

TEST_F(UpdateCheckTest, AnOfferAtTheTopOfAHugeAnswerIsTold) {
    ServeWhole(Answer(kOffer + QByteArray(10 << 20, ' ')));
    StartAndWait();
    EXPECT_EQ(found_.size(), 1u);
}

TEST_F(UpdateCheckTest, AServerThatNeverAnswersIsGivenUp) {
    bool hungUp = false;
    serve_ = [&hungUp](QTcpSocket* socket) {
        QObject::connect(socket, &QTcpSocket::disconnected, socket, [&hungUp] { hungUp = true; });
    };
    check_->SetTimeout(200);
    check_->Start(Page());
    EXPECT_TRUE(QTest::qWaitFor([&hungUp] { return hungUp; }, 5000));
    EXPECT_TRUE(found_.empty());
}

TEST_F(UpdateCheckTest, ClosingDuringTheTransferIsSafe) {
    serve_ = [this](QTcpSocket* socket) {
        socket->write(Answer(kOffer.left(10)));
        QTimer::singleShot(50, &server_, [this] { check_.reset(); });
    };
    check_->Start(Page());
    EXPECT_TRUE(QTest::qWaitFor([this] { return !check_; }, 5000));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
    EXPECT_TRUE(found_.empty());
}

TEST_F(UpdateCheckTest, NobodyIsAskedWithoutAWebAddress) {
    for (const char* address : {"", "file:///etc/hostname", "ftp://127.0.0.1/"}) {
        check_->Start(QUrl(QString::fromLatin1(address)));
        EXPECT_FALSE(check_->IsAsking()) << address;
    }
}

} // namespace
} // namespace orvane
