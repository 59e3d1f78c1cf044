// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "diagram/LetterWidths.h"
#include "diagram/Scene.h"

namespace orvane::diagram {

inline const LetterWidths kSizes;

inline Scene SceneOf(const FsmDocument& document) { return MakeScene(document, kSizes); }

} // namespace orvane::diagram
