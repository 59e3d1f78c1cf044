// SPDX-License-Identifier: GPL-3.0-or-later
// Follows the tutorial of the help pages step by step: presses the keys that stand in it, types its texts,
// chooses its commands, and compares what it says that one will see. So the page cannot say what is not so.
#include "support/FileBytes.h"
#include "support/Folders.h"
#include "support/ui/Controls.h"
#include "support/ui/TableFixture.h"

#include <QApplication>
#include <QFileDialog>
#include <QLabel>
#include <QRegularExpression>

namespace orvane {
namespace {

// What a step of the page asks for.
struct Deed {
    enum class Kind { Keys, Text, Command, Look };

    Kind What;
    QString Of; // the command's or the label's object name
    QString Text;
};

// <kbd>s with a plus between them are pressed together.
std::vector<Deed> DeedsOf(const QString& page) {
    static const QRegularExpression deed(QStringLiteral(
        "(?<keys><kbd>[^<]+</kbd>(\\+<kbd>[^<]+</kbd>)*)|<code>(?<text>[^<]+)</code>|"
        "<i data-item=\"(?<item>\\w+)\">|<output data-of=\"(?<label>\\w+)\">(?<seen>[^<]+)</output>"));
    static const QRegularExpression keyCap(QStringLiteral("</?kbd>"));
    std::vector<Deed> deeds;
    for (auto found = deed.globalMatch(page); found.hasNext();) {
        const QRegularExpressionMatch match = found.next();
        const auto part = [&match](const char* name) { return match.captured(QLatin1String(name)); };
        if (match.hasCaptured(QStringLiteral("keys")))
            deeds.push_back({Deed::Kind::Keys, {}, part("keys").remove(keyCap)});
        else if (match.hasCaptured(QStringLiteral("text")))
            deeds.push_back({Deed::Kind::Text, {}, part("text")});
        else if (match.hasCaptured(QStringLiteral("item")))
            deeds.push_back({Deed::Kind::Command, part("item"), {}});
        else
            deeds.push_back({Deed::Kind::Look, part("label"), part("seen").simplified()});
    }
    return deeds;
}

class TutorialTest : public TableFixture {
  protected:
    // A deed may open a dialog, which takes the deeds that follow until it is closed.
    void Follow(const std::vector<Deed>& deeds) {
        deeds_ = deeds;
        while (next_ < deeds_.size()) {
            const Deed& deed = deeds_[next_++];
            if (OpensDialog(deed))
                Answers.Do([this](QWidget& dialog) { FollowIn(dialog); });
            Do(deed);
            Window().activateWindow(); // a desktop does that when a dialog has closed
            QApplication::processEvents();
        }
    }

  private:
    static bool OpensDialog(const Deed& deed) {
        return deed.Of == QStringLiteral("mnuSaveAsTest") || deed.Text == QStringLiteral("Ctrl+S") ||
               deed.Text == QStringLiteral("Ctrl+G") || deed.Text == QStringLiteral("F2");
    }
    void FollowIn(QWidget& dialog) {
        EXPECT_TRUE(QTest::qWaitFor([&dialog] { return dialog.isAncestorOf(Focus()); }));
        if (auto* files = qobject_cast<QFileDialog*>(&dialog))
            files->setDirectory(Path({})); // another test may have left another folder
        while (dialog.isVisible() && next_ < deeds_.size())
            Do(deeds_[next_++]);
    }
    void Do(const Deed& deed) {
        SCOPED_TRACE("step " + std::to_string(next_) + ": " + deed.Of.toStdString() + " " +
                     deed.Text.toStdString());
        switch (deed.What) {
        case Deed::Kind::Keys:
            PressTogether(deed.Text);
            break;
        case Deed::Kind::Text:
            for (const QChar letter : deed.Text)
                QTest::keyClick(Focus(), letter.toLatin1());
            break;
        case Deed::Kind::Command:
            Trigger(deed.Of.toLatin1());
            break;
        case Deed::Kind::Look:
            EXPECT_EQ(Find<QLabel>(deed.Of.toLatin1())->text().toStdString(), deed.Text.toStdString());
            break;
        }
        QApplication::processEvents();
    }
    void PressTogether(const QString& keys) {
        const QKeyCombination combination = QKeySequence(keys)[0];
        ASSERT_NE(combination.key(), Qt::Key_unknown) << keys.toStdString();
        QTest::keyClick(Focus(), combination.key(), combination.keyboardModifiers());
    }
    static QWidget* Focus() { return QApplication::focusWidget(); }

    std::vector<Deed> deeds_;
    std::size_t next_ = 0;
};

// What stands between the marks.
QString Inside(const QString& text, const QString& begin, const QString& end) {
    return text.section(begin, 1).section(end, 0, 0);
}

TEST_F(TutorialTest, EveryStepDoesWhatThePageSays) {
    const QString page =
        Inside(QString::fromStdString(FileBytes(std::string(test::kHelpFolder) + "/tutorial.htm")),
               QStringLiteral("<main>"), QStringLiteral("</main>"));
    Start({QStringLiteral("/nosplash")});
    Window().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&Window()));
    Follow(DeedsOf(page));
    EXPECT_EQ(ReadFile(QStringLiteral("PMP.ztest")),
              Inside(page, QStringLiteral("<pre id=\"test\">"), QStringLiteral("</pre>"))
                  .replace(QStringLiteral("&gt;"), QStringLiteral(">"))
                  .toStdString());
}

} // namespace
} // namespace orvane
