// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStatusBar>

class QLabel;

namespace orvane {

// The status bar below code panes: Caps Lock, insert or overtype, and where the caret is.
class EditorStatusBar : public QStatusBar {
    Q_OBJECT

  public:
    explicit EditorStatusBar(QWidget* parent);

    void ShowOvertype(bool overtype);
    void ShowCaret(const QString& readOut);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

  private:
    QLabel* AddPanel(const QString& name, const QString& widestText);

    QLabel* Panel1; // "CAPS", dimmed while letters come out small
    QLabel* Panel2;
    QLabel* Panel3;
};

} // namespace orvane
