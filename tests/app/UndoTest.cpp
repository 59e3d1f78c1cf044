// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/ui/PopUpFixture.h"

#include <QDesktopServices>
#include <QTest>
#include <QUrl>

#include <gmock/gmock.h>

namespace orvane {
namespace {

using testing::Contains;
using testing::Each;
using testing::IsSupersetOf;

class Undo : public PopUpFixture {};

TEST_F(Undo, StepsGoBackAndForthAndTheMenusFollow) {
    StartOn(PumpDocument());
    EXPECT_FALSE(Item("mnuUndo")->isEnabled());
    TypeTarget(7, 1, QStringLiteral("2"));
    TypeTarget(6, 2, QStringLiteral("1"));
    Trigger("mnuUndo");
    EXPECT_EQ(Text(6, 2), "");
    EXPECT_EQ(Text(7, 1), "2:Run");
    EXPECT_TRUE(Item("mnuRedo")->isEnabled());
    Trigger("mnuUndo");
    EXPECT_EQ(Text(7, 1), "");
    EXPECT_FALSE(Item("mnuUndo")->isEnabled());
    Trigger("mnuRedo");
    Trigger("mnuRedo");
    EXPECT_EQ(Text(6, 2), "1:Idle");
    EXPECT_FALSE(Item("mnuRedo")->isEnabled());
}

TEST_F(Undo, WhatIsUndoneAndRedoneIsDrawn) {
    StartOn(PumpDocument());
    TypeTarget(7, 5, QStringLiteral("2"));
    EXPECT_THAT(DrawnBy([this] { Trigger("mnuUndo"); }), Contains(5));
    EXPECT_THAT(DrawnBy([this] { Trigger("mnuRedo"); }), Contains(5));
}

TEST_F(Undo, OnlyWhatIsAnotherNowIsDrawn) {
    StartOn(PumpDocument());
    TypeTarget(7, 5, QStringLiteral("2"));
    EXPECT_THAT(DrawnBy([this] { Trigger("mnuUndo"); }), Each(5));
    EXPECT_THAT(DrawnBy([this] { Trigger("mnuRedo"); }), Each(5));
    Choose(0, 1, "mnuInsertState");
    EXPECT_THAT(DrawnBy([this] { Trigger("mnuUndo"); }), IsSupersetOf({1, 2, 3}));
}

TEST_F(Undo, ANewEditEndsRedo) {
    StartOn(PumpDocument());
    TypeTarget(7, 1, QStringLiteral("2"));
    Trigger("mnuUndo");
    TypeTarget(7, 1, QStringLiteral("1"));
    EXPECT_FALSE(Item("mnuRedo")->isEnabled());
}

TEST_F(Undo, TypingTheSameTargetIsNoStep) {
    StartOn(PumpDocument());
    TypeTarget(6, 1, QStringLiteral("2"));
    EXPECT_FALSE(Item("mnuUndo")->isEnabled());
    EXPECT_FALSE(Title().starts_with('*'));
}

TEST_F(Undo, NinetyNineStepsCanBeUndone) {
    StartOn(PumpDocument());
    for (int i = 0; i < 120; ++i)
        TypeTarget(7, 1, QString::number(i % 2 + 3));
    int steps = 0;
    for (; Item("mnuUndo")->isEnabled() && steps < 200; ++steps)
        Trigger("mnuUndo");
    EXPECT_EQ(steps, 99);
}

TEST_F(Undo, AnOpenCellEditIsAbandoned) {
    StartOn(PumpDocument());
    TypeTarget(7, 1, QStringLiteral("2"));
    Click(6, 2);
    QTest::keyClicks(Editor(), QStringLiteral("1"));
    Trigger("mnuUndo");
    EXPECT_FALSE(Editor()->isVisible());
    EXPECT_EQ(Text(6, 2), "");
    EXPECT_EQ(Text(7, 1), "");
}

TEST_F(Undo, ViewChangesAreNoSteps) {
    StartOn(PumpDocument());
    Trigger("mnuShowElse");
    Trigger("mnuPolytask");
    EXPECT_FALSE(Item("mnuUndo")->isEnabled());
    TypeTarget(7, 1, QStringLiteral("2"));
    Trigger("mnuUndo");
    EXPECT_TRUE(Item("mnuShowElse")->isChecked());
    EXPECT_TRUE(Item("mnuPolytask")->isChecked());
}

TEST_F(Undo, AllOfAStructuralEditIsOneStep) {
    StartOn(PumpDocument());
    Click(6, 0, Qt::RightButton);
    PoppedUp();
    Trigger("mnuInsertEvent");
    EXPECT_EQ(Text(7, 0), "Start");
    EXPECT_EQ(Text(7, 1), "2:Run");
    Trigger("mnuUndo");
    EXPECT_EQ(Text(6, 0), "Start");
    EXPECT_EQ(Text(6, 1), "2:Run");
    EXPECT_FALSE(Item("mnuUndo")->isEnabled());
}

TEST_F(Undo, UndoGeneratesTheProgramAnew) {
    StartOn(PumpDocument());
    const auto program = [this] { return ReadFile(QStringLiteral("machine.zls")); };
    TypeTarget(7, 1, QStringLiteral("1"));
    const std::string before = program();
    TypeTarget(7, 1, QStringLiteral("2"));
    const std::string after = program();
    EXPECT_NE(before.find(";stop?\r\n\tGoifT\tPMP_Idle_1\r\n"), std::string::npos) << before;
    EXPECT_NE(after.find("PMP_Run_Set2\r\n;stop?"), std::string::npos) << after;
    Trigger("mnuUndo");
    EXPECT_EQ(program(), before);
    Trigger("mnuRedo");
    EXPECT_EQ(program(), after);
}

// Keeps the addresses that the desktop is asked to open.
class OpenedPages : public QObject {
    Q_OBJECT

  public:
    OpenedPages() { QDesktopServices::setUrlHandler(QStringLiteral("http"), this, "Keep"); }
    ~OpenedPages() override { QDesktopServices::unsetUrlHandler(QStringLiteral("http")); }
    Q_INVOKABLE void Keep(const QUrl& url) { Pages += url.toString(); }

    QStringList Pages;
};

TEST_F(Undo, TheShortcutsOfTheDesktopWork) {
    StartOn(PumpDocument());
    Window().activateWindow();
    TypeTarget(7, 1, QStringLiteral("2"));
    QTest::keyClick(Grid(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Text(7, 1), "");
    QTest::keyClick(Grid(), Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(Text(7, 1), "2:Run");
    QTest::keyClick(Grid(), Qt::Key_S, Qt::ControlModifier);
    EXPECT_FALSE(Title().starts_with('*'));
    Click(6, 2);
    QTest::keyClicks(Editor(), QStringLiteral("1"));
    QTest::keyClick(Editor(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_FALSE(Editor()->isVisible());
    EXPECT_EQ(Text(7, 1), "");
}

TEST_F(Undo, F1OpensTheHelpPageOfTheTableAlsoWhileTyping) {
    qputenv("ORVANE_HELP_URL", "http://help.example/kb/");
    OpenedPages opened;
    StartOn(PumpDocument());
    Window().activateWindow();
    QTest::keyClick(Grid(), Qt::Key_F1);
    Click(6, 1);
    QTest::keyClick(Editor(), Qt::Key_F1);
    QTest::keyClick(Grid(), Qt::Key_F1, Qt::ShiftModifier);
    qunsetenv("ORVANE_HELP_URL");
    const QString page = QStringLiteral("http://help.example/kb/4835.htm");
    EXPECT_EQ(opened.Pages, QStringList({page, page}));
}

} // namespace
} // namespace orvane

#include "UndoTest.moc"
