// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "kit/Background.h"
#include "print/ui/PrintMemory.h"
#include "print/ui/Printout.h"

#include <QDialog>
#include <QTimer>

class QCheckBox;
class QComboBox;
class QLabel;
class QLayout;
class QLineEdit;
class QProgressBar;
class QPushButton;
class QSpinBox;

namespace orvane {

class PagePane;

// Asks what of a machine is printed, on which paper and with which names on the cover, shows every page, and
// prints it or makes a file of it.
class frmPrint : public QDialog {
    Q_OBJECT

  public:
    // The document outlives the dialog and stays as it is meanwhile. The facts are those that nobody has to
    // be asked for.
    frmPrint(const FsmDocument& document, const print::CoverFacts& facts, QWidget* parent);

    // The names to begin with; no page is shown before.
    void ShowNames(const PrintNames& names);
    PrintNames Names() const;
    QPageLayout Paper() const;

  Q_SIGNALS:
    void PrintWanted(const std::shared_ptr<const orvane::Printout>& printout);
    // Asks where the file is to go; empty for nowhere.
    void FileAsked(QString& path);
    void PdfMade(const QString& path, const QByteArray& bytes);

  private:
    void BuildNames();
    void BuildPaper();
    void BuildParts();
    void BuildPreview();
    void BuildButtons();
    void LayOut();
    QLineEdit* AddName(const char* name, const QString& prompt);
    QCheckBox* AddPart(const char* name, const QString& caption);
    print::Parts ChosenParts() const;
    print::CoverFacts FactsWithNames() const;
    void ShowSoon();
    std::shared_ptr<const Printout> Laid();
    void ShowPages();
    void ShowPage();
    void Print();
    void MakePdf();
    void ShowBusy(bool isBusy);

    const FsmDocument& document_;
    const print::CoverFacts facts_;
    std::shared_ptr<const MachinePicture> picture_; // for the paper of pictureRoom_
    QSize pictureRoom_;
    std::shared_ptr<const Printout> printout_; // none when something was changed since
    QTimer tmrPreview;                         // runs while what is shown is not yet what was chosen
    QLineEdit* txtRevision;
    QLineEdit* txtPrepared;
    QLineEdit* txtChecked;
    QLineEdit* txtApproved;
    QComboBox* cboPaper;
    QComboBox* cboOrientation;
    QCheckBox* chkCover;
    QCheckBox* chkDiagram;
    QCheckBox* chkTable;
    QCheckBox* chkListing;
    QCheckBox* chkReport;
    PagePane* picPage;
    QSpinBox* spnPage;
    QLabel* lblPages;
    QProgressBar* prgPdf;
    QPushButton* cmdPrint;
    QPushButton* cmdPdf;
    QPushButton* cmdClose;
    Background<QByteArray> worker_{*this};
};

} // namespace orvane
