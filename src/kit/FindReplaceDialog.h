// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>

class QCheckBox;
class QGridLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QsciScintilla;

namespace orvane {

class DocumentLineEdit;

// Find and replace for one editor; stays open beside it while text is edited.
class FindReplaceDialog : public QDialog {
    Q_OBJECT

  public:
    explicit FindReplaceDialog(QsciScintilla* editor);

    // Shows the dialog, ready to look for what is selected in the editor.
    void Present();

  private:
    void BuildFields(QGridLayout& grid);
    void BuildOptions(QGridLayout& grid);
    void BuildButtons(QGridLayout& grid);
    QCheckBox* AddOption(const QString& name, const QString& caption);

    bool Find(bool forward);
    void Replace();
    void ReplaceAll();
    bool SelectionIsFound() const;
    bool FindInTarget(long from, long to) const;
    void ReplaceTarget() const;
    void SayNotFound();
    void Say(const QString& text);

    QsciScintilla* editor_;
    QLineEdit* txtFind;
    DocumentLineEdit* txtReplace;
    QCheckBox* chkWholeWord;
    QCheckBox* chkMatchCase;
    QCheckBox* chkRegExp;
    QCheckBox* chkWrap;
    QPushButton* cmdFindNext;
    QPushButton* cmdFindPrevious;
    QPushButton* cmdReplace;
    QPushButton* cmdReplaceAll;
    QLabel* lblResult;
};

} // namespace orvane
