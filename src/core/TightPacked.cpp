// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/TightPacked.h"

#include "text/AnsiText.h"
#include "text/ForwardSearch.h"
#include "text/NumberText.h"

#include <optional>

namespace orvane {

namespace {

constexpr char kFormatMark = '0';
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
        PackGeneral(document.General);
        return std::move(image_);
    }

  private:
    void Number(int number) { image_ += static_cast<char>(number); }
    void Text(std::string_view text) { image_.append(text) += kDelimiter; }

    void PackEvents(const FsmDocument& document) {
        for (const RowNumber row : CellRows()) {
            const EventRecord& event = document.Event(row);
            if (IsEmpty(event))
                continue;
            Number(row.Number());
            Text(event.Name);
            Text(event.Code);
            Text(event.Tooltip);
        }
        Number(0);
    }

    void PackStates(const FsmDocument& document) {
        for (const StateNumber number : StateNumbers()) {
            const StateRecord& state = document.State(number);
            if (IsEmpty(state))
                continue;
            Number(number.Number());
            PackState(state);
        }
        Number(0);
    }

    void PackState(const StateRecord& state) {
        for (const std::string* text : {&state.Name, &state.Tooltip, &state.EntryCode, &state.ExitCode,
                                        &state.TimeConst, &state.TimingVar, &state.TimerId})
            Text(*text);
        Number(state.TimingMode >= 0 && state.TimingMode < kUnknownMode ? state.TimingMode : kUnknownMode);
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

    void PackGeneral(const GeneralCode& general) {
        for (const std::string* text : {&general.FsmName, &general.CodeSeg, &general.HeaderComment,
                                        &general.InitSeg, &general.NvEm0Data, &general.TestSeg})
            Text(*text);
        Number(general.LaunchSeg ? 1 : 0);
        Text(general.Instances);
    }

    std::string image_;
};

// Ends the unpacking from anywhere; what was read up to here stays.
struct BreakOff {
    std::string Why;
};

class Unpacker {
  public:
    Unpacker(std::string_view image, FsmDocument& document)
        : image_(image), delimiters_(image, {&kDelimiter, 1}), document_(document) {}

    std::vector<std::string> Unpack();

  private:
    void UnpackEvents();
    void UnpackStates();
    void UnpackCells(StateRecord& state);
    void UnpackGeneral();

    int Number();
    template <typename Kind>
    Kind Number(NumberRange<Kind> range, std::string_view what);
    // 0 ends a list; any other number has to lie in the range.
    template <typename Kind>
    std::optional<Kind> NumberOrEnd(NumberRange<Kind> range, std::string_view what);
    void Text(std::string& text);

    std::string_view image_;
    std::size_t position_ = 1; // behind the format mark
    ForwardSearch delimiters_;
    FsmDocument& document_;
    std::vector<std::string> messages_;
};

std::vector<std::string> Unpacker::Unpack() {
    try {
        Number(); // rows and columns of the table, the same in every image
        Number();
        UnpackEvents();
        UnpackStates();
        UnpackGeneral();
    } catch (const BreakOff& breakOff) {
        messages_.push_back(breakOff.Why);
    }
    return std::move(messages_);
}

// Records are cleared by copying a cleared one over them, which keeps the memory of their texts for the new
// ones.
void Unpacker::UnpackEvents() {
    EventRecord cleared = FsmDocument::EventTemplate();
    for (const RowNumber row : CellRows()) {
        EventRecord& event = document_.Event(row);
        cleared.LastTab = event.LastTab;
        event = cleared;
    }
    while (const std::optional<RowNumber> row = NumberOrEnd(CellRows(), "event row")) {
        EventRecord& event = document_.Event(*row);
        for (std::string* text : {&event.Name, &event.Code, &event.Tooltip})
            Text(*text);
    }
}

void Unpacker::UnpackStates() {
    StateRecord cleared = document_.StateTemplate();
    for (const StateNumber number : StateNumbers()) {
        StateRecord& state = document_.State(number);
        cleared.ColWidth = state.ColWidth;
        cleared.LastTab = state.LastTab;
        state = cleared;
    }
    while (const std::optional<StateNumber> number = NumberOrEnd(StateNumbers(), "state")) {
        StateRecord& state = document_.State(*number);
        for (std::string* text : {&state.Name, &state.Tooltip, &state.EntryCode, &state.ExitCode,
                                  &state.TimeConst, &state.TimingVar, &state.TimerId})
            Text(*text);
        state.TimingMode = Number();
        UnpackCells(state);
    }
}

void Unpacker::UnpackCells(StateRecord& state) {
    while (const std::optional<RowNumber> row = NumberOrEnd(CellRows(), "cell row")) {
        state.Targets[*row] = Number(TargetNumbers(), "target");
        Text(state.Actions[*row]);
    }
    Number(); // the second of the two zeros
}

void Unpacker::UnpackGeneral() {
    GeneralCode& general = document_.General;
    for (std::string* text : {&general.FsmName, &general.CodeSeg, &general.HeaderComment, &general.InitSeg,
                              &general.NvEm0Data, &general.TestSeg})
        Text(*text);
    general.LaunchSeg = Number() != 0;
    Text(general.Instances);
}

int Unpacker::Number() {
    if (position_ >= image_.size())
        throw BreakOff{"The snapshot ends too early"};
    return static_cast<unsigned char>(image_[position_++]);
}

template <typename Kind>
Kind Unpacker::Number(NumberRange<Kind> range, std::string_view what) {
    const int number = Number();
    if (!range.Contains(number))
        throw BreakOff{"The snapshot holds the " + std::string(what) + " " + NumberText(number)};
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
