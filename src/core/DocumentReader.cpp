// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/DocumentReader.h"

#include "core/DocumentTags.h"
#include "core/RecordFields.h"
#include "core/TagScanner.h"
#include "core/TextStarts.h"
#include "text/AnsiText.h"
#include "text/NumberText.h"

#include <algorithm>
#include <limits>
#include <optional>
#include <utility>

namespace orvane {

namespace {

// Whether it is that tag, which is known when the program is compiled: a comparison or two of numbers, where
// the general one is a call for each of thousands of cells.
template <const std::string_view& kTag>
bool Is(std::string_view tag) {
    return tag.size() == kTag.size() && std::equal(kTag.begin(), kTag.end(), tag.begin());
}

bool IsTrue(std::string_view text) { return ToUpper(text) == "TRUE"; }

// Ends the reading from anywhere; what was read up to here stays.
struct BreakOff {
    std::string Why;
};

// A value that begins with a number: "7:" or "12:the rest".
struct IndexedValue {
    std::string_view Index;
    std::string_view Rest; // empty without ":"
};

IndexedValue SplitIndex(std::string_view value) {
    // It stands behind a digit or two: a call that looks at many bytes at once would take longer.
    const auto colon = std::find(value.begin(), value.end(), ':');
    if (colon == value.end())
        return {value, {}};
    return {{value.begin(), colon}, {colon + 1, value.end()}};
}

// A number as it stands in the file, cut where it gets too long to read.
std::string Quoted(std::string_view number) {
    constexpr std::size_t longest = 24;
    return "\"" + std::string(Trim(number.substr(0, longest))) + (number.size() > longest ? "..." : "") +
           "\"";
}

// A tag as it stands in the file, cut where it is too long for a message.
std::string ShownTag(std::string_view tag) {
    constexpr std::size_t longest = 200;
    return std::string(tag.substr(0, longest)) + (tag.size() > longest ? "..." : "");
}

class Reader {
  public:
    // What is read goes where its owner has it: to move so many texts takes a good part of the reading.
    Reader(std::string_view bytes, TextStarts* starts, ReadResult& result)
        : scanner_(bytes), starts_(starts), result_(result) {}

    void Read();

  private:
    void ReadTopLevel();
    void ReadMachineField(std::string_view tag);
    void ReadRowHeights();
    void ReadEvent();
    void ReadState();
    void ReadTransitions(StateRecord& state);

    // Calls `read(tag)` for each tag up to the closing one.
    template <const std::string_view& kCloser, typename ReadTagged>
    void ReadBlock(ReadTagged read);

    // The number in the head of an event or a state.
    template <typename Kind>
    Kind HeadNumber(NumberRange<Kind> range);
    void RequireWholeValue() const;
    void SetText(std::string& text, std::string_view value);
    void TellStart(Cell record, std::string_view tag) {
        if (starts_ != nullptr)
            KeepStart(record, tag);
    }
    void KeepStart(Cell record, std::string_view tag);

    // Reads the value of the record's field that has the tag; tells a tag that none has.
    template <typename Fields, typename Record>
    void ReadField(const Fields& fields, Record& record, std::string_view tag);
    void ReadValue(const FieldInFile& file, std::string& text) {
        TellStart(record_, file.Tag);
        SetText(text, scanner_.NextValue());
    }
    void ReadValue(const FieldInFile& file, bool& mark);
    void ReadValue(const FieldInFile&, std::int16_t& number) { number = NextNumber<std::int16_t>(); }
    void ReadValue(const FieldInFile& file, std::int32_t& number) {
        TellStart(record_, file.Tag);
        number = NextNumber<std::int32_t>();
    }
    void ReadValue(const FieldInFile&, Twips& length) { length = NextNumber<std::int32_t>(); }

    // The number at the front of the text; outside the range reading breaks off.
    std::int64_t Number(std::string_view text, std::int64_t first, std::int64_t last) const;
    template <typename T>
    T NextNumber() {
        using Limits = std::numeric_limits<T>;
        return static_cast<T>(Number(scanner_.NextValue(), Limits::min(), Limits::max()));
    }
    template <typename Kind>
    Kind NumberOf(std::string_view text, NumberRange<Kind> range) const {
        return NumberIn(range, Number(text, range.First().Number(), range.Last().Number())).value();
    }

    void TellUnknownTag(std::string_view tag);
    void TellUnknown(std::string text);
    void Tell(std::string text) { result_.Messages.push_back({std::move(text), scanner_.TagLine()}); }

    TagScanner scanner_;
    TextStarts* const starts_;
    ReadResult& result_;
    Cell record_;       // whose fields are read
    std::string block_; // the block that is read, " in state 7", empty at top level
    std::size_t unknownTags_ = 0;
    bool toldDelimiter_ = false;
};

void Reader::Read() {
    std::optional<BreakOff> brokeOff;
    try {
        ReadTopLevel();
    } catch (const BreakOff& breakOff) {
        brokeOff = breakOff;
    }
    if (unknownTags_ > kMostUnknownTags)
        result_.Messages.push_back(
            {NumberText(unknownTags_ - kMostUnknownTags) + " more unknown tags were skipped", 0});
    result_.BrokeOff = brokeOff.has_value();
    if (brokeOff)
        Tell(brokeOff->Why + "; reading stopped there");
}

void Reader::ReadTopLevel() {
    while (!scanner_.AtEnd()) {
        const bool found = scanner_.NextTag();
        if (scanner_.TagWasCut())
            throw BreakOff{"The file ends inside a tag"};
        if (!found)
            return;
        const std::string_view tag = scanner_.Tag();
        block_.clear();
        record_ = {};
        if (tag == tag::kRowVisible)
            ReadRowHeights();
        else if (tag == tag::kEvent)
            ReadEvent();
        else if (tag == tag::kState)
            ReadState();
        else
            ReadMachineField(tag);
        RequireWholeValue();
    }
}

void Reader::ReadMachineField(std::string_view tag) {
    const auto read = [this](const auto& field) {
        ReadValue(field.File, PartOf(result_.Document, field).*field.Member);
    };
    if (!VisitTagged(kMachineFields, tag, read))
        TellUnknownTag(tag);
}

template <typename Fields, typename Record>
void Reader::ReadField(const Fields& fields, Record& record, std::string_view tag) {
    const auto read = [&](const auto& field) { ReadValue(field.File, record.*field.Member); };
    if (!VisitTagged(fields, tag, read))
        TellUnknownTag(tag);
}

void Reader::ReadValue(const FieldInFile& file, bool& mark) {
    mark = file.AsDigit ? NextNumber<std::int16_t>() != 0 : IsTrue(scanner_.NextValue());
}

template <const std::string_view& kCloser, typename ReadTagged>
void Reader::ReadBlock(ReadTagged read) {
    while (true) {
        if (!scanner_.NextTag())
            throw BreakOff{"The file ends before " + std::string(kCloser) + block_};
        if (Is<kCloser>(scanner_.Tag()))
            return;
        read(scanner_.Tag());
        RequireWholeValue();
    }
}

void Reader::ReadRowHeights() {
    RowHeights& heights = result_.Document.View.RowVisible;
    ReadBlock<tag::kRowVisibleEnd>([&](std::string_view tag) { ReadField(kRowHeightFields, heights, tag); });
}

void Reader::ReadEvent() {
    const RowNumber row = HeadNumber(CellRows());
    EventRecord& event = result_.Document.Event(row);
    record_ = {row, kNoState};
    TellStart(record_, tag::kEvent);
    block_ = " in event row " + NumberText(row.Number());
    ReadBlock<tag::kEventEnd>([&](std::string_view tag) { ReadField(kEventFields, event, tag); });
}

void Reader::ReadState() {
    const StateNumber number = HeadNumber(StateNumbers());
    StateRecord& state = result_.Document.State(number);
    record_ = {kNoRow, number};
    TellStart(record_, tag::kState);
    block_ = " in state " + NumberText(number.Number());
    ReadBlock<tag::kStateEnd>([&](std::string_view tag) {
        if (tag == tag::kTransitions)
            ReadTransitions(state);
        else
            ReadField(kStateFields, state, tag);
    });
}

void Reader::ReadTransitions(StateRecord& state) {
    ReadBlock<tag::kTransitionsEnd>([&](std::string_view tag) {
        const bool isTarget = Is<tag::kTarget>(tag);
        if (!isTarget && !Is<tag::kAction>(tag)) {
            TellUnknown("Unkown tag " + ShownTag(tag) + " in Transitions section");
            return;
        }
        const IndexedValue value = SplitIndex(scanner_.NextValue());
        const RowNumber row = NumberOf(value.Index, CellRows());
        TellStart({row, record_.State}, isTarget ? tag::kTarget : tag::kAction);
        if (isTarget) {
            state.Targets[row] = NumberOf(value.Rest, TargetNumbers());
            return;
        }
        SetText(state.Actions[row], value.Rest);
    });
}

template <typename Kind>
Kind Reader::HeadNumber(NumberRange<Kind> range) {
    const std::string_view value = scanner_.NextValue();
    RequireWholeValue();
    return NumberOf(SplitIndex(value).Index, range);
}

void Reader::RequireWholeValue() const {
    if (scanner_.ValueWasCut())
        throw BreakOff{"The file ends inside the value of " + std::string(scanner_.Tag()) + block_};
}

void Reader::SetText(std::string& text, std::string_view value) {
    text = value;
    // The scanner knows it of nearly all values, without another look at their bytes.
    if (toldDelimiter_ || !scanner_.ValueHoldsDelimiter() || value.find(kDelimiter) == std::string_view::npos)
        return;
    toldDelimiter_ = true;
    Tell("The text of " + std::string(scanner_.Tag()) + block_ +
         " holds the character \xA4, which ends fields; it is kept and "
         "saved as it is, but undo cannot carry it");
}

void Reader::KeepStart(Cell record, std::string_view tag) { starts_->Add(record, tag, scanner_.TagLine()); }

std::int64_t Reader::Number(std::string_view text, std::int64_t first, std::int64_t last) const {
    const std::int64_t number = ParseNumber(text);
    if (number >= first && number <= last)
        return number;
    RequireWholeValue(); // else the file's end is what is wrong with the number
    throw BreakOff{"The number " + Quoted(text) + " of " + std::string(scanner_.Tag()) + block_ +
                   " is outside " + NumberText(first) + ".." + NumberText(last)};
}

// The last line of a file may hold anything: an unknown tag there is not told.
void Reader::TellUnknownTag(std::string_view tag) {
    if (!scanner_.AtEnd())
        TellUnknown("Unknown tag " + ShownTag(tag));
}

void Reader::TellUnknown(std::string text) {
    if (++unknownTags_ <= kMostUnknownTags)
        Tell(std::move(text));
}

void Refuse(ReadResult& result, std::string why) {
    result.Messages.push_back({std::move(why), 0});
    result.Refused = true;
    result.BrokeOff = true;
}

} // namespace

ReadResult ReadDocument(std::string_view bytes, TextStarts* starts) {
    ReadResult result;
    const bool tooLarge = bytes.size() > kLargestDocument;
    const bool blank = bytes.find_first_not_of(" \t\r\n") == std::string_view::npos;
    if (tooLarge)
        Refuse(result, "The file is " + std::string(kTooLargeForADocument));
    else if (!blank && bytes.find(kTagOpen) == std::string_view::npos)
        Refuse(result, "The file is not a document: it holds no field");
    else
        Reader(bytes, starts, result).Read();
    return result;
}

} // namespace orvane
