// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editors/PlaceFields.h"
#include "editors/TimingOptions.h"
#include "kit/Pane.h"
#include "text/Vocabulary.h"

#include <variant>
#include <vector>

class QGroupBox;
class QLabel;
class QScrollArea;
class QVBoxLayout;

namespace orvane {

class CodePane;
class DocumentLineEdit;
class DocumentTextEdit;
class TimeoutPage;

// Everything of one place of the table beside it: the transition, the event and the state, each in fields
// that can be edited. It holds what is typed and knows nothing of undo: whoever owns it takes that when it is
// told.
class dckCell : public Pane {
    Q_OBJECT

  public:
    dckCell(const Vocabulary& words, QWidget* parent);

    // Shows the place as the document has it. A field that has it already keeps its caret and what undo it
    // has of its own; one that was edited and is no other in the document stays as it was typed.
    void ShowPlace(const FsmDocument& document, Cell place);
    Cell Place() const { return place_; }

    // The fields as the document had them when they were last shown or taken, and as they are now. The timing
    // mode is another one only when the options make one.
    const PlaceFields& Shown() const { return shown_; }
    PlaceFields Typed() const;
    void MarkTaken(const PlaceFields& typed) { shown_ = typed; }
    // Options of the timeout that make no mode yet, because the limit is missing.
    TimingProblem Unfinished() const;

    // To the first field of what the place has.
    void TakeFocus() override;

  Q_SIGNALS:
    void Edited();    // by a letter
    void FieldLeft(); // or ended: what was edited should be taken
    void CharactersLeftOut(const QString& characters);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    using Editor = std::variant<DocumentLineEdit*, DocumentTextEdit*, CodePane*>;
    struct Field {
        std::string PlaceFields::*Member;
        Editor Control;
    };

    QGroupBox* BuildTransition(const Vocabulary& words);
    QGroupBox* BuildEvent(const Vocabulary& words);
    QGroupBox* BuildState(const Vocabulary& words);
    void AddKeys();
    void AddLine(QVBoxLayout& group, const char* name, const QString& caption,
                 std::string PlaceFields::*member);
    void AddPane(QVBoxLayout& group, const char* name, const QString& caption, const Vocabulary& words,
                 std::string PlaceFields::*member);
    void Connect(const Field& field);
    void ShowParts(const FsmDocument& document);
    void SetTiming(std::int32_t mode);
    bool TakeBack(QObject& control);
    bool IsEndOfField(const QEvent& event) const;

    QLabel* lblCell;
    QScrollArea* scroller_ = nullptr;
    QGroupBox* fraTransition;
    QGroupBox* fraEvent;
    QGroupBox* fraState;
    TimeoutPage* timeout_ = nullptr;
    std::vector<Field> fields_;
    Cell place_;
    PlaceFields shown_;
    TimingOptions
        shownOptions_; // as they stood for the timing mode; what the user has not touched says nothing
    bool filling_ = false;
};

} // namespace orvane
