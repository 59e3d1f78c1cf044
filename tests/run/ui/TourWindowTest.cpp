// SPDX-License-Identifier: GPL-3.0-or-later
// A tour of the open document, made beside the window.
#include "run/ui/RunPaneFixture.h"

#include <QCheckBox>
#include <QDialog>
#include <QLineEdit>

#include <gmock/gmock.h>

namespace orvane {
namespace {

using testing::ContainsRegex;
using testing::HasSubstr;
using testing::StartsWith;

constexpr int kPatience = 30'000; // milliseconds; never waited for when all is well

class TourWindowTest : public RunPaneFixture {
  protected:
    void Open() { Trigger("mnuTour"); }
    QDialog& Tour() { return *Find<QDialog>("frmTour"); }
    bool IsWorking() { return Named<QPushButton>(Tour(), "cmdCancel").text() == QStringLiteral("Cancel"); }
    void WaitForFile() {
        EXPECT_TRUE(QTest::qWaitFor([&] { return !Tour().isVisible(); }, kPatience)) << Said();
    }
    std::string Said() { return Named<QLabel>(Tour(), "lblTour").text().toStdString(); }
};

// Takes long enough to be met at work.
FsmDocument FullTable() {
    FsmDocument document;
    document.General.FsmName = "Full";
    for (const RowNumber row : EventRows()) {
        document.Event(row).Name = "E" + std::to_string(row.Number());
        document.Event(row).Code = ";test";
    }
    for (const StateNumber state : StateNumbers()) {
        document.State(state).Name = "S" + std::to_string(state.Number());
        for (const RowNumber row : EventRows())
            document.State(state).Targets[row] = (state.Number() * 7 + row.Number()) % kStateCount + 1;
    }
    return document;
}

TEST_F(TourWindowTest, SavesTestsThatPassAndTellsIt) {
    StartOn(TimedPump());
    Open();
    Answers.ChooseFile(Path(QStringLiteral("machine-tour.ztest")));
    Press(Tour(), "cmdOK");
    WaitForFile();
    EXPECT_THAT(Panel("Panel3"), StartsWith("machine-tour.ztest: 3 of 3 transitions in "));
    EXPECT_THAT(ReadFile(QStringLiteral("machine-tour.ztest")), HasSubstr("\nmachine machine.zfsm\n"));
    WriteFile(QStringLiteral("machine.ztest"), ReadFile(QStringLiteral("machine-tour.ztest")));
    Trigger("mnuRunTests");
    EXPECT_THAT(Label("lblTests"), HasSubstr(" 0 failed; "));
}

TEST_F(TourWindowTest, AFileOfTheDocumentsNameNeedsNoMachineLine) {
    StartOn(TimedPump());
    Open();
    Answers.ChooseFile(Path(QStringLiteral("machine.ztest")));
    Press(Tour(), "cmdOK");
    WaitForFile();
    EXPECT_THAT(ReadFile(QStringLiteral("machine.ztest")), Not(HasSubstr("machine machine.zfsm")));
}

TEST_F(TourWindowTest, TheOptionsAreThoseOfTheTour) {
    StartOn(TimedPump());
    Open();
    Named<QCheckBox>(Tour(), "chkEmptyCells").click();
    Named<QCheckBox>(Tour(), "chkTogether").click();
    Named<QLineEdit>(Tour(), "txtMostSteps").setText(QStringLiteral("2"));
    Answers.ChooseFile(Path(QStringLiteral("short.ztest")));
    Press(Tour(), "cmdOK");
    WaitForFile();
    EXPECT_THAT(Panel("Panel3"), HasSubstr(" empty cells, 0 of 0 neighbouring events together in "));
    EXPECT_THAT(Panel("Panel3"), HasSubstr("; the rest needs more steps than were allowed"));
}

TEST_F(TourWindowTest, CancelledItSavesNothingAndCanBeMadeAgain) {
    StartOn(FullTable());
    Open();
    Press(Tour(), "cmdOK");
    EXPECT_TRUE(IsWorking());
    EXPECT_FALSE(Named<QPushButton>(Tour(), "cmdOK").isEnabled());
    Press(Tour(), "cmdCancel");
    EXPECT_FALSE(IsWorking());
    EXPECT_EQ(Said(), "Nothing was saved.");
    Press(Tour(), "cmdCancel");
    EXPECT_FALSE(Tour().isVisible());
}

// The table can be drawn on; what is saved is the tour of the table as it is then.
TEST_F(TourWindowTest, AnEditMeanwhileBeginsItAnew) {
    StartOn(FullTable());
    Open();
    Press(Tour(), "cmdOK");
    ASSERT_TRUE(IsWorking());
    Answers.ChooseFile(Path(QStringLiteral("tour.ztest")));
    TypeTarget(6, 1, QStringLiteral("77"));
    WaitForFile();
    EXPECT_THAT(ReadFile(QStringLiteral("tour.ztest")), ContainsRegex("pulse E6 +=> S77"));
}

TEST_F(TourWindowTest, AnEditWhileTheFileIsChosenKeepsAnOldTourFromBeingSaved) {
    StartOn(TimedPump());
    Open();
    Answers.Do([this](QWidget& dialog) {
        Trigger("mnuPolytask");
        dynamic_cast<QDialog&>(dialog).reject();
    });
    Press(Tour(), "cmdOK");
    EXPECT_TRUE(QTest::qWaitFor([&] { return Answers.Seen().size() == 1; }, kPatience));
    EXPECT_TRUE(Tour().isVisible());
}

TEST_F(TourWindowTest, ATableThatCannotBeRunSaysWhy) {
    FsmDocument document = TimedPump();
    document.State(2).TimeConst.clear();
    StartOn(document);
    Open();
    Press(Tour(), "cmdOK");
    EXPECT_FALSE(IsWorking());
    EXPECT_THAT(Said(), StartsWith("This table cannot be run yet.\n"));
}

} // namespace
} // namespace orvane
