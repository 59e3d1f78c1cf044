// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/UsageHints.h"

#include "cli/MessageText.h"
#include "run/NearestName.h"

namespace orvane::cli {

namespace {

std::string List(const std::vector<std::string>& words) {
    std::string list;
    for (const std::string& word : words)
        list += (list.empty() ? "" : &word == &words.back() ? " and " : ", ") + word;
    return list;
}

bool IsOption(const std::string& word) { return word.size() > 1 && word.front() == '-'; }

// "--format=gcc" is the option "--format".
std::string OptionIn(const std::string& word) { return word.substr(0, word.find('=')); }

} // namespace

std::string NoSuchVerb(const std::string& word, const std::vector<std::string>& verbs) {
    const std::string list = "the verbs are " + List(verbs);
    if (word.empty())
        return "No verb is given; " + list;
    if (IsOption(word))
        return ShownName(word) + " is an option, not a verb, and a verb comes first; " + list;
    return "There is no verb " + ShownName(word) + run::DidYouMean(word, verbs) + "; " + list;
}

std::string Missing(const std::string& verb, const std::string& name, const std::string& help) {
    if (name == "DOC")
        return "No document is given";
    if (name == "FILE")
        return "No file is given";
    if (name == "PATTERN")
        return "No pattern is given";
    if (name == "WHAT")
        return kGitTakes;
    return verb + " needs " + name + ": " + help;
}

std::string LeftOver(const std::string& verb, const std::string& word,
                     const std::vector<std::string>& options) {
    if (!IsOption(word))
        return ShownName(word) + " is one argument more than " + verb + " takes";
    const std::string hint = run::DidYouMean(OptionIn(word), options);
    return verb + " has no option " + ShownName(word) +
           (hint.empty() ? "; its options are " + List(options) : hint);
}

} // namespace orvane::cli
