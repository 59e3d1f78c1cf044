// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "kit/TabStops.h"
#include "session/Draft.h"

#include <QSet>
#include <QWidget>

class QLineEdit;
class QPlainTextEdit;
class QPushButton;

namespace orvane {

class EditedLabel;
class Session;

// Shows and edits the builder script of the document and starts the build.
//
// Which script it is gets settled late: when the window is first shown for a document, or a build is started.
// Then it is the script that the document names, or one that stands beside the document, and only where there
// is neither a starter script is made. Only a regular *.b1d file is touched, and one that a document or a
// link names outside of the document's folder only after a question, once. No script on disk is overwritten
// before it has been read here, unless the user says so.
class frmBuilder : public TabStops<QWidget>, public DraftSource {
    Q_OBJECT

  public:
    // The session outlives the window. The path of the script that its document keeps follows txtFileName.
    explicit frmBuilder(Session& session, QWidget* parent = nullptr);
    ~frmBuilder() override;

    // Another document has taken the place of the one before. What it names as its script is read again when
    // it is needed.
    void StartDocument();

    // The text that was being edited when a window of this document was lost: not saved, and of a file that
    // is asked for before it is replaced.
    void TakeRestored(const std::string& script);

    // The document has been saved, perhaps under a new name.
    void RenameDocument();

    // Asks what is to become of a text that is not saved. False when everything is to stay as it is.
    bool MayLeaveScript();

    // The text, while it is not saved.
    std::optional<Draft> CurrentDraft() const override;

    // Generates, saves the script, and hands it to the build tool if the program has no errors.
    void GoGoGo();

    // Makes the starter script of the document and saves it where the document has a file.
    void MakeInitialScript();

    // Appends a line to the script.
    void AddSource(const QString& text);

  Q_SIGNALS:
    // The button was pressed; GoGoGo does the rest.
    void BuildWanted();
    // What the script's file has lost by being saved, as a line for a status bar.
    void Noted(const QString& text);

  protected:
    bool event(QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void TakeDocumentPath();
    void BuildControls();
    void LayOut();
    void Settle();
    void SettleOnDefault();
    void FillStarterScript();
    void Load(const QString& path);
    bool Save();
    void TakeAsSaved(const QString& path);
    bool ChooseNameToSave();
    // Tells why the file is not for the builder, or asks about one elsewhere that was not asked about yet.
    bool MayUse(const QString& path);
    bool IsOnDisk(const QString& path) const;
    bool MayReplace(const QString& path);
    void SelectFile();
    void CheckForChangeOnDisk();
    void ShowScript(const QString& script);
    void SetFileName(const QString& path);
    void StoreFileName(const QString& path);
    QString ScriptText() const;
    QString DefaultName() const;
    void Warn(const QString& text);

    EditedLabel* lblEdited = nullptr;
    QPlainTextEdit* txtBuildScript = nullptr;
    QPlainTextEdit* txtPrompt = nullptr;
    QLineEdit* txtFileName = nullptr;
    QPushButton* cmdRun = nullptr;
    QPushButton* cmdSave = nullptr;
    QPushButton* cmdSelectFile = nullptr;

    Session& session_;
    QString documentPath_;    // that the script was last settled for; empty without a file
    QString knownFile_;       // the file that LastSavedScript was read from or written to
    QString lastSavedScript_; // as read back from disk
    QSet<QString> allowed_;   // scripts outside of the document's folder that the user has said yes to
    bool settled_ = false;
};

} // namespace orvane
