// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "review/Match.h"
#include "review/TellChanges.h"
#include "review/UnionTable.h"

#include <string>
#include <vector>

namespace orvane::review {

// What a window that shows two versions has to know of them. It keeps them, so nothing in it grows old: after
// an edit there is another one.
class ComparedVersions {
  public:
    enum class View { Compared, LeftOut };

    ComparedVersions(FsmDocument oldOne, FsmDocument newOne, const Wishes& wishes = {},
                     View view = View::Compared);
    ComparedVersions(const ComparedVersions&) = delete;
    ComparedVersions& operator=(const ComparedVersions&) = delete;

    const FsmDocument& Old() const { return old_; }
    const FsmDocument& New() const { return new_; }
    const ChangeList& List() const { return list_; }
    const UnionTable& Table() const { return table_; }
    // Of each change of the list, in its order.
    const std::vector<ToldChange>& Told() const { return told_; }
    // How many changes say only how the documents are looked at, shown or left out.
    std::size_t ViewChanges() const { return viewChanges_; }

  private:
    ChangeList Listed(const Wishes& wishes, View view);

    FsmDocument old_;
    FsmDocument new_;
    std::size_t viewChanges_ = 0;
    ChangeList list_;
    UnionTable table_;
    std::vector<ToldChange> told_;
};

// The code or the value on both sides of a change, as document text; of what came or went all that it holds,
// on its side alone.
struct ChangeSides {
    std::string Old;
    std::string New;
};

ChangeSides SidesOf(const ComparedVersions& versions, std::size_t change);

} // namespace orvane::review
