// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPlainTextEdit>

#include <string>
#include <string_view>

namespace orvane {

// A plain field of several lines for document text. It leaves out, and tells, what a document cannot hold.
class DocumentTextEdit : public QPlainTextEdit {
    Q_OBJECT

  public:
    explicit DocumentTextEdit(QWidget* parent = nullptr);

    // Takes any document text. It is handed out unchanged, odd line ends included, until it is edited; what
    // is edited has CR LF.
    void SetText(std::string_view ansi);
    std::string Text() const;

  Q_SIGNALS:
    void GotFocus();
    void CharactersLeftOut(const QString& characters);

  protected:
    void changeEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void insertFromMimeData(const QMimeData* source) override;

  private:
    void SetTabWidth();
    QString KeepDocumentCharacters(const QString& text);

    std::string set_;   // as it was set
    QString shownThen_; // and what the field made of it
};

} // namespace orvane
