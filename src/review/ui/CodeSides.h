// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "review/ComparedVersions.h"

#include <QSplitter>

class QLabel;

namespace orvane {

class SidePane;
struct Vocabulary;

// What one change is about on both sides: the old code and the new.
class CodeSides : public QSplitter {
    Q_OBJECT

  public:
    explicit CodeSides(QWidget* parent);

    void SetVocabulary(const Vocabulary& vocabulary);
    // How the versions are called.
    void ShowNames(const QString& oldName, const QString& newName);
    void ShowSides(const review::ChangeSides& sides);

  private:
    QWidget* AddSide(QLabel* label, SidePane* pane);

    QLabel* lblOld = nullptr;
    QLabel* lblNew = nullptr;
    SidePane* txtOld = nullptr;
    SidePane* txtNew = nullptr;
};

} // namespace orvane
