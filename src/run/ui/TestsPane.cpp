// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/ui/TestsPane.h"

#include "run/ui/InputsView.h"
#include "run/ui/TestTextPane.h"

#include <QLabel>
#include <QSplitter>
#include <QStandardItemModel>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>

namespace orvane {

namespace {

QString VerdictText(run::Verdict verdict) {
    switch (verdict) {
    case run::Verdict::Passed:
        return TestsPane::tr("passed");
    case run::Verdict::Failed:
        return TestsPane::tr("FAILED");
    case run::Verdict::Error:
        break;
    }
    return TestsPane::tr("error");
}

bool HasFailed(const run::RanTest& test) { return test.Result.Is != run::Verdict::Passed; }

} // namespace

TestsPane::TestsPane(QWidget* parent)
    : QWidget(parent),
      lblTests(new QLabel(this)),
      lstTests(new QTableView(this)),
      txtTests(new TestTextPane(this)),
      rows_(new QStandardItemModel(0, 4, this)) {
    lblTests->setObjectName(QStringLiteral("lblTests"));
    lblTests->setWordWrap(true);
    lblTests->setTextFormat(Qt::PlainText);
    rows_->setHorizontalHeaderLabels({tr("Verdict"), tr("Line"), tr("Test"), tr("Why")});
    lstTests->setModel(rows_);
    PrepareRunList(*lstTests, "lstTests");
    lstTests->setAccessibleName(tr("Tests"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(lblTests);
    auto* splitter = new QSplitter(Qt::Vertical, this);
    splitter->addWidget(lstTests);
    splitter->addWidget(txtTests);
    layout->addWidget(splitter);
    connect(lstTests, &QTableView::clicked, this,
            [this](const QModelIndex& index) { Choose(std::size_t(index.row())); });
    hide();
}

void TestsPane::AddRow(const QString& verdict, std::size_t line, const QString& test, const QString& why) {
    QList<QStandardItem*> row;
    for (const QString& text : {verdict, QString::number(line), test, why})
        row += new QStandardItem(text);
    row.back()->setToolTip(why);
    rows_->appendRow(row);
}

void TestsPane::Show(run::RanTests tests, const QString& name, std::string_view text) {
    tests_ = std::move(tests);
    lstTests->show();
    txtTests->show();
    txtTests->ShowTests(text);
    rows_->setRowCount(0);
    for (const run::TestMessage& slip : tests_.Slips)
        AddRow(tr("slip"), slip.At.Line, {}, QString::fromStdString(slip.Text));
    for (const run::RanTest& test : tests_.Tests)
        AddRow(VerdictText(test.Result.Is), test.Result.At.Line, QString::fromStdString(test.Name),
               QString::fromStdString(test.Result.Message));
    lblTests->setText(name + QLatin1String(": ") + Summary());
    lstTests->resizeColumnsToContents();
    show();
    // The first slip, or the first test that failed.
    const auto failed = std::find_if(tests_.Tests.begin(), tests_.Tests.end(), HasFailed);
    if (tests_.Slips.empty() && failed == tests_.Tests.end())
        return;
    const auto row = tests_.Slips.empty() ? failed - tests_.Tests.begin() : 0;
    lstTests->selectRow(int(row));
    Choose(std::size_t(row));
}

void TestsPane::ShowRefused(const QString& name, const std::vector<std::string>& why) {
    tests_ = {};
    rows_->setRowCount(0);
    QStringList lines{tr("%1 was not run:").arg(name)};
    for (const std::string& line : why)
        lines += QString::fromStdString(line);
    lblTests->setText(lines.join(QLatin1Char('\n')));
    lstTests->hide();
    txtTests->hide();
    show();
}

QString TestsPane::Summary() const {
    if (!tests_.Slips.empty())
        return tr("not run, because it is not understood");
    const auto failed = std::count_if(tests_.Tests.begin(), tests_.Tests.end(), HasFailed);
    return tr("%1 passed, %2 failed; %3 of %4 states and %5 of %6 transitions seen")
        .arg(std::ptrdiff_t(tests_.Tests.size()) - failed)
        .arg(failed)
        .arg(tests_.States.Taken)
        .arg(tests_.States.All)
        .arg(tests_.Transitions.Taken)
        .arg(tests_.Transitions.All);
}

void TestsPane::Choose(std::size_t row) {
    if (row < tests_.Slips.size())
        txtTests->ShowLine(tests_.Slips[row].At.Line, true);
    else if (row - tests_.Slips.size() < tests_.Tests.size())
        ChooseTest(tests_.Tests[row - tests_.Slips.size()]);
}

void TestsPane::ChooseTest(const run::RanTest& test) {
    txtTests->ShowLine(test.Result.At.Line, HasFailed(test));
    Q_EMIT TestChosen({test.Steps, tests_.Given, tests_.Read, test.Before});
}

} // namespace orvane
