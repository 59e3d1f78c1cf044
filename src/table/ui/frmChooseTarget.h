// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Cell.h"

#include <QFrame>

class QListWidget;

namespace orvane {

class DocumentLineEdit;
class FsmDocument;
class FsmGridView;

// The list over a cell from which its target is chosen by a part of the name or by number. It closes when it
// loses the focus.
class frmChooseTarget : public QFrame {
    Q_OBJECT

  public:
    // Lies over the view. Both outlive this.
    frmChooseTarget(const FsmDocument& document, FsmGridView& view);

    // Opens over a cell that can be seen, with this text typed already.
    void Begin(Cell cell, const QString& text);
    void Abandon();

  Q_SIGNALS:
    void Chosen(orvane::Cell cell, orvane::StateNumber target);
    void OpenChanged(bool open);

  protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void Fill();
    int WidthOfNames() const;
    void Place();
    void Choose();
    bool Take(int key);

    const FsmDocument& document_;
    FsmGridView& view_;
    DocumentLineEdit* txtChooseTarget;
    QListWidget* lstTargets;
    Cell cell_;
};

} // namespace orvane
