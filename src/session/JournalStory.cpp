// SPDX-License-Identifier: GPL-3.0-or-later
#include "session/JournalStory.h"

#include <algorithm>

namespace orvane {

bool JournalStory::Take(const JournalRecord& record) {
    const bool isHead = std::holds_alternative<HeadRecord>(record.Content);
    if (isHead == begun_ || Closed)
        return false;
    return std::visit([&](const auto& content) { return Tell(content, record.Time); }, record.Content);
}

bool JournalStory::Tell(const HeadRecord& record, JournalTime time) {
    Head = record.Head;
    LastChange = time;
    begun_ = true;
    return true;
}

bool JournalStory::Tell(const DocumentRecord& record, JournalTime) {
    if (!record.Change.Fits(DocumentText.size()))
        return false;
    Apply(record.Change, DocumentText);
    InsteadOfImage = record.InsteadOfImage;
    return true;
}

bool JournalStory::Tell(const ImageRecord& record, JournalTime time) {
    const std::optional<Node> node = Following(record.Change, time);
    if (!node)
        return false;
    nodes_.push_back(*node);
    chain_ = {nodes_.size() - 1};
    current_ = 0;
    if (record.CountsAsSaved)
        saved_ = chain_.front();
    return true;
}

bool JournalStory::Tell(const CommitRecord& record, JournalTime time) {
    std::optional<Node> node = Following(record.Change, time);
    if (!node || !node->Parent)
        return false;
    node->Name = record.Name;
    nodes_.push_back(*node);
    chain_.resize(current_ + 1);
    chain_.push_back(nodes_.size() - 1);
    if (chain_.size() > kMostImages)
        chain_.pop_front();
    current_ = chain_.size() - 1;
    ++Changes;
    LastChange = time;
    return true;
}

bool JournalStory::Tell(const MoveRecord& record, JournalTime time) {
    const std::size_t to = current_ + record.Steps; // below 0 it is larger than any place
    if (record.Steps == 0 || to >= chain_.size())
        return false;
    current_ = to;
    ++Changes;
    LastChange = time;
    return true;
}

bool JournalStory::Tell(const ViewRecord& record, JournalTime time) {
    View = record.View;
    LastChange = time;
    return true;
}

bool JournalStory::Tell(const DraftRecord& record, JournalTime time) {
    ForgetDraft(record.Draft);
    Drafts.push_back(record.Draft);
    LastChange = time;
    return true;
}

bool JournalStory::Tell(const DraftGoneRecord& record, JournalTime) {
    ForgetDraft(record.Editor);
    return true;
}

bool JournalStory::Tell(const SavedRecord& record, JournalTime) {
    if (!PresentNode())
        return false;
    saved_ = PresentNode();
    Head.Path = record.Path;
    Head.Stamp = record.Stamp;
    Changes = 0;
    return true;
}

bool JournalStory::Tell(const ClosedRecord& record, JournalTime) {
    Closed = record.Reason;
    return true;
}

bool JournalStory::Tell(const StandRecord& record, JournalTime time) {
    Changes = record.Changes;
    LastChange = time;
    return true;
}

std::optional<std::size_t> JournalStory::PresentNode() const {
    if (chain_.empty())
        return std::nullopt;
    return chain_[current_];
}

std::optional<JournalStory::Node> JournalStory::Following(const TextDelta& change, JournalTime time) const {
    const std::optional<std::size_t> parent = PresentNode();
    if (!change.Fits(parent ? nodes_[*parent].Size : 0) || change.NewSize() == 0)
        return std::nullopt;
    return Node{parent, change, change.NewSize(), {}, time};
}

void JournalStory::ForgetDraft(const JournalDraft& editor) {
    std::erase_if(Drafts, [&editor](const JournalDraft& draft) { return draft.IsSameEditor(editor); });
}

std::string JournalStory::ImageOf(std::size_t node) const {
    std::vector<std::size_t> path;
    for (std::optional<std::size_t> step = node; step; step = nodes_[*step].Parent)
        path.push_back(*step);
    std::string image;
    for (auto step = path.rbegin(); step != path.rend(); ++step)
        Apply(nodes_[*step].Change, image);
    return image;
}

std::vector<JournalStep> JournalStory::History() const {
    std::vector<JournalStep> history;
    history.reserve(chain_.size());
    for (const std::size_t node : chain_) {
        std::string image = history.empty() ? ImageOf(node) : history.back().Image;
        if (!history.empty()) // each step is a change of the one before
            Apply(nodes_[node].Change, image);
        const std::string_view name = history.empty() ? std::string_view() : nodes_[node].Name;
        history.push_back({std::move(image), std::string(name), nodes_[node].Time});
    }
    return history;
}

std::optional<std::string> JournalStory::SavedImage() const {
    if (!saved_)
        return std::nullopt;
    return ImageOf(*saved_);
}

} // namespace orvane
