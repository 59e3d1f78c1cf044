// SPDX-License-Identifier: GPL-3.0-or-later
#include "review/DiffHtml.h"

#include "review/TellChanges.h"
#include "text/XmlText.h"

namespace orvane::review {

namespace {

constexpr const char* kStyle =
    "body{font:15px/1.45 sans-serif;margin:2em auto;max-width:60em;padding:0 1em}"
    "h1{font-size:1.2em}table{border-collapse:collapse;width:100%}"
    "td{border-top:1px solid #ccc;padding:.3em .5em;vertical-align:top}"
    "td:first-child{font:bold 1em monospace;width:1em;text-align:center}"
    "pre{margin:.2em 0;white-space:pre-wrap;tab-size:4}"
    ".came,.p{background:#e2f4e2}.went,.m{background:#fbe4e4}.moved{background:#e6ecfa}";

const char* ClassOf(char sign) {
    switch (sign) {
    case '+':
        return "came";
    case '-':
        return "went";
    case '>':
        return "moved";
    default:
        return "changed";
    }
}

std::string Details(const ToldChange& told) {
    if (told.Details.empty())
        return {};
    std::string html = "<pre>";
    for (const std::string& line : told.Details) {
        const char* mark = line.starts_with('+') ? "p" : line.starts_with('-') ? "m" : "s";
        html += std::string("<span class=\"") + mark + "\">" + XmlTextOfUtf8(line) + "</span>\n";
    }
    return html + "</pre>";
}

} // namespace

std::string DiffHtml(const ChangeList& list, const FsmDocument& oldOne, const FsmDocument& newOne,
                     const std::string& names) {
    const std::string title = XmlTextOfUtf8(names) + ": " + CountText(list.Changes.size());
    std::string html = "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n<title>" +
                       title + "</title>\n<style>" + kStyle + "</style>\n</head>\n<body>\n<h1>" + title +
                       "</h1>\n";
    const std::string renumbering = TellRenumbering(list.Same);
    if (!renumbering.empty())
        html += "<p>Renumbered: " + renumbering + "</p>\n";
    html += "<table>\n";
    for (const Change& change : list.Changes) {
        const ToldChange told = TellChange(change, oldOne, newOne);
        html += std::string("<tr class=\"") + ClassOf(told.Sign) + "\"><td>" +
                XmlTextOfUtf8({&told.Sign, 1}) + "</td><td>" + XmlTextOfUtf8(told.Text) + Details(told) +
                "</td></tr>\n";
    }
    return html + "</table>\n</body>\n</html>\n";
}

} // namespace orvane::review
