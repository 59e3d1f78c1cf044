// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/ui/TableFixture.h"

#include "core/DocumentWriter.h"
#include "core/ProgramVersion.h"

#include <QAction>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QSignalSpy>
#include <QTest>

namespace orvane {
namespace {

constexpr auto kYesNoCancel = QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;

class Lifecycle : public TableFixture {
  protected:
    void StartModified() {
        StartOn(PumpDocument());
        TypeTarget(7, 1, QStringLiteral("2"));
        ASSERT_EQ(Title(), "*machine.zfsm" + TitleEnd());
    }
    // By that many boxes in all; one that nobody has asked for waits for a pause in the typing.
    bool IsTold(std::size_t boxes) {
        return QTest::qWaitFor([this, boxes] { return Answers.Seen().size() == boxes; });
    }
    void StartUntitledModified() {
        Start({QStringLiteral("/nosplash")});
        Trigger("mnuShowElse");
        TypeTarget(kElseRow, 1, QStringLiteral("2"));
        ASSERT_EQ(Title(), "*[Untitled]" + TitleEnd());
    }
    static std::string TitleEnd() { return " - Orvane " + ProgramVersion(); }
    bool IsModified() { return Title().starts_with('*'); }
};

TEST_F(Lifecycle, TheTitleNamesTheFileAndTheVersionAndMarksChanges) {
    StartOn(PumpDocument());
    EXPECT_EQ(Title(), "machine.zfsm" + TitleEnd());
    TypeTarget(7, 1, QStringLiteral("2"));
    EXPECT_EQ(Title(), "*machine.zfsm" + TitleEnd());
    Trigger("mnuFSave");
    EXPECT_EQ(Title(), "machine.zfsm" + TitleEnd());
    Trigger("mnuFNew");
    EXPECT_EQ(Title(), "[Untitled]" + TitleEnd());
}

TEST_F(Lifecycle, NewOfAnUnchangedDocumentAsksNothing) {
    StartOn(PumpDocument());
    Trigger("mnuFNew");
    EXPECT_EQ(Text(0, 0), "");
    EXPECT_EQ(Text(0, 1), "1:");
    EXPECT_EQ(Text(6, 0), " ");
    EXPECT_EQ(Panel("Panel2"), "[Un-named]");
    EXPECT_TRUE(Answers.Seen().empty());
}

TEST_F(Lifecycle, NewOfAChangedDocumentAsksAndCancelLeavesEverything) {
    StartModified();
    Answers.Press(QMessageBox::Cancel);
    Trigger("mnuFNew");
    ASSERT_EQ(Answers.Seen().size(), 1u);
    EXPECT_EQ(Answers.Seen()[0].Text, "Save changes?");
    EXPECT_EQ(Answers.Seen()[0].Title, "Orvane");
    EXPECT_EQ(Answers.Seen()[0].Buttons, kYesNoCancel);
    EXPECT_EQ(Title(), "*machine.zfsm" + TitleEnd());
    EXPECT_EQ(Text(7, 1), "2:Run");
}

TEST_F(Lifecycle, NewWithNoDropsTheChanges) {
    StartModified();
    const std::string before = ReadFile(QStringLiteral("machine.zfsm"));
    Answers.Press(QMessageBox::No);
    Trigger("mnuFNew");
    EXPECT_EQ(Title(), "[Untitled]" + TitleEnd());
    EXPECT_EQ(ReadFile(QStringLiteral("machine.zfsm")), before);
}

TEST_F(Lifecycle, NewWithYesSavesFirst) {
    StartModified();
    const std::string before = ReadFile(QStringLiteral("machine.zfsm"));
    Answers.Press(QMessageBox::Yes);
    Trigger("mnuFNew");
    EXPECT_EQ(Title(), "[Untitled]" + TitleEnd());
    EXPECT_NE(ReadFile(QStringLiteral("machine.zfsm")), before);
}

TEST_F(Lifecycle, NewIsDroppedWhenTheSaveItAskedForIsCancelled) {
    StartUntitledModified();
    Answers.Press(QMessageBox::Yes).CancelFile();
    Trigger("mnuFNew");
    EXPECT_EQ(Title(), "*[Untitled]" + TitleEnd());
    EXPECT_EQ(Text(kElseRow, 1), "2:");
}

TEST_F(Lifecycle, OpenAsksInItsOwnWordsAndCancelOpensNothing) {
    StartModified();
    Answers.Press(QMessageBox::Cancel);
    Trigger("mnuFOpen");
    ASSERT_EQ(Answers.Seen().size(), 1u);
    EXPECT_EQ(Answers.Seen()[0].Text, "Save current file?");
    EXPECT_EQ(Answers.Seen()[0].Title, "Save?");
    EXPECT_EQ(Answers.Seen()[0].Buttons, kYesNoCancel);
    EXPECT_TRUE(IsModified());
}

TEST_F(Lifecycle, OpenShowsTheChosenDocumentAndNothingOfTheOneBefore) {
    FsmDocument shown = PumpDocument();
    shown.View.Polytask = true;
    shown.State(1).ColWidth = 3000;
    shown.State(1).Targets[kElseRow] = 2;
    StartOn(shown);
    FsmDocument other;
    other.State(1).Name = "Other";
    WriteFile(QStringLiteral("other.zfsm"), WriteDocument(other));
    Answers.ChooseFile(Path(QStringLiteral("other.zfsm")));
    Trigger("mnuFOpen");
    EXPECT_EQ(Title(), "other.zfsm" + TitleEnd());
    EXPECT_EQ(Text(0, 1), "1:Other");
    EXPECT_EQ(Text(0, 2), "2:");
    EXPECT_EQ(Text(6, 0), " ");
    EXPECT_FALSE(Item("mnuPolytask")->isChecked());
    EXPECT_FALSE(Item("mnuShowElse")->isChecked());
    EXPECT_TRUE(CellRect(kElseRow, 1).isEmpty());
    EXPECT_EQ(Grid()->columnWidth(1), 945 / 15);
    EXPECT_FALSE(Item("mnuUndo")->isEnabled());
}

TEST_F(Lifecycle, OpenOffersAllFilesAndDocuments) {
    StartOn(PumpDocument());
    Answers.CancelFile();
    Trigger("mnuFOpen");
    ASSERT_EQ(Answers.Seen().size(), 1u);
    ASSERT_EQ(Answers.Seen()[0].NameFilters.size(), 2);
    EXPECT_TRUE(Answers.Seen()[0].NameFilters[0].startsWith(QStringLiteral("All Files (*.*)")));
    EXPECT_TRUE(Answers.Seen()[0].NameFilters[1].startsWith(QStringLiteral("Config file (*.zfsm)")));
    EXPECT_EQ(Title(), "machine.zfsm" + TitleEnd());
}

TEST_F(Lifecycle, TheFileDialogsShowTheFiltersByTheirCaptions) {
    StartUntitledModified();
    for (const char* item : {"mnuFSaveAs", "mnuFOpen"}) {
        if (item == std::string("mnuFOpen"))
            Answers.Press(QMessageBox::No);
        Answers.Do([&](QWidget& dialog) {
            const auto* filters = dialog.findChild<QComboBox*>(QStringLiteral("fileTypeCombo"));
            EXPECT_EQ(filters->itemText(0), QStringLiteral("All Files (*.*)")) << item;
            EXPECT_EQ(filters->itemText(1), QStringLiteral("Config file (*.zfsm)")) << item;
            dialog.close();
        });
        Trigger(item);
    }
}

TEST_F(Lifecycle, AFileThatCannotBeReadIsToldAndTheOpenDocumentStays) {
    StartOn(PumpDocument());
    WriteFile(QStringLiteral("picture.zfsm"), std::string("\x89PNG\0\0\0", 7));
    Answers.ChooseFile(Path(QStringLiteral("picture.zfsm"))).Press(QMessageBox::Ok);
    Trigger("mnuFOpen");
    EXPECT_NE(Answers.Seen().back().Text.find("picture.zfsm"), std::string::npos);
    EXPECT_NE(Answers.Seen().back().Text.find("The file is not a document"), std::string::npos);
    EXPECT_EQ(Title(), "machine.zfsm" + TitleEnd());
    EXPECT_EQ(Text(0, 1), "1:Idle");
}

TEST_F(Lifecycle, FileDialogsStartInTheFolderOfTheDocument) {
    ASSERT_TRUE(QDir().mkpath(Path(QStringLiteral("pumps"))));
    WriteFile(QStringLiteral("pumps/one.zfsm"), WriteDocument(PumpDocument()));
    Start({Path(QStringLiteral("pumps/one.zfsm"))});
    for (const char* item : {"mnuFOpen", "mnuFSaveAs"}) {
        Answers.Do([this](QWidget& dialog) {
            EXPECT_EQ(dynamic_cast<QFileDialog&>(dialog).directory(), QDir(Path(QStringLiteral("pumps"))));
            dialog.close();
        });
        Trigger(item);
    }
}

TEST_F(Lifecycle, ReturnInAQuestionSavesAndEscapeCancels) {
    StartModified();
    const std::string before = ReadFile(QStringLiteral("machine.zfsm"));
    const auto press = [this](Qt::Key key) {
        Answers.Do([key](QWidget& box) {
            EXPECT_TRUE(QTest::qWaitForWindowActive(&box));
            QTest::keyClick(&box, key);
        });
        Trigger("mnuFNew");
    };
    press(Qt::Key_Escape);
    EXPECT_EQ(Title(), "*machine.zfsm" + TitleEnd());
    EXPECT_EQ(ReadFile(QStringLiteral("machine.zfsm")), before);
    press(Qt::Key_Return);
    EXPECT_EQ(Title(), "[Untitled]" + TitleEnd());
    EXPECT_NE(ReadFile(QStringLiteral("machine.zfsm")), before);
}

TEST_F(Lifecycle, NamesThatLookLikeMarkupAreToldAsTheyAre) {
    StartOn(PumpDocument());
    WriteFile(QStringLiteral("<b>x.zfsm"), "nothing");
    Answers.ChooseFile(Path(QStringLiteral("<b>x.zfsm"))).Do([](QWidget& dialog) {
        EXPECT_EQ(dynamic_cast<QMessageBox&>(dialog).textFormat(), Qt::PlainText);
        dialog.close();
    });
    Trigger("mnuFOpen");
    EXPECT_NE(Answers.Seen().back().Text.find("<b>x.zfsm"), std::string::npos);
}

TEST_F(Lifecycle, AFailedSaveSaysWhyKeepsTheOldFileAndTheMark) {
    StartModified();
    const std::string before = ReadFile(QStringLiteral("machine.zfsm"));
    QFile::rename(Path(QStringLiteral("machine.zfsm")), Path(QStringLiteral("kept")));
    QDir().mkpath(Path(QStringLiteral("machine.zfsm"))); // a folder cannot be replaced by a file
    Answers.Press(QMessageBox::Ok);
    Trigger("mnuFSave");
    ASSERT_EQ(Answers.Seen().size(), 1u);
    EXPECT_NE(Answers.Seen()[0].Text.find("could not be saved"), std::string::npos);
    EXPECT_NE(Answers.Seen()[0].Text.find("machine.zfsm"), std::string::npos);
    EXPECT_TRUE(IsModified());
    EXPECT_EQ(ReadFile(QStringLiteral("kept")), before);
    Answers.Press(QMessageBox::Yes).Press(QMessageBox::Ok); // a new document would lose it
    Trigger("mnuFNew");
    EXPECT_EQ(Title(), "*machine.zfsm" + TitleEnd());
}

TEST_F(Lifecycle, ADocumentWithoutAFileIsSavedUnderAChosenName) {
    StartUntitledModified();
    Answers.ChooseFile(Path(QStringLiteral("fresh")));
    Trigger("mnuFSave");
    EXPECT_EQ(Title(), "fresh.zfsm" + TitleEnd());
    EXPECT_NE(ReadFile(QStringLiteral("fresh.zfsm")).find("<TRANS>5:2"), std::string::npos);
}

TEST_F(Lifecycle, SaveAsWritesAndNamesTheDocument) {
    StartModified();
    const std::string before = ReadFile(QStringLiteral("machine.zfsm"));
    Answers.ChooseFile(Path(QStringLiteral("copy.zfsm")));
    Trigger("mnuFSaveAs");
    EXPECT_EQ(Title(), "copy.zfsm" + TitleEnd());
    EXPECT_FALSE(ReadFile(QStringLiteral("copy.zfsm")).empty());
    EXPECT_EQ(ReadFile(QStringLiteral("machine.zfsm")), before);
}

TEST_F(Lifecycle, SaveAsOffersTheNameThatTheDocumentHas) {
    StartOn(PumpDocument());
    Answers.Do([this](QWidget& dialog) {
        const auto& files = dynamic_cast<QFileDialog&>(dialog);
        EXPECT_EQ(files.selectedFiles(), QStringList{Path(QStringLiteral("machine.zfsm"))});
        dialog.close();
    });
    Trigger("mnuFSaveAs");
    EXPECT_EQ(Answers.Seen().size(), 1u);
}

TEST_F(Lifecycle, TheSettingsHaveNoNameHoweverTheirFileIsSpelt) {
    StartOn(PumpDocument());
    WriteFile(QStringLiteral("Orvane_Ini.ZFSM"), WriteDocument(PumpDocument()));
    Answers.ChooseFile(Path(QStringLiteral("Orvane_Ini.ZFSM")));
    Trigger("mnuFOpen");
    EXPECT_EQ(Title(), "[Untitled]" + TitleEnd());
    EXPECT_EQ(Text(0, 0), "PMP");
}

TEST_F(Lifecycle, ACancelledSaveAsLeavesTheDocumentModified) {
    StartModified();
    Answers.CancelFile();
    Trigger("mnuFSaveAs");
    EXPECT_EQ(Title(), "*machine.zfsm" + TitleEnd());
}

TEST_F(Lifecycle, ClosingAsksAndCancelKeepsTheWindow) {
    StartModified();
    const QSignalSpy closed(&Window(), &frmTable::Closed);
    Answers.Press(QMessageBox::Cancel);
    EXPECT_FALSE(Window().close());
    EXPECT_EQ(Answers.Seen().back().Text, "Save changes?");
    EXPECT_EQ(Answers.Seen().back().Buttons, kYesNoCancel);
    EXPECT_TRUE(Window().isVisible());
    EXPECT_EQ(closed.count(), 0);
}

TEST_F(Lifecycle, AClosedWindowSaysSoOnceAndTheProgramEndsWithIt) {
    StartOn(PumpDocument());
    const QSignalSpy closed(&Window(), &frmTable::Closed);
    EXPECT_TRUE(Window().close());
    EXPECT_EQ(closed.count(), 1);
}

TEST_F(Lifecycle, ClosingDoesNotDropWhatIsBeingTyped) {
    StartOn(PumpDocument());
    Click(7, 1);
    QTest::keyClicks(Editor(), QStringLiteral("2"));
    Answers.Press(QMessageBox::Cancel);
    EXPECT_FALSE(Window().close());
    EXPECT_EQ(Answers.Seen().size(), 1u);
    EXPECT_EQ(Text(7, 1), "2:Run");
}

TEST_F(Lifecycle, ClosingWithYesSavesWithNoDoesNot) {
    StartModified();
    const std::string before = ReadFile(QStringLiteral("machine.zfsm"));
    Answers.Press(QMessageBox::No);
    EXPECT_TRUE(Window().close());
    EXPECT_EQ(ReadFile(QStringLiteral("machine.zfsm")), before);
    Window().show();
    Answers.Press(QMessageBox::Yes);
    EXPECT_TRUE(Window().close());
    EXPECT_NE(ReadFile(QStringLiteral("machine.zfsm")), before);
}

TEST_F(Lifecycle, ClosingStaysOpenWhenTheSaveDoesNotComplete) {
    StartModified();
    QFile::remove(Path(QStringLiteral("machine.zfsm")));
    QDir().mkpath(Path(QStringLiteral("machine.zfsm")));
    Answers.Press(QMessageBox::Yes).Press(QMessageBox::Ok);
    EXPECT_FALSE(Window().close());
    EXPECT_TRUE(IsModified());
}

TEST_F(Lifecycle, UndoBackToWhatWasSavedTakesTheMarkAway) {
    StartModified();
    Trigger("mnuUndo");
    EXPECT_EQ(Title(), "machine.zfsm" + TitleEnd());
    EXPECT_EQ(Text(7, 1), "");
    Trigger("mnuRedo");
    EXPECT_EQ(Title(), "*machine.zfsm" + TitleEnd());
    EXPECT_EQ(Text(7, 1), "2:Run");
}

TEST_F(Lifecycle, AnUnchangedSaveGivesTheSameBytes) {
    StartOn(PumpDocument());
    const std::string before = ReadFile(QStringLiteral("machine.zfsm"));
    Trigger("mnuFSave");
    EXPECT_EQ(ReadFile(QStringLiteral("machine.zfsm")), before);
}

TEST_F(Lifecycle, EveryChangeWritesTheProgramBesideTheDocument) {
    StartOn(PumpDocument());
    EXPECT_EQ(ReadFile(QStringLiteral("machine.zls")), ""); // opening alone touches nothing
    TypeTarget(7, 1, QStringLiteral("2"));
    EXPECT_NE(ReadFile(QStringLiteral("machine.zls")).find("PMP_Idle_Set1:"), std::string::npos);
}

TEST_F(Lifecycle, AProgramNeverTakesThePlaceOfItsDocument) {
    const std::string document = WriteDocument(PumpDocument());
    WriteFile(QStringLiteral("machine.zls"), document);
    Start({Path(QStringLiteral("machine.zls"))});
    Answers.Press(QMessageBox::Ok);
    TypeTarget(7, 1, QStringLiteral("2"));
    ASSERT_TRUE(IsTold(1));
    EXPECT_NE(Answers.Seen()[0].Text.find("save that under another name"), std::string::npos);
    EXPECT_EQ(ReadFile(QStringLiteral("machine.zls")), document);
}

TEST_F(Lifecycle, AProgramThatCannotBeWrittenIsToldOnce) {
    StartOn(PumpDocument());
    QDir().mkpath(Path(QStringLiteral("machine.zls")));
    Answers.Press(QMessageBox::Ok);
    TypeTarget(7, 1, QStringLiteral("2"));
    EXPECT_TRUE(Answers.Seen().empty()); // not under the fingers
    ASSERT_TRUE(IsTold(1));
    EXPECT_NE(Answers.Seen().back().Text.find("machine.zls"), std::string::npos);
    TypeTarget(7, 1, QStringLiteral("1"));
    EXPECT_FALSE(QTest::qWaitFor([this] { return Answers.Seen().size() > 1; }, 1500));
    QDir().rmdir(Path(QStringLiteral("machine.zls")));
    TypeTarget(7, 1, QStringLiteral("2"));
    EXPECT_FALSE(ReadFile(QStringLiteral("machine.zls")).empty());
}

TEST_F(Lifecycle, AProgramThatCannotBeWrittenAnyMoreIsToldAgain) {
    const QString program = Path(QStringLiteral("machine.zls"));
    StartOn(PumpDocument());
    std::size_t told = 0;
    for (const char* target : {"2", "3"}) {
        QDir().mkpath(program);
        Answers.Press(QMessageBox::Ok);
        TypeTarget(7, 1, QLatin1String(target));
        ASSERT_TRUE(IsTold(++told));
        EXPECT_TRUE(QDir().rmdir(program));
        TypeTarget(7, 1, QStringLiteral("1")); // written, which ends the trouble
        EXPECT_TRUE(QFile::remove(program));
    }
    EXPECT_EQ(Answers.Seen().size(), 2u);
}

TEST_F(Lifecycle, EachProgramThatCannotBeWrittenIsTold) {
    StartOn(PumpDocument());
    for (const char* name : {"machine", "copy"})
        QDir().mkpath(Path(QLatin1String(name) + QStringLiteral(".zls")));
    Answers.Press(QMessageBox::Ok);
    TypeTarget(7, 1, QStringLiteral("2"));
    ASSERT_TRUE(IsTold(1));
    Answers.ChooseFile(Path(QStringLiteral("copy.zfsm"))).Press(QMessageBox::Ok);
    Trigger("mnuFSaveAs");
    TypeTarget(7, 1, QStringLiteral("1"));
    ASSERT_TRUE(IsTold(3));
    EXPECT_NE(Answers.Seen()[2].Text.find("copy.zls"), std::string::npos);
}

// The box about a program that cannot be written comes up after all that the edit has changed: whoever
// answers it sees a table, a title and an undo list that are true.
TEST_F(Lifecycle, TheProgramIsGeneratedLastAfterTheEditIsShownAndKept) {
    StartOn(PumpDocument());
    QDir().mkpath(Path(QStringLiteral("machine.zls")));
    QSignalSpy drawn(Grid()->model(), &QAbstractItemModel::dataChanged);
    Answers.Do([&](QWidget& box) {
        EXPECT_FALSE(drawn.isEmpty());
        EXPECT_EQ(Text(7, 1), "2:Run");
        EXPECT_EQ(Title(), "*machine.zfsm" + TitleEnd());
        EXPECT_TRUE(Item("mnuUndo")->isEnabled());
        box.close();
    });
    TypeTarget(7, 1, QStringLiteral("2"));
    EXPECT_TRUE(IsTold(1));
}

TEST_F(Lifecycle, TheProgramIsGeneratedLastAfterAnUndo) {
    StartModified();
    QFile::remove(Path(QStringLiteral("machine.zls")));
    QDir().mkpath(Path(QStringLiteral("machine.zls")));
    Answers.Do([&](QWidget& box) {
        EXPECT_EQ(Text(7, 1), "");
        EXPECT_EQ(Title(), "machine.zfsm" + TitleEnd());
        EXPECT_FALSE(Item("mnuUndo")->isEnabled());
        EXPECT_TRUE(Item("mnuRedo")->isEnabled());
        box.close();
    });
    Trigger("mnuUndo");
    EXPECT_TRUE(IsTold(1));
}

} // namespace
} // namespace orvane
