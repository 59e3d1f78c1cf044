// SPDX-License-Identifier: GPL-3.0-or-later
// What to say to a command line that was not understood.
#pragma once

#include <string>
#include <vector>

namespace orvane::cli {

// The first word is none of the verbs. Empty when there is no word at all.
std::string NoSuchVerb(const std::string& word, const std::vector<std::string>& verbs);

// What there is to say to git, whether another word or none was given.
inline constexpr const char* kGitTakes = "git takes the word enable";

// What the verb cannot do without was not given: DOC and the like, or an option as it is typed, of which its
// help says this.
std::string Missing(const std::string& verb, const std::string& name, const std::string& help);

// What was left over when the verb had taken all that it knows. The options are as they are typed.
std::string LeftOver(const std::string& verb, const std::string& word,
                     const std::vector<std::string>& options);

} // namespace orvane::cli
