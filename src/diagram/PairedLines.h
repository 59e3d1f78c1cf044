// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "diagram/Layered.h"

namespace orvane::diagram {

// The layers with one line for each two that join the same states, there and back. They belong side by side,
// and one at a time neither could be moved past what the other one still crosses.
class PairedLines {
  public:
    explicit PairedLines(const Layered& layered);

    // Gives the layers that this was made of the order of the paired ones.
    void Unpair(Layered& layered) const;

    Layered Paired; // without chains

  private:
    int Take(const Layered& layered, int item);
    void Add(const Layered& layered, const Chain& chain);
    void Join(const Layered& layered, const Chain& chain, const Chain& twin);

    std::vector<int> pairedOf_;               // by item of the original; -1: none yet
    std::vector<int> segmentOf_;              // by segment of the original
    std::vector<std::vector<int>> originals_; // by item of the paired layers
};

} // namespace orvane::diagram
