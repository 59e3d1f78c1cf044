// SPDX-License-Identifier: GPL-3.0-or-later
// A picture that follows a document while it is edited: which part of it is shown, and when everything may
// move.
#pragma once

#include "diagram/Layout.h"

#include <cstddef>
#include <optional>

namespace orvane::diagram {

// What the user wants to see.
struct PictureWish {
    SceneOptions Options;           // Focus is not looked at
    bool All = false;               // also of a machine that is too large to be read at once
    StateNumber Chosen = kNoState;  // whose neighbourhood is shown else
    Rect Window = {0, 0, 600, 400}; // what the first picture is to fit into

    bool operator==(const PictureWish&) const = default;
};

// Why only the neighbourhood of a state is shown.
enum class Part {
    Whole,       // it is not
    Readable,    // there is too much to be read; the user may see it all
    InTheMaking, // all is wanted and being laid out
    TooMany,     // there are more lines than any picture shows
    TooSlow,     // the layout took too long
};

// A layout that a thread may make.
struct ColdJob {
    Scene Drawn;
    Direction Way;
    bool IsAwaited; // it is shown as soon as it is there, else only offered
};

inline constexpr std::size_t kMostStatesAtOnce = 40;
inline constexpr std::size_t kMostEdgesAtOnce = 150;

class LivePicture {
  public:
    // The sizes outlive the picture.
    explicit LivePicture(const TextSizes& sizes) : sizes_(sizes) {}

    // Another document, or one that was not followed for a while: nothing has to stay where it was.
    void Begin(const FsmDocument& document, const PictureWish& wish);
    // The document was edited, or something else is to be seen of it.
    void Follow(const FsmDocument& document, const PictureWish& wish);
    // From left to right instead of from the top down, or the other way round; that is kept.
    void Turn();

    const Scene& Shown() const { return shown_; }
    const Layout& Places() const { return places_; }
    Part ShownPart() const { return part_; }
    // The state around which the part is, when it is one.
    std::optional<StateNumber> Around() const { return around_; }
    std::size_t StatesInAll() const { return statesInAll_; }

    // What is worth a thread now; none when the picture cannot get better.
    std::optional<ColdJob> Job() const;
    // The result of that job.
    void Take(ColdJob job, Layout cold);
    // The awaited job takes too long: of this document only neighbourhoods are shown from now on.
    void GiveUp();

    // How many crossings fewer there would be after Tidy; 0 when it is not worth it.
    int Saved() const { return saved_; }
    void Tidy();

  private:
    void Draw(Scene scene, std::optional<StateNumber> around, const Rect& window);
    void DrawCold(const Rect& window);

    const TextSizes& sizes_;
    Scene shown_;
    Layout places_;
    Part part_ = Part::Whole;
    std::optional<StateNumber> around_;
    std::size_t statesInAll_ = 0;
    std::optional<Direction> way_; // none before the first picture
    bool isFresh_ = true;          // nothing is shown that has to stay
    bool isWarm_ = false;          // it may have crossings that a cold layout has not
    bool isTooSlow_ = false;
    std::optional<Scene> awaited_; // all of the machine
    int saved_ = 0;
    Layout tidy_;
};

} // namespace orvane::diagram
