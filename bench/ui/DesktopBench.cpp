// SPDX-License-Identifier: GPL-3.0-or-later
// What the user waits for, on the document at the limit, beside the engine's own part in it; and the start of
// the program beside that of a program with an empty window. The document has a file, so every change writes
// the program beside it. Everything is painted when the clock stops.
#include "ChildProcess.h"
#include "SampleDocuments.h"
#include "codegen/CodeGenerator.h"
#include "core/DocumentReader.h"
#include "core/DocumentWriter.h"
#include "core/TightPacked.h"
#include "core/TimingMode.h"
#include "diagram/ui/picDiagram.h"
#include "ui/MedianTable.h"
#include "ui/TableDriver.h"

#include <QAction>
#include <QApplication>
#include <QDeadlineTimer>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <memory>

namespace orvane {
namespace {

constexpr int kRounds = 51;
constexpr int kStarts = 31;

// Keeps results alive that nothing looks at.
std::size_t sink = 0;

Timed Generating(const FsmDocument& document) {
    return [&document] {
        return TimeOf([&] { sink += GenerateProgram(document, {"/plant.zfsm", "now"}).Text.size(); });
    };
}

Timed PackingAndGenerating(const FsmDocument& document) {
    return [&document] {
        return TimeOf([&] {
            sink += Pack(document).size();
            sink += GenerateProgram(document, {"/plant.zfsm", "now"}).Text.size();
        });
    };
}

Timed Reading(const std::string& bytes) {
    return [bytes] { return TimeOf([&] { sink += ReadDocument(bytes).Messages.size(); }); };
}

// A layout in a layout is told of a change one turn of the event loop after the inner one, and what has moved
// is painted again: the clock stops when nothing is left to be done. What an operation before has left, such
// as a window that is active again, is not counted.
void Settle() {
    constexpr int turns = 8; // of which an empty one takes microseconds
    for (int turn = 0; turn < turns; ++turn)
        QApplication::processEvents();
}

double TimeOfOperation(const std::function<void()>& work) {
    Settle();
    return TimeOf([&work] {
        work();
        Settle();
    });
}

// A transition that is typed into the cell, another one each time, also of copies: what is typed again
// changes nothing.
Timed Typing(TableDriver& driver, int row, int column, int mostStates = kStateCount) {
    return [&driver, row, column, mostStates, target = std::make_shared<int>(1)] {
        *target = *target % mostStates + 1;
        driver.BeginTarget(row, column, QString::number(*target));
        return TimeOfOperation([&] { driver.CommitTarget(); });
    };
}

void AddTyping(MedianTable& table, TableDriver& driver, const FsmDocument& document) {
    const std::string engine = "pack + generate";
    table.Add("typed transition", engine, 3, Typing(driver, 20, 50), PackingAndGenerating(document));
    table.Add(
        "undo", engine, 6, [&driver] { return TimeOfOperation([&] { driver.Trigger("mnuUndo"); }); },
        PackingAndGenerating(document));
    table.Add(
        "letter in the code segment", "generate", 3,
        [&driver] {
            double time = 0;
            driver.UseGeneralCodeEditor([&] {
                driver.TypeLetter("txtCodeSeg"); // the dialog has only just come up
                time = TimeOfOperation([&] { driver.TypeLetter("txtCodeSeg"); });
            });
            return time;
        },
        Generating(document));
}

// A limit that has to be computed is not known.
FsmDocument RunnableAtTheLimit() {
    FsmDocument document = DocumentAtTheLimit();
    for (const StateNumber state : StateNumbers()) {
        document.State(state).TimingMode = kStartConstant;
        document.State(state).TimeConst = "1000";
    }
    return document;
}

void AddRunning(MedianTable& table, TableDriver& driver, const FsmDocument& document) {
    constexpr int steps = 200'000;
    driver.PlaySteps(steps);
    const Timed type = Typing(driver, 20, 50);
    table.Add("typed transition, a run of 200,000 steps open", "pack + generate", 12, type,
              PackingAndGenerating(document));
    // Of two steps the second counts: the first one after an edit plays the whole run again.
    const Timed step = [&driver] {
        driver.Trigger("mnuStep");
        return TimeOfOperation([&] { driver.Trigger("mnuStep"); });
    };
    const Timed repaint = [&driver] { return TimeOf([&] { driver.RepaintTable(); }); };
    table.Add("step of that run, with the table as its picture", "repaint", 4, step, repaint);
    const Timed stepAtOnce = [&driver, type] {
        type();
        return TimeOfOperation([&] { driver.Trigger("mnuStep"); });
    };
    table.Add("step right after an edit of that run", "repaint", 60, stepAtOnce, repaint);
}

void AddFindings(MedianTable& table, TableDriver& driver, const FsmDocument& document) {
    driver.Trigger("mnuViewFindings");
    table.Add("typed transition, findings listed", "pack + generate", 4, Typing(driver, 20, 50),
              PackingAndGenerating(document));
}

// A document without changes: what is discarded waits for the disk, and the first change after that begins a
// journal.
void AddOpening(MedianTable& table, TableDriver& driver, const FsmDocument& document) {
    table.Add(
        "open", "read", 5, [&driver] { return TimeOfOperation([&] { driver.Open(); }); },
        Reading(WriteDocument(document)));
}

// Of two transitions the second counts: the first one after the switch begins a journal with all that there
// is.
void AddJournal(MedianTable& table, TableDriver& driver, const FsmDocument&) {
    const auto type = [&driver, typing = Typing(driver, 21, 50)](bool keepsJournal) -> Timed {
        return [&driver, keepsJournal, typing] {
            driver.KeepJournal(keepsJournal);
            typing();
            return typing();
        };
    };
    table.Add("typed transition", "the same without journal", 1.1, type(true), type(false));
}

// A key to the table and the pane, both painted, beside the same with the pane hidden.
void AddCellPane(MedianTable& table, TableDriver& driver, const FsmDocument&) {
    const auto type = [&driver, typing = Typing(driver, 22, 50)](bool withPane) -> Timed {
        return [&driver, withPane, typing] {
            driver.ShowPane("mnuViewCell", withPane);
            return typing();
        };
    };
    const auto step = [&driver](bool withPane) -> Timed {
        return [&driver, withPane] {
            driver.ShowPane("mnuViewCell", withPane);
            const double time = TimeOfOperation([&] { driver.StepRight(); });
            driver.StepLeft();
            return time;
        };
    };
    table.Add("typed transition with the cell pane", "the same without the pane", 1.5, type(true),
              type(false));
    table.Add("another cell with the cell pane", "a transition typed without", 1.5, step(true), type(false));
}

bool ShowsWholePicture() {
    const QWidgetList widgets = QApplication::allWidgets();
    return std::any_of(widgets.begin(), widgets.end(), [](const QWidget* widget) {
        const auto* picture = qobject_cast<const picDiagram*>(widget);
        return picture != nullptr && picture->Picture().ShownPart() == diagram::Part::Whole;
    });
}

// A transition to the table and the picture of the whole machine, laid out and painted.
void AddDiagram(MedianTable& table, TableDriver& driver, const FsmDocument& document) {
    driver.Trigger("mnuViewDiagram");
    driver.Trigger("mnuPictureAll");
    const QDeadlineTimer end(5000);
    while (!ShowsWholePicture() && !end.hasExpired())
        QApplication::processEvents();
    if (!ShowsWholePicture())
        throw std::runtime_error("the picture was not laid out");
    table.Add("typed transition, " + std::to_string(diagram::MergedEdges(document)) + " lines in the diagram",
              "pack + generate", 60, Typing(driver, 50, 6, 12), PackingAndGenerating(document));
}

// What must be there before the next picture of a screen that shows 60 in a second.
Timed Frame() {
    return [] { return 1000.0 / 60; };
}

void AddViewing(MedianTable& table, TableDriver& driver, const FsmDocument&) {
    const auto zoomsIn = std::make_shared<bool>(true);
    table.Add(
        "zoom by one step", "a frame", 1,
        [&driver, zoomsIn] {
            *zoomsIn = !*zoomsIn;
            return TimeOfOperation([&] { driver.Trigger(*zoomsIn ? "mnuZoomIn" : "mnuZoomOut"); });
        },
        Frame());
    const auto forward = std::make_shared<bool>(false);
    table.Add(
        "scroll by a screen", "a frame", 1,
        [&driver, forward] {
            *forward = !*forward;
            return TimeOfOperation([&] { driver.Scroll(*forward); });
        },
        Frame());
    table.Add(
        "a letter to find, with the list shown", "a frame", 1,
        [&driver] {
            driver.ClearFind();
            return TimeOfOperation([&] { driver.TypeFind('e'); });
        },
        Frame());
}

struct StructuralEdit {
    const char* Name;
    const char* Item;
    const char* Before; // makes room for it, unmeasured; null when there is room
    int Row;
    int Column;
};

// Structural edits need room: a state and an event less than the limit. Each is undone, so that there is room
// again.
void AddStructure(MedianTable& table, TableDriver& driver, const FsmDocument& document) {
    for (const StructuralEdit& edit :
         {StructuralEdit{"insert state", "mnuInsertState", nullptr, kHeadRow, 50},
          StructuralEdit{"delete state", "mnuDeleteState", "mnuInsertState", kHeadRow, 50},
          StructuralEdit{"insert event", "mnuInsertEvent", nullptr, 20, 0},
          StructuralEdit{"delete event", "mnuDeleteEvent", "mnuInsertEvent", 20, 0}}) {
        const auto run = [&driver, edit] {
            if (edit.Before != nullptr) {
                driver.PressForMenu(edit.Row, edit.Column);
                driver.Trigger(edit.Before);
            }
            driver.PressForMenu(edit.Row, edit.Column);
            const double time = TimeOfOperation([&] { driver.Trigger(edit.Item); });
            while (driver.Item("mnuUndo")->isEnabled())
                driver.Trigger("mnuUndo");
            return time;
        };
        table.Add(edit.Name, "pack + generate", 4, run, PackingAndGenerating(document));
    }
}

// One window at a time, so that none takes the focus from another.
template <typename AddOperations>
void MeasureWindow(const FsmDocument& document, const AddOperations& addOperations, bool edits = true) {
    const QTemporaryDir state; // nothing is there to be recovered
    qputenv("XDG_STATE_HOME", state.path().toLocal8Bit());
    TableDriver driver(document);
    MedianTable table;
    addOperations(table, driver, document);
    table.Measure(kRounds);
    if (edits && driver.ProgramSize() == 0)
        throw std::runtime_error("no program was written");
    table.Print(std::cout);
}

void MeasureStart(const std::filesystem::path& programs) {
    const QTemporaryDir folder;
    const std::string document = folder.filePath(QStringLiteral("limit.zfsm")).toStdString();
    std::ofstream(document, std::ios::binary) << WriteDocument(DocumentAtTheLimit());
    const auto start = [&](std::vector<std::string> command) -> Timed {
        command.front() = programs / command.front();
        return [command] { return TimeOfCommand(command, "/dev/null"); };
    };
    // No place for a journal is where no home is told.
    const auto startAt = [&](const std::string& home) {
        const std::string program = programs / "orvane_start";
        return start({"/usr/bin/env", "XDG_STATE_HOME=", "HOME=" + home, program, document});
    };
    MedianTable table;
    table.Add("start on a document", "the same without journal", 1.02, startAt(folder.path().toStdString()),
              startAt("nowhere"));
    table.Add("start", "empty window", 1.5, start({"orvane_start"}), start({"empty_start"}));
    table.Add("start", "window with one menu", 1.5, start({"orvane_start"}), start({"empty_start", "File"}));
    table.Add("start on a document", "window with menus and a filled table", 1.1,
              start({"orvane_start", document}), start({"empty_start", "File", "Edit", "View", "Help"}));
    table.Add("start on a document", "empty window", 1.5, start({"orvane_start", document}),
              start({"empty_start"}));
    table.Measure(kStarts);
    table.Print(std::cout);
}

} // namespace
} // namespace orvane

// Arguments are those of the other benchmarks and mean nothing here.
int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QTemporaryDir applicationData;
    qputenv("APPDATA", applicationData.path().toLocal8Bit());
    qputenv("XDG_CONFIG_HOME", applicationData.path().toLocal8Bit()); // the user's settings stay as they are
    qputenv("XDG_STATE_HOME", applicationData.path().toLocal8Bit());  // and so does what can be recovered
    const QApplication application(argc, argv);
    std::cout << "| operation | time (ms) | floor | floor (ms) | ratio | aim |\n"
              << "| --- | ---: | --- | ---: | ---: | ---: |\n";
    using namespace orvane;
    MeasureWindow(DocumentAtTheLimit(), AddTyping);
    MeasureWindow(DocumentAtTheLimit(), AddFindings);
    MeasureWindow(RunnableAtTheLimit(), AddRunning);
    MeasureWindow(DocumentAtTheLimit(), AddJournal);
    MeasureWindow(DocumentAtTheLimit(), AddCellPane);
    for (const auto& [states, lines] :
         {std::pair(12, 24), std::pair(30, 60), std::pair(100, 150), std::pair(100, 450)})
        MeasureWindow(MachineOfLines(states, lines), AddDiagram);
    MeasureWindow(DocumentAtTheLimit(), AddViewing, false);
    MeasureWindow(DocumentAtTheLimit(), AddOpening, false);
    MeasureWindow(SampleDocument(kStateCount - 1, kLastRow - kFirstEventRow), AddStructure);
    MeasureStart(std::filesystem::path(argv[0]).parent_path());
    return 0;
}
