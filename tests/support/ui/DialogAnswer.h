// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMessageBox>
#include <QObject>

#include <deque>
#include <functional>
#include <string>
#include <vector>

namespace orvane {

// A dialog that came up while answers were ready.
struct SeenDialog {
    std::string Title;
    std::string Text;
    QMessageBox::Icon Icon = QMessageBox::NoIcon;
    QMessageBox::StandardButtons Buttons;
    QStringList NameFilters; // of a file dialog
};

// Waits for modal dialogs and answers them in the order in which the answers were given. A dialog for which
// there is no answer fails the test and is closed, so that no test waits for ever; so does an answer that no
// dialog has asked for.
class DialogAnswer : public QObject {
  public:
    DialogAnswer();
    ~DialogAnswer() override;

    DialogAnswer& Press(QMessageBox::StandardButton button);
    DialogAnswer& ChooseFile(const QString& path);
    DialogAnswer& CancelFile();
    // Whatever dialog of ours comes next; the function must close it.
    DialogAnswer& Do(const std::function<void(QWidget&)>& action);

    const std::vector<SeenDialog>& Seen() const { return seen_; }

  private:
    void LookAgain();
    void LookForDialog();
    void Answer(QWidget& dialog);

    std::deque<std::function<bool(QWidget&)>> answers_; // each returns whether the dialog was of its kind
    std::vector<SeenDialog> seen_;
    QWidget* beingAnswered_ = nullptr;
};

} // namespace orvane
