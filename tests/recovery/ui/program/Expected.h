// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "recovery/ui/kill/Reports.h"
#include "session/Session.h"

#include <string>
#include <vector>

namespace orvane::test {

// The same strokes without a window: what the document is before each of them.
class Expected {
  public:
    Expected();

    // The document that the first stroke finds.
    static FsmDocument Beginning();

    // The image before the stroke of this number, from 0.
    const std::string& Before(int stroke);
    // What is being done in that stroke, as a kill during it is judged.
    static Doing DoingIn(int stroke);
    // What was typed last is entered by whoever recovers it; these strokes follow.
    void EnterHalfTyped(int stroke);

  private:
    void Type(int row, int state, int target);
    void Draw(int stroke);

    Session session_;
    std::vector<std::string> images_;
};

} // namespace orvane::test
