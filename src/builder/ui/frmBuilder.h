// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "kit/TabStops.h"

#include <QWidget>

#include <functional>
#include <string>

class QLineEdit;
class QPlainTextEdit;
class QPushButton;

namespace orvane {

// Shows and edits the builder script of the document and starts the build.
//
// Which script it is gets settled late: when the window is first shown for a document, or a build is started.
// Then it is the script that the document names, or one that stands beside the document, and only where there
// is neither a starter script is made. No script on disk is overwritten before it has been read here, unless
// the user says so.
class frmBuilder : public TabStops<QWidget> {
    Q_OBJECT

  public:
    // The path that the document keeps, ANSI; it follows txtFileName from now on, and must outlive the
    // window.
    explicit frmBuilder(std::string& buildFile, QWidget* parent = nullptr);

    // Another document has taken the place of the one before; empty for one without a file. What the document
    // names as its script is read again when it is needed.
    void StartDocument(const QString& documentPath);

    // The document has been saved under a new name.
    void RenameDocument(const QString& documentPath);

    // Generates, saves the script, and hands it to the build tool if the program has no errors.
    void GoGoGo();

    // Makes the starter script of the document and saves it where the document has a file.
    void MakeInitialScript();

    // Appends a line to the script.
    void AddSource(const QString& text);

    // Runs the generator and returns whether it wrote its program.
    using Generator = std::function<bool()>;
    void SetGenerator(Generator generate) { generate_ = std::move(generate); }

  protected:
    bool event(QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void BuildControls();
    void LayOut();
    void Settle();
    void Load(const QString& path);
    bool Save();
    bool ChooseNameToSave();
    bool MayReplace(const QString& path);
    void SelectFile();
    void CheckForChangeOnDisk();
    void ShowScript(const QString& script);
    void SetFileName(const QString& path);
    void StoreFileName(const QString& path);
    QString ScriptText() const;
    QString DefaultName() const;
    void Warn(const QString& text);

    QPlainTextEdit* txtBuildScript = nullptr;
    QPlainTextEdit* txtPrompt = nullptr;
    QLineEdit* txtFileName = nullptr;
    QPushButton* cmdRun = nullptr;
    QPushButton* cmdSave = nullptr;
    QPushButton* cmdSelectFile = nullptr;

    std::string& buildFile_;
    QString documentPath_;
    QString knownFile_;       // the file that LastSavedScript was read from or written to
    QString lastSavedScript_; // as read back from disk
    bool settled_ = false;
    Generator generate_;
};

} // namespace orvane
