// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>
#include <QTimer>

class QLabel;
class QPlainTextEdit;
class QPushButton;

namespace orvane {

// The window with the disclaimer that greets the user. It closes by itself after 201 ticks of its timer, by
// its button, or by a double click on the logo.
class frmSplash : public QDialog {
    Q_OBJECT

  public:
    explicit frmSplash(const QPixmap& logo, QWidget* parent = nullptr);

  Q_SIGNALS:
    void HomePageRequested();

  protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void BuildControls(const QPixmap& logo);
    void LayOut();
    void Tick();
    void WatchLink(const QEvent& event);

    QLabel* imgLogo = nullptr;
    QPlainTextEdit* txtBlurb = nullptr;
    QLabel* lblURL = nullptr;
    QPushButton* cmdOK = nullptr;
    QTimer* Timer1 = nullptr;
    qint16 ticks_ = 0;
    bool linkPressed_ = false;
};

} // namespace orvane
