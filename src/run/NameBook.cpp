// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/NameBook.h"

#include "run/NearestName.h"
#include "run/TestLexer.h"
#include "run/TestWriter.h"
#include "text/AnsiText.h"
#include "text/NumberText.h"

#include <algorithm>
#include <iterator>

namespace orvane::run {

struct NameBook::Kind {
    bool IsEvent;
    const char* Word;
    const char* Plural;
    NumberRange<int> Numbers; // of either kind
};

const NameBook::Kind NameBook::kStates = {false, "state", "states", {1, kStateCount}};
const NameBook::Kind NameBook::kEvents = {true, "event", "events", {kFirstEventRow, kLastRow}};

NameBook::NameBook(const FsmDocument& document, std::string documentName)
    : document_(document), documentName_(std::move(documentName)) {
    for (const Kind* kind : {&kStates, &kEvents}) {
        for (const int number : kind->Numbers) {
            const std::string name = NameAt(*kind, number);
            if (!name.empty())
                (kind->IsEvent ? events_ : states_)[name].push_back(number);
        }
    }
}

void NameBook::Slip(Place place, std::string text) {
    if (slips_.size() < kMostSlips)
        slips_.push_back({place, std::move(text)});
}

void NameBook::Remember(const NamesHead& head) {
    remembered_.insert(remembered_.end(), head.Entries.begin(), head.Entries.end());
}

void NameBook::AddInputNames(const std::vector<std::string>& names) {
    inputNames_.insert(inputNames_.end(), names.begin(), names.end());
}

std::optional<StateNumber> NameBook::State(const TestName& name) {
    const std::optional<int> found = Find(kStates, name);
    return found ? std::optional<StateNumber>(*found) : std::nullopt;
}

std::optional<RowNumber> NameBook::Event(const TestName& name) {
    const std::optional<int> found = Find(kEvents, name);
    return found ? std::optional<RowNumber>(*found) : std::nullopt;
}

std::string NameBook::NameAt(const Kind& kind, int number) const {
    const std::string& name = kind.IsEvent ? document_.Event(number).Name : document_.State(number).Name;
    return std::string(Trim(name));
}

const std::vector<int>& NameBook::Called(const Kind& kind, const std::string& text) const {
    static const std::vector<int> nobody;
    const auto& names = kind.IsEvent ? events_ : states_;
    const auto found = names.find(Trim(FromUtf8(text, kDelimiter))); // no name holds the delimiter
    return found == names.end() ? nobody : found->second;
}

std::optional<int> NameBook::Find(const Kind& kind, const TestName& name) {
    if (name.Number && name.Text.empty()) {
        if (kind.Numbers.Contains(*name.Number))
            return name.Number;
        Slip(name.At, std::string(kind.Plural) + " have the numbers " + NumberText(kind.Numbers.First()) +
                          " to " + NumberText(kind.Numbers.Last()));
        return std::nullopt;
    }
    const std::vector<int>& called = Called(kind, name.Text);
    if (called.size() == 1)
        return called.front();
    if (called.empty())
        return FindRenamed(kind, name);
    if (name.Number && std::find(called.begin(), called.end(), *name.Number) != called.end())
        return name.Number;
    std::string choice;
    for (const int number : called)
        choice += (choice.empty() ? "" : " or ") + NumberText(number) + ":" + QuotedWhereNeeded(name.Text);
    Slip(name.At, NumberText(std::ssize(called)) + " " + kind.Plural + " are called " + Quoted(name.Text) +
                      " in " + documentName_ + "; write " + choice);
    return std::nullopt;
}

// The name is recognised when it was recorded with a number under which now a name stands that is new.
std::optional<int> NameBook::FindRenamed(const Kind& kind, const TestName& name) {
    const auto remembers = [&](const std::string& text) {
        return std::find_if(remembered_.begin(), remembered_.end(), [&](const NamesHead::Entry& entry) {
            return entry.IsEvent == kind.IsEvent && entry.Name.Text == text;
        });
    };
    const auto entry = remembers(name.Text);
    const int number = entry == remembered_.end() ? 0 : entry->Name.Number.value_or(0);
    if (kind.Numbers.Contains(number)) {
        const std::string now = ToUtf8(NameAt(kind, number));
        if (!now.empty() && remembers(now) == remembered_.end()) {
            renamed_.push_back({kind.IsEvent, name, now});
            return number;
        }
    }
    if (slips_.size() >= kMostSlips)
        return std::nullopt;
    std::vector<std::string> candidates = kind.IsEvent ? inputNames_ : std::vector<std::string>();
    for (const auto& [called, numbers] : kind.IsEvent ? events_ : states_)
        candidates.push_back(ToUtf8(called));
    const char* orSignal = kind.IsEvent && !inputNames_.empty() ? " or signal" : "";
    Slip(name.At, std::string("no ") + kind.Word + orSignal + " is called " + Quoted(name.Text) + " in " +
                      documentName_ + DidYouMean(name.Text, candidates));
    return std::nullopt;
}

TestName NameBook::NameOfNumber(const Kind& kind, int number) const {
    TestName name = NameOf(ToUtf8(NameAt(kind, number)));
    if (name.Text.empty() || Called(kind, name.Text).size() > 1)
        name.Number = number;
    return name;
}

TestName NameBook::NameOfState(StateNumber state) const { return NameOfNumber(kStates, state.Number()); }
TestName NameBook::NameOfEvent(RowNumber row) const { return NameOfNumber(kEvents, row.Number()); }

} // namespace orvane::run
