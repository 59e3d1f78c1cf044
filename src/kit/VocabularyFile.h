// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "text/Vocabulary.h"

#include <QString>

namespace orvane {

// Where the maker's tools keep the words of the controller language for this user: below the folder that
// APPDATA names, else below the desktop's own folder for application data.
QString VocabularyPath();

struct LoadedVocabulary {
    Vocabulary Words;
    QString Path;    // where the file was looked for
    QString Problem; // one sentence for the user, with the path; empty when the words have been read
};

// Reads the file. A missing file, one that cannot be read, and one that is no vocabulary by its size (more
// than 1 MiB) leave the lists empty.
LoadedVocabulary LoadVocabulary();

} // namespace orvane
