// SPDX-License-Identifier: GPL-3.0-or-later
// The pane in which a machine is run, in the real main window.
#pragma once

#include "kit/AnsiString.h"
#include "support/ui/Controls.h"
#include "support/ui/TableFixture.h"
#include "table/ui/FsmGridModel.h"

#include <QDockWidget>
#include <QLabel>
#include <QTableView>

namespace orvane {

class RunPaneFixture : public TableFixture {
  protected:
    void StartRunning(const FsmDocument& document) {
        StartOn(document);
        Trigger("mnuViewRun");
    }

    QDockWidget& Pane() { return *Find<QDockWidget>("dckRun"); }
    QTableView& List(const char* name) { return Named<QTableView>(Window(), name); }
    std::string Label(const char* name) { return Named<QLabel>(Window(), name).text().toStdString(); }
    std::string Where() { return Label("lblWhere"); }
    std::string Notice() { return Label("lblNotice"); }
    void PressButton(const char* name) { Press(Window(), name); }
    void PressKey(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(&List("lstInputs"), key, modifiers);
    }

    // The rows of a list, its columns parted by "|".
    std::vector<std::string> Rows(const char* name) {
        std::vector<std::string> rows;
        const QAbstractItemModel& model = *List(name).model();
        for (int row = 0; row < model.rowCount(); ++row) {
            QStringList texts;
            for (int column = 0; column < model.columnCount(); ++column)
                texts += model.index(row, column).data().toString();
            rows.push_back(texts.join(QLatin1Char('|')).toStdString());
        }
        return rows;
    }

    void ClickInput(const QString& name, Qt::KeyboardModifiers modifiers = {}) {
        QTableView& list = List("lstInputs");
        for (int row = 0; row < list.model()->rowCount(); ++row) {
            const QModelIndex index = list.model()->index(row, 0);
            if (index.data().toString() != name)
                continue;
            list.scrollTo(index);
            QTest::mouseClick(list.viewport(), Qt::LeftButton, modifiers, list.visualRect(index).center());
            return;
        }
        ADD_FAILURE() << "no input " << name.toStdString();
    }

    int Marks(int row, int column) { return Grid()->model()->index(row, column).data(kRunMarkRole).toInt(); }
    std::string Note(int row, int column) {
        return Grid()->model()->index(row, column).data(kRunNoteRole).toString().toStdString();
    }
};

// The pump of the table's tests, whose Run stops by itself after 100 units.
inline FsmDocument TimedPump() {
    FsmDocument document = PumpDocument();
    document.State(2).TimingMode = 1;
    document.State(2).TimeConst = "100";
    document.State(2).Targets[kTimeoutRow] = 1;
    document.State(3).Name = "Wait"; // which nothing leads to yet
    document.State(3).Targets[7] = 1;
    return document;
}

} // namespace orvane
