// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/DocumentWriter.h"
#include "files/NativeFiles.h"
#include "kit/KeepsJournal.h"
#include "kit/Settings.h"
#include "session/RecoveryFolder.h"
#include "session/UserRecoveryFolder.h"
#include "support/ui/Controls.h"
#include "support/ui/TableFixture.h"

#include <QAbstractItemModel>
#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QLabel>
#include <QPlainTextEdit>
#include <QTest>
#include <QTreeView>

namespace orvane {

inline const QString kNoDocument = QStringLiteral("/nosplash");

// The real main window, left in the middle of the work and started again.
class RecoveryFixture : public TableFixture {
  protected:
    ~RecoveryFixture() override { (void)SetKeepsJournal(true); }

    RecoveryFolder Folder() { return {files_, FolderPath().toStdString()}; }
    QString FolderPath() const { return Path(QStringLiteral("state/orvane/recovery")); }
    QStringList Journals() const { return QDir(FolderPath()).entryList({QStringLiteral("*.orj")}); }

    // A window that drew transitions of event 6 in the states from 1 on, each to itself, and was killed.
    void LoseTransitions(const QString& document, int count) {
        WriteFile(document, WriteDocument(PumpDocument()));
        Start({Path(document)});
        for (int state = 1; state <= count; ++state)
            TypeTarget(6, state, QString::number(state));
        Crash();
    }
    void LoseWork() { LoseTransitions(QStringLiteral("machine.zfsm"), 2); }

    bool IsOffered() {
        const QWidget* window = Find<QWidget>("frmRecovery");
        return window != nullptr && window->isVisible();
    }
    // Starts again and waits until what was lost is offered.
    void StartAgain(const QString& argument = kNoDocument) {
        Start({argument});
        ASSERT_TRUE(QTest::qWaitFor([this] { return IsOffered(); }));
    }
    // The same, and draws something in a document of its own.
    void StartAgainAndDraw() {
        WriteFile(QStringLiteral("other.zfsm"), WriteDocument(PumpDocument()));
        StartAgain(Path(QStringLiteral("other.zfsm")));
        TypeTarget(7, 1, QStringLiteral("2"));
    }
    QWidget& Recovery() { return *Find<QWidget>("frmRecovery"); }
    QTreeView& List(const char* name) { return Named<QTreeView>(Recovery(), name); }
    int Count(const char* list) { return List(list).model()->rowCount(); }
    std::string Shown(const char* list, int row, int column) {
        return List(list).model()->index(row, column).data().toString().toStdString();
    }
    void Choose(const char* list, int row) { List(list).setCurrentIndex(List(list).model()->index(row, 0)); }
    QPlainTextEdit& Script() {
        for (QWidget* window : QApplication::topLevelWidgets()) {
            if (window->objectName() == QStringLiteral("frmBuilder"))
                return Named<QPlainTextEdit>(*window, "txtBuildScript");
        }
        throw std::runtime_error("no builder window");
    }
    bool IsEnabled(const char* button) { return Named<QPushButton>(Recovery(), button).isEnabled(); }

  private:
    NativeFiles files_;
};

} // namespace orvane
