// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

#include <optional>

namespace orvane {

// The desktop's clipboard, beside the one of the table: other programs get the texts of cells from it, as
// lines with tabs and as a table, and give theirs. What is pasted is what was copied last, wherever.
class SystemCells : public QObject {
    Q_OBJECT

  public:
    SystemCells();

    // Lines of cells with tabs between them.
    void Put(const QString& lines);
    // Something was copied in the table that is no business of other programs.
    void CopiedHere() { changed_ = false; }

    // What another program has copied since, as lines with tabs; none when it has not, or no text.
    std::optional<QString> FromOthers() const;

  private:
    QByteArray id_; // of this clipboard among those of all windows
    bool changed_ = true;
};

} // namespace orvane
