// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/DocumentWriter.h"
#include "support/ui/TableFixture.h"
#include "text/AnsiText.h"

namespace orvane {
namespace {

class ForeignDocument : public TableFixture {
  protected:
    static FsmDocument Doors() {
        FsmDocument document = PumpDocument();
        document.State(1).Name = "\xFC"; // short: the table cuts long names
        return document;
    }
    void StartOnUtf8(QMessageBox::StandardButton answer) {
        Answers.Press(answer);
        StartOnBytes(ToUtf8(WriteDocument(Doors())));
    }
};

TEST_F(ForeignDocument, OneInUtf8IsReadAsSuchWhenTheUserSaysYes) {
    StartOnUtf8(QMessageBox::Yes);
    EXPECT_EQ(Text(0, 1), "1:\xC3\xBC");
    ASSERT_EQ(Answers.Seen().size(), 1u);
    EXPECT_TRUE(Answers.Seen()[0].Text.starts_with("The document\r\n"));
    EXPECT_EQ(WriteDocument(SavedDocument()), WriteDocument(Doors()));
}

TEST_F(ForeignDocument, NoReadsItAsItStands) {
    StartOnUtf8(QMessageBox::No);
    EXPECT_EQ(Text(0, 1), "1:\xC3\x83\xC2\xBC\xC3\x82");
}

TEST_F(ForeignDocument, ConflictMarkersAreToldWithTheirLines) {
    Answers.Press(QMessageBox::Ok);
    StartOnBytes(WriteDocument(Doors()) + "<<<<<<< HEAD\r\n=======\r\n>>>>>>> theirs\r\n");
    ASSERT_EQ(Answers.Seen().size(), 1u);
    const std::string lines = WriteDocument(Doors());
    const auto line = std::count(lines.begin(), lines.end(), '\n') + 1;
    EXPECT_NE(
        Answers.Seen()[0].Text.find("lines " + std::to_string(line) + " and " + std::to_string(line + 2)),
        std::string::npos)
        << Answers.Seen()[0].Text;
}

} // namespace
} // namespace orvane
