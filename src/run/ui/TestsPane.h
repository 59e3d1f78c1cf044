// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "run/LiveRun.h"
#include "run/RanTests.h"

#include <QWidget>

class QLabel;
class QStandardItemModel;
class QTableView;

namespace orvane {

class TestTextPane;

// What became of the tests, a row each, and their text; hidden until tests were run.
class TestsPane : public QWidget {
    Q_OBJECT

  public:
    explicit TestsPane(QWidget* parent);

    // `name` is the file of the tests, `text` what stands in it.
    void Show(run::RanTests tests, const QString& name, std::string_view text);
    // Nothing was run: why, a line each.
    void ShowRefused(const QString& name, const std::vector<std::string>& why);

  Q_SIGNALS:
    // Somebody wants to see it: the first that failed, or one that was clicked.
    void TestChosen(const orvane::run::RunToPlay& test);

  private:
    void AddRow(const QString& verdict, std::size_t line, const QString& test, const QString& why);
    void Choose(std::size_t row);
    void ChooseTest(const run::RanTest& test);
    QString Summary() const;

    run::RanTests tests_;
    QLabel* lblTests;
    QTableView* lstTests;
    TestTextPane* txtTests;
    QStandardItemModel* rows_;
};

} // namespace orvane
