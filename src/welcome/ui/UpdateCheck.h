// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QNetworkAccessManager>
#include <QObject>
#include <QTimer>
#include <QUrl>

#include <string>

class QNetworkReply;

namespace orvane {

// Asks the download page, once and in the background, which version is the latest.
//
// Whatever goes wrong is silent: no network, a page that says nothing, an answer that is not http. At most
// the first 1 MiB of an answer is kept and looked at. 10 s without a byte end the request, and so do
// 20 s in all, whatever comes: a head without an end is no answer. The check may be destroyed while it
// runs.
class UpdateCheck : public QObject {
    Q_OBJECT

  public:
    static constexpr qint64 kLargestPage = 1 << 20; // bytes
    static constexpr int kTimeout = 10'000;         // milliseconds without an answer
    static constexpr int kLongest = 20'000;         // milliseconds in all

    explicit UpdateCheck(QObject* parent = nullptr);

    // Sends the request. An empty address, or one that is neither http nor https, asks nobody.
    void Start(const QUrl& page);

    // From Start until the answer has been looked at, or given up.
    bool IsAsking() const { return reply_ != nullptr; }

    void SetTimeout(int milliseconds) { network_.setTransferTimeout(milliseconds); }
    void SetLongest(int milliseconds) { timeIsUp_.setInterval(milliseconds); }

  Q_SIGNALS:
    // The page names a version with a higher revision than this program's; its text is in capitals.
    void NewerVersionFound(const std::string& latestVersion);

  private:
    void ReadChunk();
    void Evaluate();
    void End();

    QNetworkAccessManager network_;
    QTimer timeIsUp_;
    QNetworkReply* reply_ = nullptr;
    std::string page_;
    bool complete_ = false;
};

} // namespace orvane
