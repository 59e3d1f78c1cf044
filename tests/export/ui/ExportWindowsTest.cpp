// SPDX-License-Identifier: GPL-3.0-or-later
// Export and import in the real main window.
#include "support/ui/TableFixture.h"

#include "core/DocumentReader.h"
#include "export/Forms.h"
#include "support/ui/Controls.h"

#include <QCheckBox>
#include <QClipboard>
#include <QFileInfo>
#include <QGuiApplication>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QRadioButton>

#include <gmock/gmock.h>

namespace orvane {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

class ExportWindows : public TableFixture {
  protected:
    // The form is chosen in the dialog, and the file in the one that follows.
    void Export(const char* form, const QString& path) {
        const int row = int(exports::FormOf(form) - exports::Forms().data());
        InNextDialog(Answers, [row](QWidget& dialog) {
            Named<QListWidget>(dialog, "lstForms").setCurrentRow(row);
            Press(dialog, "cmdOK");
        });
        Answers.ChooseFile(path);
        Trigger("mnuFExport");
    }

    void Import(const QString& path, const char* option) {
        Answers.Do([option](QWidget& dialog) {
            ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
            Press(dialog, "cmdFile");
            Named<QRadioButton>(dialog, option).click();
            Press(dialog, "cmdOK");
        });
        Answers.ChooseFile(path);
        Trigger("mnuFImport");
    }
};

TEST_F(ExportWindows, EveryFormIsWrittenAsTheEngineWritesIt) {
    StartOn(PumpDocument());
    const FsmDocument document = SavedDocument();
    for (const exports::Form& form : exports::Forms()) {
        const QString path = Path(QLatin1String(form.Word.data()) + QLatin1String(form.Ending.data()));
        Export(form.Word.data(), path);
        EXPECT_EQ(ReadFile(QFileInfo(path).fileName()), form.Write(document, exports::Formulas::Safe))
            << form.Word;
        EXPECT_THAT(Panel("Panel3"), HasSubstr(QFileInfo(path).fileName().toStdString()));
    }
}

TEST_F(ExportWindows, ThePreviewIsWhatIsWrittenAndFormulasAreTheUsersChoice) {
    FsmDocument document = PumpDocument();
    document.General.FsmName = "=SUM";
    StartOn(document);
    const int row = int(exports::FormOf("csv") - exports::Forms().data());
    InNextDialog(Answers, [row](QWidget& dialog) {
        auto& preview = Named<QPlainTextEdit>(dialog, "txtPreview");
        Named<QListWidget>(dialog, "lstForms").setCurrentRow(row);
        EXPECT_TRUE(preview.toPlainText().contains(QStringLiteral("'=SUM")));
        Named<QCheckBox>(dialog, "chkSafe").click();
        EXPECT_FALSE(preview.toPlainText().contains(QStringLiteral("'=SUM")));
        Named<QListWidget>(dialog, "lstForms").setCurrentRow(0);
        EXPECT_FALSE(Named<QCheckBox>(dialog, "chkSafe").isVisible());
        Named<QListWidget>(dialog, "lstForms").setCurrentRow(row);
        Press(dialog, "cmdOK");
    });
    Answers.ChooseFile(Path(QStringLiteral("out.csv")));
    Trigger("mnuFExport");
    EXPECT_THAT(ReadFile(QStringLiteral("out.csv")), StartsWith("\xEF\xBB\xBF=SUM,"));
}

TEST_F(ExportWindows, AFileThatCannotBeWrittenIsTold) {
    StartOn(PumpDocument());
    InNextDialog(Answers, [](QWidget& dialog) { Press(dialog, "cmdOK"); });
    Answers.ChooseFile(Path(QStringLiteral("no folder/out.html"))).Press(QMessageBox::Ok);
    Trigger("mnuFExport");
    EXPECT_THAT(Answers.Seen().back().Text, HasSubstr("was not written"));
}

TEST_F(ExportWindows, WhatWasExportedComesBackAsANewDocumentThatIsNotSaved) {
    StartOn(PumpDocument());
    Export("json", Path(QStringLiteral("pump.json")));
    Trigger("mnuFNew");
    EXPECT_EQ(Text(0, 1), "1:");
    Import(Path(QStringLiteral("pump.json")), "optNew");
    EXPECT_EQ(Text(0, 1), "1:Idle");
    EXPECT_THAT(Title(), HasSubstr("*"));
}

TEST_F(ExportWindows, AnImportIntoTheOpenDocumentIsOneStep) {
    StartOn(PumpDocument());
    WriteFile(QStringLiteral("other.csv"), "OTHER,1:Off,2:On\r\nSwitch,2,1\r\n");
    Import(Path(QStringLiteral("other.csv")), "optOpen");
    EXPECT_EQ(Text(0, 1), "1:Off");
    EXPECT_EQ(Text(6, 0), "Switch ");
    Trigger("mnuUndo");
    EXPECT_EQ(Text(0, 1), "1:Idle");
    EXPECT_THAT(Title(), testing::Not(HasSubstr("*")));
}

TEST_F(ExportWindows, CellsOfASpreadsheetArePasted) {
    StartOn(PumpDocument());
    QGuiApplication::clipboard()->setText(
        QStringLiteral("LAMP\t1:Dark\t2:Light\nButton\t2:Light*\t1:Dark\n"));
    InNextDialog(Answers, [](QWidget& dialog) {
        EXPECT_FALSE(Named<QPushButton>(dialog, "cmdOK").isEnabled());
        Press(dialog, "cmdClipboard");
        Named<QRadioButton>(dialog, "optOpen").click();
        Press(dialog, "cmdOK");
    });
    Trigger("mnuFImport");
    EXPECT_EQ(Text(0, 2), "2:Light");
    EXPECT_EQ(Text(6, 2), "1:Dark");
}

TEST_F(ExportWindows, WhatIsRefusedIsToldWithItsLineAndNothingCanBeImported) {
    StartOn(PumpDocument());
    WriteFile(QStringLiteral("deep.scxml"), "<scxml xmlns=\"http://www.w3.org/2005/07/scxml\">\n<state "
                                            "id=\"a\">\n<state id=\"b\"/>\n</state>\n</scxml>\n");
    Answers.Do([](QWidget& dialog) {
        ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
        Press(dialog, "cmdFile");
        auto& notes = Named<QListWidget>(dialog, "lstNotes");
        ASSERT_EQ(notes.count(), 1);
        EXPECT_THAT(notes.item(0)->text().toStdString(), StartsWith("Line 3: "));
        EXPECT_FALSE(Named<QPushButton>(dialog, "cmdOK").isEnabled());
        Press(dialog, "cmdCancel");
    });
    Answers.ChooseFile(Path(QStringLiteral("deep.scxml")));
    Trigger("mnuFImport");
    EXPECT_EQ(Text(0, 1), "1:Idle");
}

} // namespace
} // namespace orvane
