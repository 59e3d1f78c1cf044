// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "export/Forms.h"

#include <QDialog>

class QLabel;
class QListWidget;
class QPushButton;
class QRadioButton;
class QStandardItemModel;
class QTableView;

namespace orvane {

// Asks for a machine in another form, from a file or from the clipboard, and shows it as it would come in.
class frmImport : public QDialog {
    Q_OBJECT

  public:
    // The folder is where files are looked for first.
    frmImport(const QString& folder, QWidget* parent);

    // Once the dialog was accepted.
    const FsmDocument& Imported() const { return *imported_; }
    // It takes the place of what is in the open document, as one step.
    bool IsIntoOpen() const;

  private:
    void BuildSource();
    void BuildPreview();
    void LayOut();
    void ChooseFile();
    void TakeClipboard();
    void Take(exports::ImportForm form, std::string_view bytes, const QString& source);
    void ShowPreview();
    void ShowNotes(const std::vector<ReaderMessage>& messages);
    void ShowFailure(const QString& why);

    QString folder_;
    std::optional<FsmDocument> imported_;
    QStandardItemModel* table_;
    QPushButton* cmdFile;
    QPushButton* cmdClipboard;
    QLabel* lblSource;
    QTableView* tblImport;
    QListWidget* lstNotes;
    QRadioButton* optNew;
    QRadioButton* optOpen;
    QPushButton* cmdOK;
};

} // namespace orvane
