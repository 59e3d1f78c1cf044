// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLineEdit>

#include <string>
#include <string_view>

namespace orvane {

// A one-line field for document text. It leaves out, and tells, what a document cannot hold; pasted lines
// become one.
class DocumentLineEdit : public QLineEdit {
    Q_OBJECT

  public:
    enum class Typing { AsIs, Capitals };

    explicit DocumentLineEdit(QWidget* parent = nullptr, Typing typing = Typing::AsIs);

    // Takes any document text and hands it out unchanged.
    void SetText(std::string_view ansi);
    std::string Text() const;

  Q_SIGNALS:
    void CharactersLeftOut(const QString& characters);

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    class Filter;

    Typing typing_;
    QString brought_; // the text as it was set: its characters are let through
};

} // namespace orvane
