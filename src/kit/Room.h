// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Cell.h"

#include <QObject>
#include <QPoint>

#include <span>

class QMainWindow;

namespace orvane {

class Session;
struct Vocabulary;
enum class Command : unsigned char;
enum class ObserverRank;
struct Change;
struct CommandEntry;
struct CommandLine;
struct TextPiece;
struct VersionsToCompare;

// What every room is made from; all of it outlives the room.
struct RoomPlace {
    Session& Open;
    const Vocabulary& Words;
    QMainWindow& Window; // where the room may put a widget, and over which its questions come up
};

// A part of the program that the user goes into: the table, an editor, the builder. The main window has a
// list of rooms and knows nothing of what is inside; a room knows the session, and no other room. What it
// wants of others it asks for by signals.
class Room : public QObject {
    Q_OBJECT

  public:
    using QObject::QObject;

    // The commands that Run takes.
    virtual std::span<const Command> Commands() const { return {}; }
    virtual void Run(Command) {}
    // Runs before any command of any room: what is being typed is taken or dropped, as the command asks.
    virtual void Prepare(const CommandEntry&) {}

    // Changes of the document, in the order of the ranks. A room that does not listen is not told, and costs
    // nothing; it looks at the session when it is shown.
    virtual ObserverRank Rank() const = 0;
    virtual bool Listens() const = 0;
    virtual void Told(const Change& change) = 0;

    // The program has started; rooms start in their order.
    virtual void Start(const CommandLine&) {}
    // Somebody asks for this place to be shown, or to be edited: (0..3, state) is a state, (row, 0) an event,
    // (0, 0) what belongs to the machine as a whole, (4..54, state) a transition.
    virtual void ShowPlace(Cell) {}
    virtual void EditPlace(Cell) {}
    // The same with a piece of a text chosen in its field.
    virtual void EditPiece(const TextPiece&) {}
    // The user says that the event of this row, 6..54, happens.
    virtual void FireEvent(RowNumber) {}
    // Somebody asks for this document to be opened, after the question about unsaved work.
    virtual void OpenDocument(const QString&) {}
    // Somebody asks what is different between two versions of a document.
    virtual void CompareVersions(const VersionsToCompare&) {}
    // Whether another document may take the place of this one, as far as this room is concerned.
    virtual bool MayLeave() { return true; }
    // Whether the program may end as far as this room is concerned, and then what it has to do for that.
    virtual bool MayClose() { return MayLeave(); }
    virtual void Close() {}
    // The program is ended from outside and nobody can be asked: what is not saved has to be safe when this
    // returns.
    virtual void Preserve() {}

  Q_SIGNALS:
    void PlaceChosen(orvane::Cell place);
    void EditWanted(orvane::Cell place);
    void PieceWanted(const orvane::TextPiece& piece);
    void EventFired(orvane::RowNumber row);
    void DocumentWanted(const QString& path);
    void CommandWanted(orvane::Command command);
    // The pane that the command shows and hides is to be seen from now on, or no more.
    void PaneTurned(orvane::Command toggle, bool shown);
    void CompareWanted(const orvane::VersionsToCompare& versions);
    void MenuWanted(orvane::Command menu, const QPoint& globalPosition);
    // The open document is about to be left for another one: asks the user about unsaved work. The answer is
    // there when the signal returns.
    void LeaveWanted(bool& mayLeave);
    // Asks all rooms whether the document may be left; clears the answer when one says no.
    void LeaveAsked(bool& mayLeave);
    // A line for the status bar.
    void Said(const QString& text);
};

} // namespace orvane
