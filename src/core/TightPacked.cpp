// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/TightPacked.h"

#include "core/RecordFields.h"
#include "text/AnsiText.h"
#include "text/ByteOf.h"
#include "text/ForwardSearch.h"
#include "text/NumberText.h"

#include <optional>

namespace orvane {

namespace {

constexpr char kFormatMark = '0';
constexpr std::string_view kTextEnd(&kDelimiter, 1);
constexpr int kUnknownMode = 255;
constexpr std::string_view kMissingTerminator = "Expected string terminator is absent";

class Packer {
  public:
    std::string Pack(const FsmDocument& document) {
        image_ += kFormatMark;
        Number(kTableRows);
        Number(kTableColumns);
        PackEvents(document);
        PackStates(document);
        PackFields<kGeneralFields>(document.General);
        return std::move(image_);
    }

  private:
    void Number(int number) { image_ += static_cast<char>(number); }
    void Text(std::string_view text) { image_.append(text) += kDelimiter; }

    void Value(const std::string& text) { Text(text); }
    void Value(bool mark) { Number(mark ? 1 : 0); }
    void Value(std::int32_t mode) { Number(mode >= 0 && mode < kUnknownMode ? mode : kUnknownMode); }

    template <const auto& kFields, typename Record>
    void PackFields(const Record& record) {
        ForEachFieldInOrder<kFields, FieldOrder::Image>(
            [&](const auto& field) { Value(record.*field.Member); });
    }

    void PackEvents(const FsmDocument& document) {
        for (const RowNumber row : CellRows()) {
            const EventRecord& event = document.Event(row);
            if (IsEmpty(event))
                continue;
            Number(row.Number());
            PackFields<kEventFields>(event);
        }
        Number(0);
    }

    void PackStates(const FsmDocument& document) {
        for (const StateNumber number : StateNumbers()) {
            const StateRecord& state = document.State(number);
            if (IsEmpty(state))
                continue;
            Number(number.Number());
            PackFields<kStateFields>(state);
            PackCells(state);
        }
        Number(0);
    }

    void PackCells(const StateRecord& state) {
        for (const RowNumber row : CellRows()) {
            if (state.Targets[row] == kNoState && state.Actions[row].empty())
                continue;
            Number(row.Number());
            Number(state.Targets[row].Number());
            Text(state.Actions[row]);
        }
        Number(0);
        Number(0);
    }

    std::string image_;
};

// Ends the unpacking from anywhere; what was read up to here stays.
struct BrokenImage {
    std::string Why;
};

// Stands apart so that the hot path, which reads thousands of numbers, stays short.
[[noreturn]] void Refuse(std::string_view what, int number) {
    throw BrokenImage{"The snapshot holds the " + std::string(what) + " " + NumberText(number)};
}

class Unpacker {
  public:
    Unpacker(std::string_view image, FsmDocument& document)
        : image_(image), delimiters_(image), document_(document) {}

    std::vector<std::string> Unpack();

  private:
    void UnpackEvents();
    void UnpackStates();
    void UnpackCells(StateRecord& state);
    template <const auto& kFields, typename Record>
    void UnpackFields(Record& record);
    void Value(std::string& text) { Text(text); }
    void Value(bool& mark) { mark = Number() != 0; }
    void Value(std::int32_t& mode) { mode = Number(); }

    int Number();
    template <typename Kind>
    Kind Number(NumberRange<Kind> range, std::string_view what);
    // 0 ends a list; any other number has to lie in the range.
    template <typename Kind>
    std::optional<Kind> NumberOrEnd(NumberRange<Kind> range, std::string_view what);
    void Text(std::string& text);

    std::string_view image_;
    std::size_t position_ = 1; // behind the format mark
    ForwardSearch<kTextEnd> delimiters_;
    FsmDocument& document_;
    std::vector<std::string> messages_;
};

std::vector<std::string> Unpacker::Unpack() {
    try {
        Number(); // rows and columns of the table, the same in every image
        Number();
        UnpackEvents();
        UnpackStates();
        UnpackFields<kGeneralFields>(document_.General);
    } catch (const BrokenImage& breakOff) {
        messages_.push_back(breakOff.Why);
    }
    return std::move(messages_);
}

// A record is cleared by copying a cleared one over it, which keeps the memory of its texts for the new ones.
// What no image holds stays.
template <typename Fields, typename Record>
void Clear(const Fields& fields, Record& record, Record& cleared) {
    ForEachField(fields, [&](const auto& field) {
        if (field.ImagePlace == 0)
            cleared.*field.Member = record.*field.Member;
    });
    record = cleared;
}

template <const auto& kFields, typename Record>
void Unpacker::UnpackFields(Record& record) {
    ForEachFieldInOrder<kFields, FieldOrder::Image>([&](const auto& field) { Value(record.*field.Member); });
}

void Unpacker::UnpackEvents() {
    EventRecord cleared = FsmDocument::EventTemplate();
    for (const RowNumber row : CellRows())
        Clear(kEventFields, document_.Event(row), cleared);
    while (const std::optional<RowNumber> row = NumberOrEnd(CellRows(), "event row"))
        UnpackFields<kEventFields>(document_.Event(*row));
}

void Unpacker::UnpackStates() {
    StateRecord cleared = document_.StateTemplate();
    for (const StateNumber number : StateNumbers())
        Clear(kStateFields, document_.State(number), cleared);
    while (const std::optional<StateNumber> number = NumberOrEnd(StateNumbers(), "state")) {
        UnpackFields<kStateFields>(document_.State(*number));
        UnpackCells(document_.State(*number));
    }
}

void Unpacker::UnpackCells(StateRecord& state) {
    while (const std::optional<RowNumber> row = NumberOrEnd(CellRows(), "cell row")) {
        state.Targets[*row] = Number(TargetNumbers(), "target");
        Text(state.Actions[*row]);
    }
    Number(); // the second of the two zeros
}

int Unpacker::Number() {
    if (position_ >= image_.size())
        throw BrokenImage{"The snapshot ends too early"};
    return ByteOf(image_[position_++]);
}

template <typename Kind>
Kind Unpacker::Number(NumberRange<Kind> range, std::string_view what) {
    const int number = Number();
    if (!range.Contains(number))
        Refuse(what, number);
    return number;
}

template <typename Kind>
std::optional<Kind> Unpacker::NumberOrEnd(NumberRange<Kind> range, std::string_view what) {
    if (position_ < image_.size() && image_[position_] == '\0') {
        ++position_;
        return std::nullopt;
    }
    return Number(range, what);
}

void Unpacker::Text(std::string& text) {
    const std::size_t end = delimiters_.Next(position_);
    if (end == std::string_view::npos) {
        if (messages_.empty()) // no text behind it finds one either: once is enough
            messages_.emplace_back(kMissingTerminator);
        text.clear();
        return;
    }
    text.assign(image_, position_, end - position_);
    position_ = end + 1;
}

} // namespace

std::string Pack(const FsmDocument& document) { return Packer().Pack(document); }

std::vector<std::string> Unpack(std::string_view image, FsmDocument& document) {
    if (!image.starts_with(kFormatMark))
        return {"Unknown TightPacked format"};
    return Unpacker(image, document).Unpack();
}

std::string_view TakeStringField(std::string_view& buffer) {
    const std::size_t end = buffer.find(kDelimiter);
    if (end == std::string_view::npos)
        return {};
    const std::string_view field = buffer.substr(0, end);
    buffer.remove_prefix(end + 1);
    return field;
}

} // namespace orvane
