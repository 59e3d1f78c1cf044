// SPDX-License-Identifier: GPL-3.0-or-later
#include "find/Rename.h"

#include "codegen/LabelClashes.h"
#include "find/LostTimers.h"
#include "find/PlaceText.h"
#include "find/Search.h"
#include "find/WordBorders.h"
#include "text/AnsiText.h"
#include "text/NumberText.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace orvane::find {

namespace {

// The part of the plan that says no, or what to think of.
class Adviser {
  public:
    Adviser(const FsmDocument& document, const Subject& subject, const std::string& newName)
        : document_(document), subject_(subject), newName_(newName) {}

    std::string Refusal() const;
    std::vector<std::string> Notes(const std::vector<TextUse>& uses);

  private:
    void TellSameName();
    void TellSameTimer();
    void TellCharacters();
    void TellSameWord();
    void TellClashes(const FsmDocument& renamed);
    void TellLostTimers(const FsmDocument& renamed);
    bool IsInLabels() const {
        return !std::holds_alternative<OfWord>(subject_) && !std::holds_alternative<OfEvent>(subject_);
    }

    const FsmDocument& document_;
    const Subject& subject_;
    const std::string& newName_;
    std::vector<std::string> notes_;
};

std::string Adviser::Refusal() const {
    if (Trim(newName_).empty())
        return "Type the new name";
    if (std::string fault = FaultOfText(newName_); !fault.empty())
        return fault;
    const auto* timer = std::get_if<OfTimer>(&subject_);
    if (timer != nullptr && Trim(timer->Id).empty())
        return "The default timer has no name; give the states that use it a timer I.D.";
    if (newName_ == NameOf(document_, subject_))
        return "That is the name it has";
    return {};
}

std::vector<std::string> Adviser::Notes(const std::vector<TextUse>& uses) {
    TellSameName();
    TellSameTimer();
    TellCharacters();
    TellSameWord();
    FsmDocument renamed = document_;
    Apply(renamed, SureChanges(uses));
    TellClashes(renamed);
    TellLostTimers(renamed);
    return std::move(notes_);
}

void Adviser::TellSameName() {
    const auto tell = [this](Cell other) {
        notes_.push_back(CellTitle(document_, other) + " has this name already");
    };
    if (const auto* own = std::get_if<OfState>(&subject_)) {
        for (const StateNumber state : StateNumbers()) {
            if (state != own->State && document_.State(state).Name == newName_)
                tell({kHeadRow, state});
        }
    }
    if (const auto* own = std::get_if<OfEvent>(&subject_)) {
        for (const RowNumber row : EventRows()) {
            if (row != own->Row && document_.Event(row).Name == newName_)
                tell({row, kNoState});
        }
    }
}

void Adviser::TellSameTimer() {
    if (!std::holds_alternative<OfTimer>(subject_))
        return;
    const auto hasIt = [this](StateNumber state) {
        return Trim(document_.State(state).TimerId) == Trim(newName_);
    };
    if (std::any_of(StateNumbers().begin(), StateNumbers().end(), hasIt))
        notes_.push_back("There is a timer " + newName_ + " already: both would be one timer");
}

void Adviser::TellCharacters() {
    if (!IsInLabels())
        return;
    if (std::holds_alternative<OfState>(subject_) && newName_.find(' ') != std::string::npos) {
        notes_.push_back("A name with a blank is left out of the state's labels");
        return;
    }
    const auto odd =
        std::find_if(newName_.begin(), newName_.end(), [](char c) { return !IsOfWord(c) && c != ' '; });
    if (odd != newName_.end())
        notes_.push_back("The character " + std::string(1, *odd) +
                         " would stand in labels, which the assembler may not take");
}

void Adviser::TellSameWord() {
    const Literal word{newName_, true, true};
    std::size_t count = 0;
    for (const Hit& hit : Search(document_, Pattern(word)).Hits)
        count += KindOf(hit.Place).IsCode ? 1 : 0;
    if (count > 0)
        notes_.push_back("The code has the word " + newName_ + " already, in " + NumberText(count) +
                         (count == 1 ? " place" : " places"));
}

// Labels that stand twice with the new name and did not before.
void Adviser::TellClashes(const FsmDocument& renamed) {
    const std::vector<std::string> before = LabelClashes(document_);
    const std::vector<std::string> after = LabelClashes(renamed);
    std::vector<std::string> clashes;
    std::set_difference(after.begin(), after.end(), before.begin(), before.end(),
                        std::back_inserter(clashes));
    if (after.size() <= before.size())
        return;
    for (const std::string& label : clashes)
        notes_.push_back("The program would have the label " + label + " twice");
}

// An id that is the tail of one before it gets no definition (codegen/TimerList.h).
void Adviser::TellLostTimers(const FsmDocument& renamed) {
    const std::vector<LostTimer> after = LostTimers(renamed);
    if (after.size() <= LostTimers(document_).size())
        return;
    for (const LostTimer& lost : after)
        notes_.push_back("The program would not define the timer " + lost.Id +
                         ", because it is the tail of " + lost.Before + ", which comes first");
}

TextChange ChangeOf(const TextUse& use) { return {use.Place, use.Start, use.Length, use.After, use.IsSure}; }

} // namespace

RenamePlan PlanRename(const FsmDocument& document, const Subject& subject, const std::string& newName) {
    RenamePlan plan;
    Adviser adviser(document, subject, newName);
    plan.Refusal = adviser.Refusal();
    plan.Uses = TextUsesOf(document, subject, newName);
    std::erase_if(plan.Uses, [&](const TextUse& use) {
        return TextAt(document, use.Place).compare(use.Start, use.Length, use.After) == 0;
    });
    std::stable_partition(plan.Uses.begin(), plan.Uses.end(),
                          [](const TextUse& use) { return use.Kind == UseKind::Name; });
    if (plan.Refusal.empty())
        plan.Notes = adviser.Notes(plan.Uses);
    return plan;
}

std::vector<TextChange> AllChanges(const std::vector<TextUse>& uses) {
    return ChosenChanges(uses, std::vector<bool>(uses.size(), true));
}

std::vector<TextChange> ChosenChanges(const std::vector<TextUse>& uses, const std::vector<bool>& chosen) {
    std::vector<TextChange> changes;
    for (std::size_t i = 0; i < uses.size(); ++i) {
        if (chosen.at(i) || uses[i].Kind == UseKind::Name)
            changes.push_back(ChangeOf(uses[i]));
    }
    return changes;
}

std::vector<TextChange> SureChanges(const std::vector<TextUse>& uses) {
    std::vector<bool> sure;
    for (const TextUse& use : uses)
        sure.push_back(use.IsSure);
    return ChosenChanges(uses, sure);
}

} // namespace orvane::find
