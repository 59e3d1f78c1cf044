// SPDX-License-Identifier: GPL-3.0-or-later
#include "diagram/LivePicture.h"

#include <algorithm>
#include <utility>

namespace orvane::diagram {

namespace {

constexpr std::size_t kAlwaysTidy = 6; // states; so few are found again wherever they stand

bool IsLarge(const Scene& scene) {
    return scene.States.size() > kMostStatesAtOnce || scene.Edges.size() > kMostEdgesAtOnce;
}

// The chosen state if it is drawn, else the one around which the picture was, else the first.
StateNumber FocusOf(const Scene& whole, StateNumber chosen, std::optional<StateNumber> before) {
    if (whole.IndexOf(chosen))
        return chosen;
    return before && whole.IndexOf(*before) ? *before : whole.States.front().Number;
}

} // namespace

void LivePicture::Begin(const FsmDocument& document, const PictureWish& wish) {
    way_.reset();
    around_.reset();
    isFresh_ = true;
    isTooSlow_ = false;
    Follow(document, wish);
}

void LivePicture::Follow(const FsmDocument& document, const PictureWish& wish) {
    SceneOptions options = wish.Options;
    options.Focus.reset();
    Scene whole = MakeScene(document, sizes_, options);
    statesInAll_ = whole.States.size();
    awaited_.reset();
    const bool wasWhole = !isFresh_ && !around_;
    part_ = Part::Whole;
    if (whole.Edges.size() > kMostMergedEdges)
        part_ = Part::TooMany;
    else if (IsLarge(whole))
        part_ = !wish.All    ? Part::Readable
                : isTooSlow_ ? Part::TooSlow
                : wasWhole   ? Part::Whole
                             : Part::InTheMaking;
    if (part_ == Part::Whole)
        return Draw(std::move(whole), std::nullopt, wish.Window);
    options.Focus = FocusOf(whole, wish.Chosen, around_);
    if (part_ == Part::InTheMaking)
        awaited_ = std::move(whole);
    Draw(MakeScene(document, sizes_, options), options.Focus, wish.Window);
}

// What is shown of another part of the machine has nothing that could stay where it was.
void LivePicture::Draw(Scene scene, std::optional<StateNumber> around, const Rect& window) {
    const bool stays = !isFresh_ && around == around_;
    shown_ = std::move(scene);
    around_ = around;
    saved_ = 0;
    isWarm_ = stays && shown_.States.size() > kAlwaysTidy;
    if (isWarm_)
        places_ = WarmLayout(shown_, sizes_, places_.Memory);
    else
        DrawCold(window);
    isFresh_ = false;
}

void LivePicture::DrawCold(const Rect& window) {
    places_ = way_ ? ColdLayout(shown_, sizes_, *way_) : FittingLayout(shown_, sizes_, window);
    if (!shown_.Edges.empty())
        way_ = places_.Way;
}

void LivePicture::Turn() {
    way_ = places_.Way == Direction::LeftToRight ? Direction::TopDown : Direction::LeftToRight;
    saved_ = 0;
    isWarm_ = false;
    DrawCold({});
}

std::optional<ColdJob> LivePicture::Job() const {
    const Direction way = way_.value_or(places_.Way);
    if (awaited_)
        return ColdJob{*awaited_, way, true};
    if (isWarm_ && places_.Crossings > 0)
        return ColdJob{shown_, way, false};
    return std::nullopt;
}

void LivePicture::Take(ColdJob job, Layout cold) {
    if (!job.IsAwaited) {
        saved_ = CrossingsSaved(places_, cold);
        tidy_ = std::move(cold);
        return;
    }
    shown_ = std::move(job.Drawn);
    places_ = std::move(cold);
    way_ = places_.Way;
    part_ = Part::Whole;
    around_.reset();
    awaited_.reset();
    isWarm_ = false;
    saved_ = 0;
}

void LivePicture::GiveUp() {
    isTooSlow_ = true;
    part_ = Part::TooSlow;
    awaited_.reset();
}

void LivePicture::Tidy() {
    if (saved_ == 0)
        return;
    places_ = std::move(tidy_);
    saved_ = 0;
    isWarm_ = false;
}

} // namespace orvane::diagram
