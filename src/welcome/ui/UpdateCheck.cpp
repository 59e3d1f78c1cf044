// SPDX-License-Identifier: GPL-3.0-or-later
#include "welcome/ui/UpdateCheck.h"

#include "core/Version.h"
#include "welcome/UpdatePage.h"

#include <QNetworkReply>
#include <QNetworkRequest>

namespace orvane {

namespace {

constexpr qint64 kChunk = 1024; // bytes read before the windows get their turn again

bool IsWebAddress(const QUrl& url) {
    return url.scheme() == QStringLiteral("http") || url.scheme() == QStringLiteral("https");
}

} // namespace

UpdateCheck::UpdateCheck(QObject* parent) : QObject(parent) {
    network_.setTransferTimeout(kTimeout);
    timeIsUp_.setSingleShot(true);
    timeIsUp_.setInterval(kLongest);
    connect(&timeIsUp_, &QTimer::timeout, this, &UpdateCheck::End);
}

void UpdateCheck::Start(const QUrl& page) {
    if (reply_ || !IsWebAddress(page))
        return;
    QNetworkRequest request(page);
    // Neither from https to http nor out of the web, which the library refuses with every policy.
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::NoLessSafeRedirectPolicy);
    reply_ = network_.get(request);
    timeIsUp_.start();
    connect(reply_, &QNetworkReply::readyRead, this, &UpdateCheck::ReadChunk, Qt::QueuedConnection);
    connect(reply_, &QNetworkReply::finished, this, [this] {
        complete_ = true;
        ReadChunk();
    });
}

void UpdateCheck::ReadChunk() {
    if (!reply_)
        return;
    const qint64 room = kLargestPage - std::ssize(page_);
    const QByteArray chunk = reply_->isReadable() ? reply_->read(qMin(kChunk, room)) : QByteArray();
    page_.append(chunk.constData(), chunk.size());
    if (!chunk.isEmpty() && chunk.size() < room)
        QMetaObject::invokeMethod(this, &UpdateCheck::ReadChunk, Qt::QueuedConnection);
    else if (complete_ || chunk.size() == room)
        Evaluate();
}

void UpdateCheck::Evaluate() {
    const bool usable = !complete_ || reply_->error() == QNetworkReply::NoError;
    End();
    const std::optional<std::string> latest = usable ? LatestVersion(page_) : std::nullopt;
    if (latest && IsNewerRevision(*latest, kVersionRevision))
        Q_EMIT NewerVersionFound(*latest);
}

void UpdateCheck::End() {
    timeIsUp_.stop();
    QNetworkReply* reply = std::exchange(reply_, nullptr);
    reply->disconnect(this);
    reply->abort();
    reply->deleteLater();
}

} // namespace orvane
