// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/FsmDocument.h"
#include "diagram/LivePicture.h"
#include "kit/Pane.h"
#include "kit/PictureFonts.h"

class QAction;
class QComboBox;
class QLabel;
class QPushButton;
class QToolButton;

namespace orvane {

class picDiagram;

// The picture of the machine, with what of it is shown above and what there is to say of it below.
class dckDiagram : public Pane {
    Q_OBJECT

  public:
    // Both outlive the pane.
    dckDiagram(const diagram::LivePicture& picture, const PictureFonts& fonts, QWidget* parent);

    picDiagram& View() { return *view_; }
    // What the user has set, without the chosen state and the window.
    diagram::PictureWish Wish() const;
    // The events to choose one of. The one that is chosen stays as long as there is one in its row.
    void ShowEvents(const FsmDocument& document);
    // The picture is another one now.
    void ShowPicture();

  Q_SIGNALS:
    void WishChanged();
    void TidyWanted();
    void TurnWanted();
    void SaveWanted();

  private:
    void MakeMenu();
    QAction* AddToggle(const char* name, const QString& caption);
    void AddItem(const char* name, const QString& caption, void (dckDiagram::*wanted)());
    QString PartText() const;

    const diagram::LivePicture& picture_;
    picDiagram* view_;
    QComboBox* cboEvent;
    QPushButton* cmdTidy;
    QToolButton* cmdPicture;
    QLabel* lblDiagram;
    QAction* hideElse_ = nullptr;
    QAction* stubs_ = nullptr;
    QAction* all_ = nullptr;
};

} // namespace orvane
