// SPDX-License-Identifier: GPL-3.0-or-later
#include "review/ConflictBlock.h"

#include "core/ConflictMark.h"
#include "review/LineDiff.h"
#include "review/Titles.h"
#include "text/AnsiText.h"

namespace orvane::review {

namespace {

constexpr std::string_view kBegin = kConflictMark;
constexpr std::string_view kBase = ";||||||| BASE";
constexpr std::string_view kTheirs = ";======= THEIRS";
constexpr std::string_view kEnd = ";>>>>>>> CONFLICT";

std::string AsComments(std::string_view text) {
    std::string comments;
    for (const std::string_view line : LinesOf(text))
        comments.append(";").append(line).append(kLineEnd);
    return comments;
}

class BlockFinder {
  public:
    std::vector<FoundBlock> Find(std::string_view text) {
        const Lines lines = LinesOf(text);
        for (std::size_t i = 0; i < lines.size(); ++i)
            Take(lines[i], i + 1);
        Close();
        return std::move(found_);
    }

  private:
    enum class Part { Outside, Head, Base, Theirs };

    void Take(std::string_view line, std::size_t number) {
        if (line.starts_with(kBegin)) {
            Close();
            block_ = {std::string(line.substr(kBegin.size())), {}, {}, number, false};
            part_ = Part::Head;
        } else if (part_ == Part::Outside) {
            return;
        } else if (line == kBase && part_ == Part::Head) {
            part_ = Part::Base;
        } else if (line == kTheirs && part_ == Part::Base) {
            part_ = Part::Theirs;
        } else if (line == kEnd) {
            block_.IsWhole = part_ == Part::Theirs;
            Close();
        } else if (line.starts_with(';')) {
            (part_ == Part::Theirs ? theirs_ : base_).push_back(line.substr(1));
        } else {
            Close(); // what is no comment is code again
        }
    }

    void Close() {
        if (part_ == Part::Outside)
            return;
        block_.Base = TextOf(base_);
        block_.Theirs = TextOf(theirs_);
        found_.push_back(std::move(block_));
        base_.clear();
        theirs_.clear();
        part_ = Part::Outside;
    }

    std::vector<FoundBlock> found_;
    FoundBlock block_;
    Lines base_;
    Lines theirs_;
    Part part_ = Part::Outside;
};

class DocumentSearch {
  public:
    explicit DocumentSearch(const FsmDocument& document) : document_(document) {}

    std::vector<PlacedBlock> Search() {
        SearchFields<kGeneralFields>("machine", document_.General);
        for (const RowNumber row : EventRows())
            SearchFields<kEventFields>("event " + EventTitle(document_, row), document_.Event(row));
        for (const StateNumber state : StateNumbers()) {
            const StateRecord& record = document_.State(state);
            SearchFields<kStateFields>("state " + StateTitle(document_, state), record);
            for (const RowNumber row : CellRows()) {
                if (HoldsConflict(record.Actions[row])) // there are too many to name each
                    SearchText(StateTitle(document_, state) + ", " + RowTitle(document_, row) + ", action",
                               record.Actions[row]);
            }
        }
        return std::move(placed_);
    }

  private:
    template <const auto& kFields, typename Record>
    void SearchFields(const std::string& owner, const Record& record) {
        ForEachStoredField<kFields>([&](const auto& field) {
            if constexpr (std::is_same_v<std::remove_cvref_t<decltype(record.*field.Member)>, std::string>)
                SearchText(owner + ", " + std::string(field.Name), record.*field.Member);
        });
    }
    void SearchText(const std::string& where, std::string_view text) {
        if (!HoldsConflict(text))
            return;
        for (FoundBlock& block : FindConflictBlocks(text))
            placed_.push_back({where, std::move(block)});
    }

    const FsmDocument& document_;
    std::vector<PlacedBlock> placed_;
};

} // namespace

std::string ConflictBlock(const BlockContent& content) {
    std::string block(kBegin);
    block.append(FromUtf8(content.Title, '?')).append(kLineEnd);
    block.append(kBase).append(kLineEnd).append(AsComments(content.Base));
    block.append(kTheirs).append(kLineEnd).append(AsComments(content.Theirs));
    return block.append(kEnd);
}

std::vector<FoundBlock> FindConflictBlocks(std::string_view text) { return BlockFinder().Find(text); }

std::vector<PlacedBlock> FindConflicts(const FsmDocument& document) {
    return DocumentSearch(document).Search();
}

} // namespace orvane::review
