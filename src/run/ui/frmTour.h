// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "kit/Background.h"
#include "run/Tour.h"

#include <QDialog>
#include <QTimer>

#include <atomic>

class QCheckBox;
class QLabel;
class QLineEdit;
class QProgressBar;
class QPushButton;
class QVBoxLayout;

namespace orvane {

class Session;

// Makes tests that go everywhere in the machine. They are made beside the window, which stays usable: an edit
// begins them anew, so that what is saved is always of the table as it stands.
class frmTour : public QDialog {
    Q_OBJECT

  public:
    // The session outlives the window.
    frmTour(const Session& session, QWidget* parent);

    // The table, or the whole document, is another one.
    void TakeEdit();

    void reject() override;

  Q_SIGNALS:
    // What the status bar tells.
    void Saved(const QString& text);

  private:
    void MakeOptions(QVBoxLayout& column);
    void MakeButtons(QVBoxLayout& column);
    void Begin();
    void Stop(const QString& why);
    void ShowWork(bool on);
    void ShowProgress();
    void Offer(const run::Tour& tour);

    const Session& session_;
    run::TourOptions options_;
    unsigned edits_ = 0;
    std::atomic<int> percent_ = 0;
    Background<run::Tour> work_{*this}; // goes before what it works with
    QTimer tmrTour;
    QCheckBox* chkEmptyCells;
    QCheckBox* chkTogether;
    QLineEdit* txtMostSteps;
    QLabel* lblTour;
    QProgressBar* barTour;
    QPushButton* cmdOK;
    QPushButton* cmdCancel;
};

} // namespace orvane
