// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QProcess>
#include <QTimer>

#include <chrono>

namespace orvane {

// Asks git for a file as the last commit has it. Git is a program of its own and may take its time, or wait
// for a network: it is not waited for, and given up after a while. Either signal comes once for each
// question, unless another one is asked before or it is dropped.
class GitHead : public QObject {
    Q_OBJECT

  public:
    static constexpr std::chrono::milliseconds kPatience{10000};

    explicit GitHead(QObject* parent, std::chrono::milliseconds patience = kPatience);
    ~GitHead() override;

    // The full path of a file.
    void Ask(const QString& path);
    void Drop();

  Q_SIGNALS:
    void Got(const QByteArray& bytes);
    void Failed(const QString& why);

  private:
    // Why there is no content is asked afterwards, because git says it in the user's language.
    enum class Question { Content, Repository, Commit };

    void Start(Question question);
    void TakeAnswer(int status, QProcess::ExitStatus how);
    void TakeFailure();
    void LookAtSize();
    void GiveUp(const QString& why);

    QProcess process_;
    QTimer patience_;
    Question question_ = Question::Content;
    QString folder_;
    QString name_;
    bool isAsked_ = false;
};

} // namespace orvane
