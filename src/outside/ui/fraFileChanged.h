// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFrame>

class QLabel;
class QPushButton;

namespace orvane {

// A strip above the table that tells what happened to the document's file. It never takes the focus by
// itself: whoever is typing goes on.
class fraFileChanged : public QFrame {
    Q_OBJECT

  public:
    explicit fraFileChanged(QWidget* parent = nullptr);

    enum class Offer { Reload, Nothing };
    // The button on the right ends the notice, whatever is offered beside it.
    void Present(const QString& text, Offer offer);

  Q_SIGNALS:
    void ReloadWanted();
    void CompareWanted();
    void KeepWanted();

  private:
    QPushButton* AddButton(const QString& name, const QString& caption);

    QLabel* lblFileChanged = nullptr;
    QPushButton* cmdReload = nullptr;
    QPushButton* cmdCompareFile = nullptr;
    QPushButton* cmdKeep = nullptr;
};

} // namespace orvane
