// SPDX-License-Identifier: GPL-3.0-or-later
// Printing in the real main window, without a printer: into files.
#include "support/ui/TableFixture.h"

#include "print/ui/PagePane.h"
#include "print/ui/Printout.h"
#include "support/ui/Controls.h"
#include "text/Sha256.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QProcess>
#include <QSpinBox>
#include <QStandardPaths>

#include <gmock/gmock.h>

namespace orvane {
namespace {

using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

constexpr int kPdfTime = 60'000; // milliseconds, at most

class PrintWindow : public TableFixture {
  protected:
    void InPrintDialog(const std::function<void(QWidget&)>& script) {
        Answers.Do([script](QWidget& dialog) {
            ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
            script(dialog);
        });
        Trigger("mnuFPrint");
    }

    void SavePdf(
        const QString& name, const std::function<void(QWidget&)>& before = [](QWidget&) {}) {
        Answers.Do([before](QWidget& dialog) {
            ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
            before(dialog);
            Press(dialog, "cmdPdf");
            EXPECT_TRUE(QTest::qWaitFor([&dialog] { return !dialog.isVisible(); }, kPdfTime));
        });
        Answers.ChooseFile(Path(name));
        Trigger("mnuFPrint");
    }

    static bool HasPdfToText() {
        return !QStandardPaths::findExecutable(QStringLiteral("pdftotext")).isEmpty();
    }

    std::string PdfText(const QString& name) {
        QProcess reader;
        reader.start(QStringLiteral("pdftotext"),
                     {QStringLiteral("-layout"), Path(name), QStringLiteral("-")});
        EXPECT_TRUE(reader.waitForFinished(kPdfTime));
        return reader.readAllStandardOutput().toStdString();
    }

    static std::size_t Count(const std::string& text, const std::string& part) {
        std::size_t count = 0;
        for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1))
            ++count;
        return count;
    }
};

FsmDocument FullDocument() {
    FsmDocument document;
    document.General.FsmName = "FULL";
    for (const RowNumber row : EventRows()) {
        document.Event(row).Name = "Ev" + std::to_string(row.Number());
        document.Event(row).Code = "\ttest_" + std::to_string(row.Number());
    }
    for (const StateNumber state : StateNumbers()) {
        document.State(state).Name = "St" + std::to_string(state.Number());
        for (const RowNumber row : CellRows()) {
            document.State(state).Targets[row] = (state.Number() * 7 + row.Number()) % kStateCount + 1;
            document.State(state).Actions[row] =
                "act" + std::to_string(state.Number()) + "at" + std::to_string(row.Number()) + "end";
        }
    }
    return document;
}

TEST_F(PrintWindow, MakesAFileOfAllPagesAndSaysSo) {
    StartOn(PumpDocument());
    SavePdf(QStringLiteral("pump.pdf"));
    EXPECT_THAT(ReadFile(QStringLiteral("pump.pdf")), StartsWith("%PDF"));
    EXPECT_THAT(Panel("Panel3"), HasSubstr("pump.pdf"));
}

TEST_F(PrintWindow, TheNamesOnTheCoverAreRememberedForTheFileAndNeverInTheDocument) {
    const FsmDocument document = PumpDocument();
    StartOn(document);
    InPrintDialog([](QWidget& dialog) {
        EXPECT_EQ(Named<QLineEdit>(dialog, "txtRevision").text(), QString());
        Named<QLineEdit>(dialog, "txtRevision").setText(QStringLiteral("Rev 7"));
        Named<QLineEdit>(dialog, "txtPrepared").setText(QString::fromUtf8("Ad\xC3\xA9la \xE6\xBC\xA2"));
        Press(dialog, "cmdClose");
    });
    InPrintDialog([](QWidget& dialog) {
        EXPECT_EQ(Named<QLineEdit>(dialog, "txtRevision").text(), QStringLiteral("Rev 7"));
        EXPECT_EQ(Named<QLineEdit>(dialog, "txtPrepared").text(),
                  QString::fromUtf8("Ad\xC3\xA9la \xE6\xBC\xA2"));
        Press(dialog, "cmdClose");
    });
    EXPECT_THAT(Title(), Not(HasSubstr("*")));
    EXPECT_EQ(SavedDocument(), document);
    Trigger("mnuFNew");
    InPrintDialog([](QWidget& dialog) {
        EXPECT_EQ(Named<QLineEdit>(dialog, "txtRevision").text(), QString());
        Press(dialog, "cmdClose");
    });
}

TEST_F(PrintWindow, ThePagesFollowWhatIsChosen) {
    StartOn(PumpDocument());
    InPrintDialog([](QWidget& dialog) {
        auto& pages = Named<QSpinBox>(dialog, "spnPage");
        const int all = pages.maximum();
        EXPECT_GE(all, 6);
        EXPECT_FALSE(Named<PagePane>(dialog, "picPage").grab().toImage().isNull());
        Named<QCheckBox>(dialog, "chkListing").click();
        EXPECT_TRUE(QTest::qWaitFor([&] { return pages.maximum() < all; }));
        for (const char* part : {"chkCover", "chkDiagram", "chkTable", "chkReport"})
            Named<QCheckBox>(dialog, part).click();
        EXPECT_TRUE(QTest::qWaitFor([&] { return !Named<QPushButton>(dialog, "cmdPdf").isEnabled(); }));
        Press(dialog, "cmdClose");
    });
}

TEST_F(PrintWindow, EveryActionAndEveryHeadOfTheFullTableIsInTheFile) {
    if (!HasPdfToText())
        GTEST_SKIP() << "pdftotext is not installed";
    StartOn(FullDocument());
    SavePdf(QStringLiteral("full.pdf"),
            [](QWidget& dialog) { Named<QComboBox>(dialog, "cboOrientation").setCurrentIndex(1); });
    const std::string text = PdfText(QStringLiteral("full.pdf"));
    for (const StateNumber state : StateNumbers()) {
        for (const RowNumber row : CellRows()) {
            const std::string action =
                "act" + std::to_string(state.Number()) + "at" + std::to_string(row.Number()) + "end";
            ASSERT_EQ(Count(text, action), 1u) << action;
        }
    }
    const std::size_t pages = Count(text, "\f"); // one ends each page
    EXPECT_GT(pages, 100u);
    EXPECT_THAT(text, HasSubstr("Page 1 of " + std::to_string(pages)));
    EXPECT_THAT(text, HasSubstr("Part 1 of "));
}

TEST_F(PrintWindow, TheCoverHasTheChecksumOfTheFileAndTheRevision) {
    if (!HasPdfToText())
        GTEST_SKIP() << "pdftotext is not installed";
    StartOn(PumpDocument());
    SavePdf(QStringLiteral("pump.pdf"), [](QWidget& dialog) {
        Named<QLineEdit>(dialog, "txtApproved").setText(QStringLiteral("Eve Plant"));
    });
    const std::string text = PdfText(QStringLiteral("pump.pdf"));
    EXPECT_THAT(text, HasSubstr("Eve Plant"));
    EXPECT_THAT(text, HasSubstr("CRC-32"));
    EXPECT_THAT(text, HasSubstr(DigestText(Sha256(ReadFile(QStringLiteral("machine.zfsm"))))));
    EXPECT_THAT(text, Not(HasSubstr("not saved")));
    TypeTarget(6, 1, QStringLiteral("1"));
    SavePdf(QStringLiteral("changed.pdf"));
    EXPECT_THAT(PdfText(QStringLiteral("changed.pdf")), HasSubstr("not saved"));
}

TEST_F(PrintWindow, AFileThatCannotBeWrittenIsToldAndTheWindowStays) {
    StartOn(PumpDocument());
    Answers.Do([](QWidget& dialog) {
        ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
        Press(dialog, "cmdPdf");
        auto& button = Named<QPushButton>(dialog, "cmdPdf");
        EXPECT_TRUE(QTest::qWaitFor([&] { return button.isEnabled(); }, kPdfTime));
        EXPECT_TRUE(dialog.isVisible());
        Press(dialog, "cmdClose");
    });
    Answers.ChooseFile(Path(QStringLiteral("no folder/a.pdf"))).Press(QMessageBox::Ok);
    Trigger("mnuFPrint");
    EXPECT_THAT(Answers.Seen().back().Text, HasSubstr("was not written"));
}

TEST_F(PrintWindow, AnEmptyDocumentIsPrinted) {
    Start();
    SavePdf(QStringLiteral("empty.pdf"));
    EXPECT_THAT(ReadFile(QStringLiteral("empty.pdf")), StartsWith("%PDF"));
}

} // namespace
} // namespace orvane
