// SPDX-License-Identifier: GPL-3.0-or-later
// QScintilla's headers say `signals` and `slots`, which our code is built without (QT_NO_KEYWORDS). Include
// them through here only.
#pragma once

#define signals Q_SIGNALS
#define slots Q_SLOTS
#include <Qsci/qscilexercustom.h>
#include <Qsci/qsciscintilla.h>
#undef signals
#undef slots
