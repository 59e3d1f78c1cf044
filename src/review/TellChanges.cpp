// SPDX-License-Identifier: GPL-3.0-or-later
#include "review/TellChanges.h"

#include "review/DocumentPair.h"
#include "review/LineDiff.h"
#include "review/Titles.h"
#include "text/NumberText.h"

#include <algorithm>

namespace orvane::review {

namespace {

class Teller {
  public:
    Teller(const Change& change, const DocumentPair& documents)
        : change_(change), old_(documents.Old), new_(documents.New) {}

    ToldChange Tell() {
        switch (change_.Kind) {
        case ChangeKind::MachineField:
            TellField("machine");
            break;
        case ChangeKind::EventAdded:
            TellWhat('+', Event(new_, change_.New) + " added", new_);
            break;
        case ChangeKind::EventRemoved:
            TellWhat('-', Event(old_, change_.Old) + " removed", old_);
            break;
        case ChangeKind::EventMoved:
            TellMove(Event(new_, change_.New), change_.Old.Row.Number());
            break;
        case ChangeKind::EventField:
            TellField(Event(new_, change_.New));
            break;
        case ChangeKind::StateAdded:
            TellWhat('+', State(new_, change_.New) + " added", new_);
            break;
        case ChangeKind::StateRemoved:
            TellWhat('-', State(old_, change_.Old) + " removed", old_);
            break;
        case ChangeKind::StateMoved:
            TellMove(State(new_, change_.New), change_.Old.State.Number());
            break;
        case ChangeKind::StateField:
            TellField(State(new_, change_.New));
            break;
        case ChangeKind::Target:
            told_.Text = Place() + ": -> " + ValueTitle(new_, change_.After) + Was();
            break;
        case ChangeKind::Action:
            told_.Text = Place() + ", action";
            TellCode();
            break;
        case ChangeKind::BlankWidth:
            told_.Text = "empty column " + NumberText(change_.New.State.Number()) +
                         ", width: " + ValueTitle(new_, change_.After) + Was();
            break;
        }
        if (change_.IsGuess)
            told_.Text += " (guessed)";
        return std::move(told_);
    }

  private:
    static std::string Event(const FsmDocument& document, Cell place) {
        return "event " + EventTitle(document, place.Row);
    }
    static std::string State(const FsmDocument& document, Cell place) {
        return "state " + StateTitle(document, place.State);
    }
    std::string Place() const {
        return StateTitle(new_, change_.New.State) + ", " + RowTitle(new_, change_.New.Row);
    }
    std::string Was() const { return " (was " + ValueTitle(old_, change_.Before) + ")"; }

    void TellMove(const std::string& what, int before) {
        told_.Sign = '>';
        told_.Text = what + " moved, was " + NumberText(before);
    }

    void TellField(const std::string& owner) {
        const auto* before = std::get_if<std::string>(&change_.Before);
        if (change_.Tag == tag::kName && !before->empty() && change_.After != FieldValue(std::string())) {
            told_.Text = owner + " renamed from " + OneLine(*before);
            return;
        }
        told_.Text = owner + ", " + std::string(change_.Name);
        if (IsCode(change_.Tag))
            TellCode();
        else
            told_.Text += ": " + ValueTitle(new_, change_.After) + Was();
    }

    void TellCode() {
        for (const std::string& line :
             UnifiedDiff(std::get<std::string>(change_.Before), std::get<std::string>(change_.After)))
            told_.Details.push_back(CodeLine(line));
    }

    // All that it holds, each line behind the sign.
    void TellWhat(char sign, std::string text, const FsmDocument& document) {
        told_.Sign = sign;
        told_.Text = std::move(text);
        const bool isEvent =
            change_.Kind == ChangeKind::EventAdded || change_.Kind == ChangeKind::EventRemoved;
        if (isEvent)
            TellFields<kEventFields>(document);
        else
            TellFields<kStateFields>(document);
        for (const CellContent& cell : change_.What.Cells) {
            const std::string place =
                isEvent ? StateTitle(document, cell.Place.State) : RowTitle(document, cell.Place.Row);
            Detail(place + (cell.Target == kNoState ? "" : ": -> " + StateTitle(document, cell.Target)));
            for (const std::string_view line : LinesOf(cell.Action))
                Detail("  " + CodeLine(line));
        }
    }

    template <const auto& kFields>
    void TellFields(const FsmDocument& document) {
        auto value = change_.What.Fields.begin();
        ForEachStoredField<kFields>([&](const auto& field) {
            const FieldValue& present = *value++;
            const auto* text = std::get_if<std::string>(&present);
            const bool isNothing =
                present == FieldValue(std::string()) || present == FieldValue(std::int32_t(0));
            if (isNothing || IsOfTheView(field) || field.File.Tag == tag::kName)
                return;
            if (!text || !IsCode(field.File.Tag))
                return Detail(std::string(field.Name) + ": " + ValueTitle(document, present));
            Detail(std::string(field.Name));
            for (const std::string_view line : LinesOf(*text))
                Detail("  " + CodeLine(line));
        });
    }

    void Detail(const std::string& line) { told_.Details.push_back(told_.Sign + line); }

    const Change& change_;
    const FsmDocument& old_;
    const FsmDocument& new_;
    ToldChange told_;
};

std::string NumbersText(int first, int last) {
    return NumberText(first) + (first == last ? "" : ".." + NumberText(last));
}

template <typename Number>
std::string Renumbered(const Pairing<Number>& pairing, const std::string& what) {
    std::string text;
    const auto shift = [&](Number number) {
        const bool counts =
            pairing.Numbers().Contains(number) && pairing.HasNew(number) && !pairing.HasMoved(number);
        return counts ? pairing.NewOf(number) - number : 0;
    };
    int count = 0;
    const Number end = pairing.Numbers().Last() + 1;
    for (Number first = pairing.Numbers().First(); first < end; ++first) {
        if (shift(first) == 0)
            continue;
        Number last = first;
        while (shift(last + 1) == shift(first))
            ++last;
        count += last - first + 1;
        text += (text.empty() ? "" : ", ") + NumbersText(first.Number(), last.Number()) +
                (first == last ? " is " : " are ") +
                NumbersText(first.Number() + shift(first), last.Number() + shift(first));
        first = last;
    }
    return text.empty() ? text : what + (count == 1 ? " " : "s ") + text;
}

} // namespace

ToldChange TellChange(const Change& change, const FsmDocument& oldOne, const FsmDocument& newOne) {
    return Teller(change, {oldOne, newOne}).Tell();
}

std::string TellRenumbering(const Matching& matching) {
    const std::string states = Renumbered(matching.States, "state");
    const std::string events = Renumbered(matching.Rows, "event");
    return states + (states.empty() || events.empty() ? "" : "; ") + events;
}

std::string CountText(std::size_t changes) {
    return NumberText(std::int64_t(changes)) + (changes == 1 ? " change" : " changes");
}

std::string DiffText(const ChangeList& list, const FsmDocument& oldOne, const FsmDocument& newOne,
                     const std::string& names) {
    if (list.IsEmpty())
        return {};
    std::string text = names + ": " + CountText(list.Changes.size()) + "\n";
    const std::string renumbering = TellRenumbering(list.Same);
    if (!renumbering.empty())
        text += "renumbered: " + renumbering + "\n";
    for (const Change& change : list.Changes) {
        const ToldChange told = TellChange(change, oldOne, newOne);
        text += told.Text + "\n";
        for (const std::string& line : told.Details)
            text += "  " + line + "\n";
    }
    return text;
}

} // namespace orvane::review
