// SPDX-License-Identifier: GPL-3.0-or-later
#include "find/TextUses.h"

#include "find/GeneratedLabels.h"
#include "find/LabelFinder.h"
#include "find/LiteralSearch.h"
#include "find/WordBorders.h"
#include "text/AnsiText.h"
#include "text/ZorlanScanner.h"

#include <algorithm>
#include <optional>

namespace orvane::find {

namespace {

// A text of code told apart from its comments and strings, when that is first asked for.
class CodeOf {
  public:
    CodeOf(std::string_view text, bool isCode, const ZorlanWords& words)
        : text_(text), isCode_(isCode), words_(words) {}

    bool IsCodeAt(std::size_t place) {
        if (!isCode_)
            return false;
        if (tokens_.empty())
            tokens_ = ScanZorlan(text_, words_);
        while (end_ <= place)
            end_ += tokens_[next_++].Length;
        const TokenKind kind = tokens_[next_ - 1].Kind;
        return kind != TokenKind::Comment && kind != TokenKind::String;
    }

  private:
    std::string_view text_;
    bool isCode_;
    const ZorlanWords& words_;
    std::vector<Token> tokens_;
    std::size_t next_ = 0;
    std::size_t end_ = 0; // of the token before
};

// What to look for in every text, and what it becomes.
struct Sought {
    LabelFinder Labels;
    std::optional<LiteralSearch> Word;
    std::optional<LiteralSearch> Symbol;
    std::string NewWord;
    std::string NewPrefix;
    bool WordIsMeant = false; // the word itself is what is renamed
};

class Collector {
  public:
    Collector(const FsmDocument& document, const Sought& sought) : document_(document), sought_(sought) {}

    // The places where the subject has its name come as a whole.
    std::vector<TextUse> Collect(const std::vector<TextPlace>& names, const std::string& newName);

  private:
    void LookInto(const TextPlace& place, const std::string& text);
    void AddWords(const TextPlace& place, const std::string& text);
    void KeepApart();

    const FsmDocument& document_;
    const Sought& sought_;
    const ZorlanWords words_;
    std::vector<TextUse> ofText_;
    std::vector<TextUse> uses_;
};

std::vector<TextUse> Collector::Collect(const std::vector<TextPlace>& names, const std::string& newName) {
    for (const TextPlace& name : names) {
        if (TextAt(document_, name).empty())
            uses_.push_back({name, 0, 0, UseKind::Name, true, newName});
    }
    ForEachText(document_, [&](const TextPlace& place, const std::string& text) {
        if (std::find(names.begin(), names.end(), place) != names.end())
            uses_.push_back({place, 0, text.size(), UseKind::Name, true, newName});
        else if (KindOf(place).IsDesigned)
            LookInto(place, text);
    });
    return std::move(uses_);
}

void Collector::LookInto(const TextPlace& place, const std::string& text) {
    ofText_.clear();
    sought_.Labels.Each(text, [&](Span span, const std::string& after, bool isSpeltSo) {
        ofText_.push_back({place, span.Start, span.End - span.Start, UseKind::Label, isSpeltSo, after});
    });
    AddWords(place, text);
    if (ofText_.empty())
        return;
    KeepApart();
    CodeOf code(text, KindOf(place).IsCode, words_);
    for (TextUse& use : ofText_)
        use.IsSure = use.IsSure && code.IsCodeAt(use.Start);
    uses_.insert(uses_.end(), ofText_.begin(), ofText_.end());
}

void Collector::AddWords(const TextPlace& place, const std::string& text) {
    const auto each = [&](const std::optional<LiteralSearch>& search, auto visit) {
        std::size_t at = 0;
        while (search && (at = search->Next(text, at)) != std::string::npos) {
            visit(at, search->Length());
            at += search->Length();
        }
    };
    each(sought_.Symbol, [&](std::size_t at, std::size_t length) {
        if (!IsInsideWord(text, at))
            ofText_.push_back({place, at, length, UseKind::Symbol, true, sought_.NewPrefix});
    });
    each(sought_.Word, [&](std::size_t at, std::size_t length) {
        ofText_.push_back({place, at, length, UseKind::Word, sought_.WordIsMeant, sought_.NewWord});
    });
}

// Of uses that overlap the first kind counts: a label is no word.
void Collector::KeepApart() {
    std::stable_sort(ofText_.begin(), ofText_.end(), [](const TextUse& a, const TextUse& b) {
        return a.Start != b.Start ? a.Start < b.Start : a.Kind < b.Kind;
    });
    std::size_t behind = 0;
    std::erase_if(ofText_, [&](const TextUse& use) {
        const bool overlaps = use.Start < behind;
        if (!overlaps)
            behind = use.Start + use.Length;
        return overlaps;
    });
}

std::optional<LiteralSearch> WordSearch(const std::string& word) {
    if (Trim(word).empty())
        return std::nullopt;
    return LiteralSearch({.Text = word, .MatchCase = true, .WholeWord = true});
}

// Looks for what the subject is made of.
struct Searcher {
    const FsmDocument& Document;
    const std::string& NewName;

    std::vector<TextUse> operator()(const OfState& state) const {
        const LabelChanges labels = LabelsOfRenamedState(Document, state.State, NewName);
        return Names({PlaceOfText(&StateRecord::Name, state.State)}, labels,
                     Document.State(state.State).Name);
    }
    std::vector<TextUse> operator()(const OfEvent& event) const {
        return Names({PlaceOfText(&EventRecord::Name, event.Row)}, {}, Document.Event(event.Row).Name);
    }
    std::vector<TextUse> operator()(const OfTimer& timer) const {
        const std::string id(Trim(timer.Id));
        std::vector<TextPlace> names;
        for (const StateNumber state : StateNumbers()) {
            if (!id.empty() && Trim(Document.State(state).TimerId) == id)
                names.push_back(PlaceOfText(&StateRecord::TimerId, state));
        }
        return Names(names, LabelsOfRenamedTimer(Document, timer.Id, NewName), id);
    }
    std::vector<TextUse> operator()(const OfMachine&) const {
        const std::string prefix = LabelPrefix(Document);
        Sought sought{LabelFinder(prefix, LabelsOfRenamedMachine(Document, NewName)),
                      WordSearch(Document.General.FsmName),
                      std::nullopt,
                      NewName,
                      {},
                      false};
        if (!prefix.empty())
            sought.Symbol.emplace(Literal{.Text = prefix + "_", .MatchCase = true});
        FsmDocument renamed;
        renamed.General.FsmName = NewName;
        sought.NewPrefix = LabelPrefix(renamed) + "_";
        return Collector(Document, sought).Collect({PlaceOfText(&GeneralCode::FsmName)}, NewName);
    }
    std::vector<TextUse> operator()(const OfWord& word) const {
        const Sought sought{LabelFinder({}, {}), WordSearch(word.Word), std::nullopt, NewName, {}, true};
        return Collector(Document, sought).Collect({}, NewName);
    }

  private:
    std::vector<TextUse> Names(const std::vector<TextPlace>& names, const LabelChanges& labels,
                               const std::string& word) const {
        const Sought sought{
            LabelFinder(LabelPrefix(Document), labels), WordSearch(word), std::nullopt, NewName, {}, false};
        return Collector(Document, sought).Collect(names, NewName);
    }
};

} // namespace

std::vector<TextUse> TextUsesOf(const FsmDocument& document, const Subject& subject,
                                const std::string& newName) {
    return std::visit(Searcher{document, newName}, subject);
}

std::vector<TextUse> LabelUses(const FsmDocument& document, const LabelChanges& labels) {
    const Sought sought{
        LabelFinder(LabelPrefix(document), labels), std::nullopt, std::nullopt, {}, {}, false};
    return Collector(document, sought).Collect({}, {});
}

} // namespace orvane::find
