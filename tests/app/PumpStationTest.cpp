// SPDX-License-Identifier: GPL-3.0-or-later
// A pump station of 12 states, 14 events and 36 transitions is drawn twice with real keys and presses:
// through the dialogs, as there was no other way once, and in the table and the cell pane. Both must come to
// the same document; what each way costs is counted and printed.
#include "kit/CodePane.h"
#include "support/ui/Controls.h"
#include "support/ui/TableFixture.h"

#include <QApplication>
#include <QDockWidget>

#include <array>
#include <cstdio>
#include <utility>

namespace orvane {
namespace {

constexpr auto kStates =
    std::to_array<const char*>({"Idle", "Filling", "Full", "Starting", "Running", "Stopping", "Draining",
                                "Dry", "Alarm", "Manual", "Testing", "Locked"});
constexpr auto kEvents =
    std::to_array<const char*>({"Start", "Stop", "High", "Low", "Empty", "Flow", "NoFlow", "Hot", "Reset",
                                "Key", "Test", "Done", "Lock", "Unlock"});
constexpr int kTransitions = 36;
constexpr int kActions = 10; // of them with an action

struct Transition {
    int Row;
    int State;
    int Target;
    bool Acts;
};

// Three for each state, below one another.
Transition TransitionAt(int number) {
    const int state = number / 3 + 1;
    const int row = kFirstEventRow + state % 4 + number % 3;
    return {row, state, (number * 5) % 12 + 1, number < kActions};
}

QString CodeOf(const QString& name) { return QStringLiteral(";") + name.toLower(); }

// What a way has cost. Texts are the same letters in both, so that the rest is what differs.
struct Cost {
    int Letters = 0;
    int Keys = 0;
    int Presses = 0; // of the mouse, each after pointing
    int Dialogs = 0;

    // In seconds by the keystroke model: a key 0.2, pointing 1.1, a button down and up 0.2. Hands that change
    // between keyboard and mouse, and thinking, are left out, which favours the presses.
    double Seconds() const { return 0.2 * (Letters + Keys) + 1.3 * Presses; }
    void Print(const char* way) const {
        std::printf("%s: %d letters, %d keys, %d presses, %d dialogs, %.0f s\n", way, Letters, Keys, Presses,
                    Dialogs, Seconds());
    }
};

class PumpStationTest : public TableFixture {
  protected:
    void Type(QWidget* field, const QString& text) {
        QTest::keyClicks(field, text);
        cost_.Letters += int(text.size());
    }
    // Each letter goes where the one before has led.
    void TypeHere(const QString& text) {
        for (const QChar letter : text)
            Type(Window().focusWidget(), letter);
    }
    void Key(int key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(Window().focusWidget(), Qt::Key(key), modifiers);
        QApplication::processEvents();
        ++cost_.Keys;
    }
    void PressCell(int row, int column) {
        Click(row, column);
        ++cost_.Presses;
    }
    // A dialog in which the code has the focus and the name is to be given too.
    void NameInDialog(int row, int column, const QString& name, const char* codePane) {
        InNextDialog(Answers, [&](QWidget& dialog) {
            ++cost_.Dialogs;
            Type(&Named<CodePane>(dialog, codePane), CodeOf(name));
            auto& field = Named<QLineEdit>(dialog, "txtName");
            QTest::mouseClick(&field, Qt::LeftButton);
            ++cost_.Presses;
            Type(&field, name);
            orvane::Press(dialog, "cmdOK");
            ++cost_.Presses;
        });
        PressCell(row, column);
    }
    void NameMachine() {
        InNextDialog(Answers, [&](QWidget& dialog) {
            ++cost_.Dialogs;
            auto& field = Named<QLineEdit>(dialog, "txtName");
            QTest::mouseClick(&field, Qt::LeftButton);
            ++cost_.Presses;
            Type(&field, QStringLiteral("PUMP"));
            orvane::Press(dialog, "cmdOK");
            ++cost_.Presses;
        });
        PressCell(0, 0);
    }
    void DrawInDialogs();
    void DrawInTable();
    void NameInPane(const QString& name);
    void WalkTo(int row, int state);

    Cost cost_;
};

void PumpStationTest::DrawInDialogs() {
    NameMachine();
    for (std::size_t state = 0; state < kStates.size(); ++state)
        NameInDialog(0, int(state) + 1, QString::fromLatin1(kStates[state]), "txtEntryCode");
    for (std::size_t event = 0; event < kEvents.size(); ++event)
        NameInDialog(kFirstEventRow + int(event), 0, QString::fromLatin1(kEvents[event]), "txtEventCode");
    for (int number = 0; number < kTransitions; ++number) {
        const Transition transition = TransitionAt(number);
        PressCell(transition.Row, transition.State);
        TypeHere(QString::number(transition.Target));
        Key(Qt::Key_Return);
        if (!transition.Acts)
            continue;
        Click(transition.Row, transition.State, Qt::RightButton);
        PoppedUp();
        cost_.Presses += 3; // the cell, the submenu, its item
        InNextDialog(Answers, [&](QWidget& dialog) {
            ++cost_.Dialogs;
            Type(&Named<QWidget>(dialog, "txtCode"), QStringLiteral(";act"));
            orvane::Press(dialog, "cmdOK");
            ++cost_.Presses;
        });
        Trigger("mnuEditTransAct");
    }
}

// Into the first field of the pane, a name and its code, and back.
void PumpStationTest::NameInPane(const QString& name) {
    Key(Qt::Key_F4);
    TypeHere(name);
    Key(Qt::Key_Tab);
    TypeHere(CodeOf(name));
    Key(Qt::Key_Return, Qt::ControlModifier);
    Key(Qt::Key_Escape);
}

void PumpStationTest::DrawInTable() {
    NameMachine();
    Window().activateWindow(); // a desktop does that when the dialog has closed
    QApplication::processEvents();
    Key(Qt::Key_Right); // from the machine to its first state
    for (const char* state : kStates) {
        NameInPane(QString::fromLatin1(state));
        Key(Qt::Key_Right);
    }
    Key(Qt::Key_Home, Qt::ControlModifier);
    Key(Qt::Key_Left);
    for (const char* event : kEvents) {
        NameInPane(QString::fromLatin1(event));
        Key(Qt::Key_Down);
    }
    for (int number = 0; number < kTransitions; ++number) {
        const Transition transition = TransitionAt(number);
        WalkTo(transition.Row, transition.State);
        TypeHere(QString::number(transition.Target));
        Key(Qt::Key_Return);
        if (!transition.Acts)
            continue;
        WalkTo(transition.Row, transition.State);
        Key(Qt::Key_F4);
        Key(Qt::Key_Tab);
        TypeHere(QStringLiteral(";act"));
        Key(Qt::Key_Return, Qt::ControlModifier);
        Key(Qt::Key_Escape);
    }
}

// By arrows, as a hand does.
void PumpStationTest::WalkTo(int row, int state) {
    const auto walk = [this](int from, int to, Qt::Key less, Qt::Key more) {
        for (; from != to; from += from < to ? 1 : -1)
            Key(from < to ? more : less);
    };
    const QModelIndex current = Grid()->currentIndex();
    walk(current.column(), state, Qt::Key_Left, Qt::Key_Right);
    walk(current.row(), row, Qt::Key_Up, Qt::Key_Down);
}

TEST_F(PumpStationTest, IsDrawnInTheTableWithHalfTheActionsAndAThirdOfTheDialogs) {
    StartOn(FsmDocument());
    DrawInDialogs();
    const FsmDocument first = SavedDocument();
    const Cost dialogs = std::exchange(cost_, {});
    StartOn(FsmDocument());
    DrawInTable();
    const FsmDocument second = SavedDocument();
    dialogs.Print("through dialogs");
    cost_.Print("in the table");
    for (const StateNumber state : StateNumbers()) {
        EXPECT_EQ(second.State(state).Name, first.State(state).Name) << state;
        EXPECT_EQ(second.State(state).EntryCode, first.State(state).EntryCode) << state;
        EXPECT_EQ(second.State(state).Targets, first.State(state).Targets) << state;
        EXPECT_EQ(second.State(state).Actions, first.State(state).Actions) << state;
    }
    for (const RowNumber row : EventRows())
        EXPECT_EQ(second.Event(row), first.Event(row)) << row;
    EXPECT_EQ(dialogs.Dialogs, 37);
    EXPECT_LE(3 * cost_.Dialogs, dialogs.Dialogs);
    EXPECT_LE(2 * (cost_.Seconds() - 0.2 * cost_.Letters), dialogs.Seconds() - 0.2 * dialogs.Letters);
}

} // namespace
} // namespace orvane
