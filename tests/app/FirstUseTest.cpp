// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Remembered.h"
#include "core/DocumentWriter.h"
#include "core/ProgramVersion.h"
#include "support/ui/Controls.h"
#include "support/ui/OpenedAddresses.h"
#include "support/ui/TableFixture.h"

#include <QAccessible>
#include <QApplication>
#include <QFileInfo>
#include <QLabel>
#include <QMenuBar>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTabBar>

#include <gmock/gmock.h>

namespace orvane {

namespace {

using testing::HasSubstr;
using testing::Not;

class FirstUse : public TableFixture {
  protected:
    QStringList RecentCaptions() {
        auto* menu = Window().findChild<QMenu*>(QStringLiteral("mnuHelp"));
        Q_EMIT menu->aboutToShow();
        QStringList captions;
        for (const QAction* item : Recent()->actions())
            captions += item->text();
        return captions;
    }
    QMenu* Recent() { return Window().findChild<QMenu*>(QStringLiteral("mnuRecent")); }
    void Select(int row, int column) { Grid()->setCurrentIndex(Grid()->model()->index(row, column)); }
};

constexpr const char* kHowToBegin = "To begin, click the white corner";

TEST_F(FirstUse, AnEmptyTableSaysHowToBegin) {
    Start({QStringLiteral("/nosplash")});
    EXPECT_THAT(Panel("Panel3"), HasSubstr(kHowToBegin));
}

TEST_F(FirstUse, TheFirstEditEndsTheWordsAboutBeginningAndUndoBringsThemBack) {
    Start({QStringLiteral("/nosplash")});
    Trigger("mnuShowElse");
    TypeTarget(5, 1, QStringLiteral("1"));
    EXPECT_THAT(Panel("Panel3"), Not(HasSubstr(kHowToBegin)));
    Trigger("mnuUndo");
    EXPECT_THAT(Panel("Panel3"), HasSubstr(kHowToBegin));
}

TEST_F(FirstUse, ADocumentThatIsOpenSaysNothingAboutBeginning) {
    StartOn(PumpDocument());
    EXPECT_THAT(Panel("Panel3"), Not(HasSubstr(kHowToBegin)));
}

TEST_F(FirstUse, ALongMessageDoesNotWidenTheWindow) {
    Start({QStringLiteral("/nosplash")});
    EXPECT_LT(Window().minimumSizeHint().width(), 640);
    EXPECT_EQ(Window().findChild<QLabel*>(QStringLiteral("Panel3"))->toolTip().left(9),
              QStringLiteral("To begin,"));
}

TEST_F(FirstUse, OurMenusStandBehindTheFourGivenOnesAndHelpIsLast) {
    Start({QStringLiteral("/nosplash")});
    QStringList captions;
    for (const QAction* menu : Window().menuBar()->actions())
        captions += menu->text();
    EXPECT_EQ(captions.join(QLatin1Char(',')), QStringLiteral("File,Edit,Code,Preferences,View,Run,Help"));
}

TEST_F(FirstUse, DocumentsAreRememberedLatestFirstAndOnce) {
    Start({QStringLiteral("/nosplash")});
    for (const char* name : {"a.zfsm", "b.zfsm", "a.zfsm"})
        RememberFile(Path(QString::fromLatin1(name)));
    EXPECT_EQ(RememberedFiles().mid(0, 2),
              QStringList({Path(QStringLiteral("a.zfsm")), Path(QStringLiteral("b.zfsm"))}));
    EXPECT_EQ(RememberedFiles().count(Path(QStringLiteral("a.zfsm"))), 1);
}

TEST_F(FirstUse, ADocumentIsRememberedWhenItGetsItsFile) {
    Start({QStringLiteral("/nosplash")});
    Answers.ChooseFile(Path(QStringLiteral("fresh.zfsm")));
    Trigger("mnuFSave");
    EXPECT_EQ(RememberedFiles().value(0), Path(QStringLiteral("fresh.zfsm")));
}

TEST_F(FirstUse, NoMoreThanNineDocumentsAreRemembered) {
    for (int i = 0; i < 12; ++i)
        RememberFile(Path(QString::number(i)));
    EXPECT_EQ(RememberedFiles().size(), 9);
    EXPECT_EQ(RememberedFiles().constLast(), Path(QStringLiteral("3")));
}

TEST_F(FirstUse, ADocumentThatIsGoneIsNotOffered) {
    StartOn(PumpDocument());
    EXPECT_EQ(RecentCaptions().filter(QStringLiteral("machine.zfsm")).size(), 1);
    QFile::remove(Path(QStringLiteral("machine.zfsm")));
    EXPECT_EQ(RecentCaptions().filter(QStringLiteral("machine.zfsm")).size(), 0);
}

TEST_F(FirstUse, AListOfRecentDocumentsWithNothingInItCannotBeOpened) {
    StartOn(PumpDocument());
    EXPECT_EQ(RecentCaptions().size(), 1);
    EXPECT_TRUE(Recent()->isEnabled());
    QFile::remove(Path(QStringLiteral("machine.zfsm")));
    EXPECT_EQ(RecentCaptions().size(), 0);
    EXPECT_FALSE(Recent()->isEnabled());
}

TEST_F(FirstUse, TheMarkForKeysInANameIsShownAsItIs) {
    WriteFile(QStringLiteral("a&b.zfsm"), WriteDocument(PumpDocument()));
    Start({Path(QStringLiteral("a&b.zfsm"))});
    EXPECT_EQ(RecentCaptions().filter(QStringLiteral("a&&b.zfsm")).size(), 1);
}

TEST_F(FirstUse, ARecentDocumentOpensAfterTheQuestionAboutUnsavedWork) {
    StartOn(PumpDocument());
    Trigger("mnuFNew");
    Trigger("mnuShowElse");
    TypeTarget(5, 1, QStringLiteral("1"));
    ASSERT_FALSE(RecentCaptions().isEmpty());
    Answers.Press(QMessageBox::Cancel);
    Recent()->actions().constFirst()->trigger();
    EXPECT_EQ(Answers.Seen()[0].Text, "Save current file?");
    EXPECT_THAT(Title(), HasSubstr("[Untitled]"));
    Answers.Press(QMessageBox::No);
    Recent()->actions().constFirst()->trigger();
    EXPECT_EQ(Title(), "machine.zfsm - Orvane " + ProgramVersion());
}

TEST_F(FirstUse, ARecentDocumentDoesNotDropWhatIsBeingTyped) {
    StartOn(PumpDocument());
    ASSERT_FALSE(RecentCaptions().isEmpty());
    Click(7, 1);
    QTest::keyClicks(Editor(), QStringLiteral("2"));
    Answers.Press(QMessageBox::Cancel);
    Recent()->actions().constFirst()->trigger();
    EXPECT_EQ(Answers.Seen().size(), 1u);
    EXPECT_EQ(Text(7, 1), "2:Run");
}

TEST_F(FirstUse, AboutTellsVersionAndLicence) {
    Start({QStringLiteral("/nosplash")});
    Answers.Do([&](QWidget& dialog) {
        auto& box = dynamic_cast<QMessageBox&>(dialog);
        EXPECT_THAT(box.text().toStdString(), HasSubstr(ProgramVersion()));
        EXPECT_THAT(box.informativeText().toStdString(), HasSubstr("GNU General Public License, version 3"));
        box.button(QMessageBox::Ok)->click();
    });
    Trigger("mnuAbout");
}

TEST_F(FirstUse, HelpPagesOpensTheStartPageThatTheProgramBrings) {
    const OpenedAddresses opened;
    Start({QStringLiteral("/nosplash")});
    Trigger("mnuHelpPages");
    ASSERT_EQ(opened.Addresses.size(), 1);
    EXPECT_EQ(opened.Addresses[0].fileName(), QStringLiteral("index.htm"));
    EXPECT_TRUE(QFileInfo::exists(opened.Addresses[0].toLocalFile()));
}

TEST_F(FirstUse, HelpPagesThatCannotBeOpenedAreToldWithTheirPlace) {
    qputenv("ORVANE_HELP_URL", "nobodyknows:this");
    Start({QStringLiteral("/nosplash")});
    Answers.Press(QMessageBox::Ok);
    Trigger("mnuHelpPages");
    qunsetenv("ORVANE_HELP_URL");
    ASSERT_EQ(Answers.Seen().size(), 1u);
    EXPECT_EQ(Answers.Seen()[0].Text, "The help pages could not be opened. They are at\r\nnobodyknows:this");
}

TEST_F(FirstUse, TheWindowComesBackWithItsSize) {
    QWidget former;
    former.resize(612, 433);
    RememberPlace(former);
    QWidget latter;
    RestorePlace(latter);
    EXPECT_EQ(latter.size(), QSize(612, 433));
}

TEST_F(FirstUse, TheCurrentCellIsEditedWithF2) {
    StartOn(PumpDocument());
    Select(6, 1);
    QTest::keyClick(Grid(), Qt::Key_F2);
    EXPECT_TRUE(Editor()->isVisible());
    EXPECT_EQ(EditorText(), "2");
}

TEST_F(FirstUse, TheMenuOfTheCurrentCellComesWithTheMenuKey) {
    StartOn(PumpDocument());
    Select(0, 2);
    QTest::keyClick(Grid(), Qt::Key_Menu);
    EXPECT_EQ(PoppedUp(), "mnuColumnHead");
    Select(6, 1);
    QTest::keyClick(Grid(), Qt::Key_F10, Qt::ShiftModifier);
    EXPECT_EQ(PoppedUp(), "mnuTranCell");
    QTest::keyClick(Grid(), Qt::Key_F10, Qt::ControlModifier);
    EXPECT_EQ(PoppedUp(), "");
}

TEST_F(FirstUse, AMenuBringsTheCurrentCellBackIntoSight) {
    StartOn(PumpDocument());
    Select(6, 1);
    QScrollBar* bar = Grid()->horizontalScrollBar();
    bar->setValue(bar->maximum());
    QTest::keyClick(Grid(), Qt::Key_Menu);
    EXPECT_EQ(PoppedUp(), "mnuTranCell");
    EXPECT_EQ(bar->value(), 0);
}

TEST_F(FirstUse, TheArrowKeysReachTheHeads) {
    StartOn(PumpDocument());
    Select(1, 1);
    QTest::keyClick(Grid(), Qt::Key_Left);
    QTest::keyClick(Grid(), Qt::Key_Up);
    EXPECT_EQ(Grid()->currentIndex(), Grid()->model()->index(0, 0));
}

// Controls of the window that take the focus and tell a screen reader nothing of themselves.
std::string Unnamed(const QWidget& window) {
    QStringList unnamed;
    for (QWidget* control : window.findChildren<QWidget*>()) {
        const bool isPart = control->objectName().startsWith(QStringLiteral("qt_")) ||
                            qobject_cast<QTabBar*>(control) != nullptr;
        if (control->focusPolicy() == Qt::NoFocus || isPart)
            continue;
        const QAccessibleInterface* told = QAccessible::queryAccessibleInterface(control);
        if (told == nullptr || told->text(QAccessible::Name).isEmpty())
            unnamed +=
                QLatin1String(control->metaObject()->className()) + QLatin1Char(':') + control->objectName();
    }
    return unnamed.join(QLatin1Char(' ')).toStdString();
}

TEST_F(FirstUse, EveryControlTellsAScreenReaderWhatItIs) {
    StartOn(PumpDocument());
    EXPECT_EQ(Unnamed(Window()), "");
    for (const auto& [row, column] : {std::pair{0, 0}, {6, 0}, {0, 1}}) {
        InNextDialog(Answers, [](QWidget& dialog) {
            EXPECT_EQ(Unnamed(dialog), "") << dialog.windowTitle().toStdString();
            Press(dialog, "cmdCancel");
        });
        Click(row, column);
    }
    Click(6, 1, Qt::RightButton);
    PoppedUp();
    InNextDialog(Answers, [](QWidget& dialog) {
        EXPECT_EQ(Unnamed(dialog), "") << dialog.windowTitle().toStdString();
        Press(dialog, "cmdCancel");
    });
    Trigger("mnuEditTransAct");
    for (const char* item : {"mnuCodeGenerate", "mnuBuilder", "mnuBacktrack"})
        Trigger(item);
    for (const QWidget* side : QApplication::topLevelWidgets())
        EXPECT_EQ(Unnamed(*side), "") << side->windowTitle().toStdString();
}

} // namespace

} // namespace orvane
