// SPDX-License-Identifier: GPL-3.0-or-later
// What the picture beside the table shows, and how it follows the document.
#include "diagram/ui/DiagramFixture.h"

namespace orvane {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

class DiagramRoomTest : public DiagramFixture {};

TEST_F(DiagramRoomTest, IsNotMadeBeforeItIsAskedFor) {
    StartOn(ThreeStates());
    EXPECT_EQ(Find<QDockWidget>("dckDiagram"), nullptr);
    Trigger("mnuViewDiagram");
    EXPECT_TRUE(Item("mnuViewDiagram")->isChecked());
    EXPECT_TRUE(Find<QDockWidget>("dckDiagram")->isVisible());
    Press(Qt::Key_Escape);
    EXPECT_FALSE(Find<QDockWidget>("dckDiagram")->isVisible());
    EXPECT_FALSE(Item("mnuViewDiagram")->isChecked());
}

TEST_F(DiagramRoomTest, FollowsEveryEditAndUndo) {
    Open(ThreeStates());
    EXPECT_TRUE(HasState(1) && HasState(2) && HasState(3));
    EXPECT_TRUE(HasEdge(1, 2));
    EXPECT_FALSE(HasEdge(3, 2));
    TypeTarget(7, 3, QStringLiteral("2"));
    EXPECT_TRUE(HasEdge(3, 2));
    Trigger("mnuUndo");
    EXPECT_FALSE(HasEdge(3, 2));
    Trigger("mnuRedo");
    EXPECT_TRUE(HasEdge(3, 2));
    Trigger("mnuInsertState"); // before the pressed one
    EXPECT_EQ(View()->Picture().Shown().Edges.size(), 5u);
    Answers.Press(QMessageBox::No);
    Trigger("mnuFNew");
    EXPECT_TRUE(View()->Picture().Shown().States.empty());
    EXPECT_THAT(Says(), StartsWith("Nothing to draw yet"));
}

TEST_F(DiagramRoomTest, HiddenItCostsNothingAndShownAgainItIsAsTheDocument) {
    Open(ThreeStates());
    Trigger("mnuViewDiagram");
    TypeTarget(7, 3, QStringLiteral("2"));
    EXPECT_EQ(View()->Picture().Shown().Edges.size(), 4u);
    Trigger("mnuViewDiagram");
    EXPECT_EQ(View()->Picture().Shown().Edges.size(), 5u);
}

TEST_F(DiagramRoomTest, FramesTheCurrentCell) {
    Open(ThreeStates());
    const QColor frame = LightPicture().Current;
    GoTo(1, 2);
    const auto around = [&](QRect rect) { return rect.adjusted(-6, -6, 6, 6); };
    EXPECT_TRUE(Shows(frame, around(View()->StateRect(2))));
    EXPECT_FALSE(Shows(frame, around(View()->EdgeRect(3, 1))));
    GoTo(6, 3);
    EXPECT_FALSE(Shows(frame, around(View()->StateRect(2))));
    EXPECT_TRUE(Shows(frame, around(View()->EdgeRect(3, 1))));
}

TEST_F(DiagramRoomTest, TheStateThatTheMachineIsInIsRed) {
    Open(ThreeStates());
    const QColor red = LightPicture().Running;
    const auto around = [&](int state) { return View()->StateRect(state).adjusted(-3, -3, 3, 3); };
    EXPECT_FALSE(Shows(red, View()->viewport()->rect()));
    Click(0, 2, Qt::RightButton);
    PoppedUp();
    Trigger("mnuCurrentState");
    EXPECT_TRUE(Shows(red, around(2)));
    EXPECT_FALSE(Shows(red, around(3)));
}

TEST_F(DiagramRoomTest, ShowsWhereThereIsSomethingToBeTold) {
    FsmDocument document = ThreeStates();
    document.Event(12).Name = "Untested";
    Open(document);
    EXPECT_FALSE(Shows(LightPicture().Error, View()->viewport()->rect()));
    TypeTarget(12, 3, QStringLiteral("1")); // an event without a test
    EXPECT_TRUE(Shows(LightPicture().Error, View()->StateRect(3).adjusted(-2, -8, 8, 8)));
}

TEST_F(DiagramRoomTest, ADarkThemeHasADarkPicture) {
    Open(ThreeStates());
    EXPECT_TRUE(Shows(LightPicture().Box, View()->StateRect(2)));
    const QPalette light = QApplication::palette();
    QApplication::setPalette(QPalette(QColor(40, 40, 40)));
    QApplication::processEvents();
    EXPECT_TRUE(Shows(DarkPicture().Box, View()->StateRect(2)));
    EXPECT_FALSE(Shows(LightPicture().Box, View()->StateRect(2)));
    EXPECT_TRUE(Shows(DarkPicture().Ground, View()->viewport()->rect()));
    QApplication::setPalette(light);
}

TEST_F(DiagramRoomTest, OfALargeMachineItShowsTheNeighbourhoodAndAKeyShowsAll) {
    Open(Ring(50, 2));
    GoTo(1, 20);
    EXPECT_TRUE(HasState(20));
    EXPECT_FALSE(HasState(30));
    EXPECT_THAT(Says(), StartsWith("5 of 50 states: 20:State20"));
    GoTo(1, 30);
    EXPECT_TRUE(HasState(30));
    EXPECT_FALSE(HasState(20));
    Press(Qt::Key_A);
    EXPECT_TRUE(QTest::qWaitFor([&] {
        return View()->Picture().ShownPart() == diagram::Part::Whole ||
               View()->Picture().ShownPart() == diagram::Part::TooSlow;
    }));
    if (View()->Picture().ShownPart() == diagram::Part::TooSlow)
        GTEST_SKIP() << "the machine was too busy";
    EXPECT_TRUE(HasState(20) && HasState(30));
    EXPECT_EQ(Says(), "");
    Press(Qt::Key_A);
    EXPECT_FALSE(HasState(20));
}

TEST_F(DiagramRoomTest, OfFarTooManyLinesItShowsAPartAndSaysSo) {
    Open(Ring(100, 7));
    Press(Qt::Key_A);
    EXPECT_THAT(Says(), HasSubstr("more lines than a picture can show"));
    EXPECT_LT(View()->Picture().Shown().States.size(), 20u);
}

TEST_F(DiagramRoomTest, ElseCanBeLeftOutAndOneEventChosen) {
    FsmDocument document = ThreeStates();
    document.State(1).Targets[kElseRow] = 3;
    Open(document);
    EXPECT_TRUE(HasEdge(1, 3));
    Toggle("mnuPictureElse");
    EXPECT_FALSE(HasEdge(1, 3));
    Toggle("mnuPictureElse");
    EXPECT_TRUE(HasEdge(1, 3));
    auto* events = Find<QComboBox>("cboEvent");
    events->setCurrentIndex(events->findText(QStringLiteral("Halt")));
    EXPECT_TRUE(HasEdge(2, 3));
    EXPECT_FALSE(HasEdge(1, 2));
    EXPECT_EQ(View()->Picture().Shown().Edges.size(), 1u);
    TypeTarget(9, 1, QStringLiteral("3"));
    EXPECT_EQ(View()->Picture().Shown().Edges.size(), 2u); // still the same event
    events->setCurrentIndex(0);
    EXPECT_TRUE(HasEdge(1, 2));
}

TEST_F(DiagramRoomTest, StatesThatManyLeadToCanHaveShortArrows) {
    FsmDocument document = Ring(10, 1);
    for (int state = 2; state <= 9; ++state)
        document.State(state).Targets[20] = 1;
    document.Event(20).Name = "Stop";
    Open(document);
    EXPECT_TRUE(HasEdge(5, 1));
    Toggle("mnuPictureStubs");
    EXPECT_FALSE(HasEdge(5, 1));
    EXPECT_TRUE(HasEdge(5, 6));
}

TEST_F(DiagramRoomTest, TidyIsOfferedAfterAPauseAndTakenWhenAsked) {
    FsmDocument document = Ring(12, 1);
    for (int row = 10; row <= 12; ++row)
        document.Event(row).Name = "Event" + std::to_string(row);
    Open(document);
    for (int state = 1; state <= 12; ++state) {
        TypeTarget(10, state, QString::number((state * 5 + 3) % 12 + 1));
        TypeTarget(11, state, QString::number((state * 5 + 6) % 12 + 1));
    }
    auto* tidy = Find<QPushButton>("cmdTidy");
    ASSERT_TRUE(QTest::qWaitFor([&] { return tidy->isVisible(); }));
    const int before = View()->Picture().Places().Crossings;
    const int saved = View()->Picture().Saved();
    EXPECT_EQ(tidy->text(), QStringLiteral("Tidy (saves %1 crossings)").arg(saved));
    tidy->click();
    EXPECT_FALSE(tidy->isVisible());
    EXPECT_EQ(View()->Picture().Places().Crossings, before - saved);
}

TEST_F(DiagramRoomTest, WhatIsInSightStaysWhenTheMachineGrows) {
    FsmDocument document = Ring(20, 2);
    document.Event(10).Name = "Far";
    Open(document);
    GoTo(1, 10);
    const QRect before = View()->StateRect(10);
    TypeTarget(10, 10, QStringLiteral("13"));
    EXPECT_TRUE(HasEdge(10, 13));
    EXPECT_LE((View()->StateRect(10).center() - before.center()).manhattanLength(), 60);
}

TEST_F(DiagramRoomTest, ThePictureIsSavedAsLinesOrAsPoints) {
    Open(ThreeStates());
    Answers.ChooseFile(Path(QStringLiteral("drawn.svg")));
    Toggle("mnuPictureSave");
    EXPECT_THAT(ReadFile(QStringLiteral("drawn.svg")), HasSubstr("id=\"edge-2-3\""));
    EXPECT_THAT(Panel("Panel3"), HasSubstr("drawn.svg"));
    Answers.ChooseFile(Path(QStringLiteral("drawn.png")));
    Toggle("mnuPictureSave");
    const QImage image(Path(QStringLiteral("drawn.png")));
    EXPECT_EQ(image.width(), View()->Picture().Places().Bounds.Width * 2);
    Answers.ChooseFile(Path(QStringLiteral("missing/drawn.svg")));
    Answers.Press(QMessageBox::Ok);
    Toggle("mnuPictureSave");
    EXPECT_THAT(Answers.Seen().back().Text, HasSubstr("was not saved"));
}

TEST_F(DiagramRoomTest, TurnedItRunsTheOtherWay) {
    Open(Ring(8, 1));
    const auto before = View()->Picture().Places().Way;
    Toggle("mnuPictureTurn");
    EXPECT_NE(View()->Picture().Places().Way, before);
}

} // namespace
} // namespace orvane
