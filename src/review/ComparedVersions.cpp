// SPDX-License-Identifier: GPL-3.0-or-later
#include "review/ComparedVersions.h"

#include "review/Compare.h"
#include "review/Titles.h"
#include "text/AnsiText.h"

#include <utility>

namespace orvane::review {

namespace {

// The lines below a told change without the sign in front of each.
std::string TextOfDetails(const ToldChange& told) {
    std::string text;
    for (const std::string& line : told.Details)
        text += (text.empty() ? "" : "\r\n") + FromUtf8(line.substr(1), '?');
    return text;
}

std::string SideText(const FsmDocument& document, const FieldValue& value) {
    const auto* text = std::get_if<std::string>(&value);
    return text != nullptr ? *text : FromUtf8(ValueTitle(document, value), '?');
}

} // namespace

ComparedVersions::ComparedVersions(FsmDocument oldOne, FsmDocument newOne, const Wishes& wishes, View view)
    : old_(std::move(oldOne)),
      new_(std::move(newOne)),
      list_(Listed(wishes, view)),
      table_({old_, new_}, list_) {
    for (const Change& change : list_.Changes)
        told_.push_back(TellChange(change, old_, new_));
}

ChangeList ComparedVersions::Listed(const Wishes& wishes, View view) {
    ChangeList all = Compare(old_, new_, Match(old_, new_, wishes));
    ChangeList design = all.WithoutView();
    viewChanges_ = all.Changes.size() - design.Changes.size();
    return view == View::Compared ? all : design;
}

ChangeSides SidesOf(const ComparedVersions& versions, std::size_t change) {
    const Change& one = versions.List().Changes[change];
    switch (one.Kind) {
    case ChangeKind::EventAdded:
    case ChangeKind::StateAdded:
        return {{}, TextOfDetails(versions.Told()[change])};
    case ChangeKind::EventRemoved:
    case ChangeKind::StateRemoved:
        return {TextOfDetails(versions.Told()[change]), {}};
    case ChangeKind::EventMoved:
    case ChangeKind::StateMoved:
        return {};
    default:
        return {SideText(versions.Old(), one.Before), SideText(versions.New(), one.After)};
    }
}

} // namespace orvane::review
