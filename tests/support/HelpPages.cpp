// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/HelpPages.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <stdexcept>
#include <utility>

namespace orvane::test {

namespace {

constexpr std::string_view kRowBegin = "<nav aria-label=\"Pages\">\n";
constexpr std::string_view kRowEnd = "</nav>\n";

// What stands between two marks, the first place of them; both must be there.
struct Span {
    std::size_t Begin;
    std::size_t End;
};

Span Between(std::string_view text, std::string_view begin, std::string_view end) {
    const std::size_t from = text.find(begin);
    const std::size_t to = from == std::string_view::npos ? from : text.find(end, from + begin.size());
    if (to == std::string_view::npos)
        throw std::runtime_error("a help page without " + std::string(begin));
    return {from + begin.size(), to};
}

std::string Inside(std::string_view text, std::string_view begin, std::string_view end) {
    const Span span = Between(text, begin, end);
    return std::string(text.substr(span.Begin, span.End - span.Begin));
}

std::string WithCharacters(std::string text) {
    constexpr auto kEntities = std::to_array<std::pair<std::string_view, std::string_view>>(
        {{"&lt;", "<"}, {"&gt;", ">"}, {"&quot;", "\""}, {"&nbsp;", " "}, {"&amp;", "&"}});
    for (const auto& [entity, character] : kEntities) {
        for (std::size_t at = 0; (at = text.find(entity, at)) != std::string::npos; at += character.size())
            text.replace(at, entity.size(), character);
    }
    return text;
}

// A tag that ends no word: a letter may be bold, and keys that are pressed together are one.
bool IsWithinWords(std::string_view tag) {
    constexpr auto kTags = std::to_array<std::string_view>({"a", "b", "code", "em", "i", "kbd", "span"});
    const std::string_view name = tag.substr(tag.starts_with("</") ? 2 : 1);
    return std::find(kTags.begin(), kTags.end(), name.substr(0, name.find_first_of(" >"))) != kTags.end();
}

// The words of a piece of a page, one blank between them.
std::string Words(std::string_view html) {
    std::string text;
    while (!html.empty()) {
        const bool isTag = html.front() == '<';
        const bool isBlank = std::isspace(static_cast<unsigned char>(html.front())) != 0;
        if (isBlank || (isTag && !IsWithinWords(html)))
            text.append(text.empty() || text.back() == ' ' ? 0 : 1, ' ');
        else if (!isTag)
            text += html.front();
        html.remove_prefix(isTag ? std::min(html.find('>'), html.size() - 1) + 1 : 1);
    }
    while (text.ends_with(' '))
        text.pop_back();
    return WithCharacters(text);
}

std::string IdOf(const std::string& title) {
    std::string id;
    for (const char letter : title) {
        const auto c = static_cast<unsigned char>(letter);
        if (std::isalnum(c) != 0)
            id += char(std::tolower(c));
        else if (!id.empty() && id.back() != '-')
            id += '-';
    }
    while (id.ends_with('-'))
        id.pop_back();
    return id;
}

std::string Quoted(std::string_view text) {
    std::string quoted = "\"";
    for (const char letter : text) {
        if (letter == '"' || letter == '\\')
            quoted += '\\';
        quoted += letter;
    }
    return quoted + '"';
}

std::string Escaped(std::string_view text) {
    std::string escaped;
    for (const char letter : text)
        escaped += letter == '<' ? "&lt;" : letter == '&' ? "&amp;" : std::string(1, letter);
    return escaped;
}

std::string LinkTo(const HelpSection& section) {
    return section.File + (section.Id.empty() ? "" : "#" + section.Id);
}

} // namespace

std::vector<HelpPage> HelpPagesOf(std::string_view startPage) {
    std::vector<HelpPage> pages;
    std::string row = Inside(startPage, kRowBegin, kRowEnd);
    while (!row.empty()) {
        pages.push_back({Inside(row, "href=\"", "\""), Inside(row, ">", "</a>")});
        row.erase(0, row.find('\n') + 1);
    }
    return pages;
}

std::string WithRowOfPages(std::string page, const std::string& file, const std::vector<HelpPage>& pages) {
    std::string row;
    for (const HelpPage& other : pages)
        row += "<a href=\"" + other.File + (other.File == file ? "\" aria-current=\"page\">" : "\">") +
               other.Caption + "</a>\n";
    const Span span = Between(page, kRowBegin, kRowEnd);
    return page.replace(span.Begin, span.End - span.Begin, row);
}

std::string WithHeadingIds(const std::string& page) {
    constexpr std::string_view kHeading = "<h2>";
    std::string result;
    std::size_t done = 0;
    for (std::size_t at = 0; (at = page.find(kHeading, at)) != std::string::npos; at += kHeading.size()) {
        const std::string title = Words(Inside(std::string_view(page).substr(at), kHeading, "</h2>"));
        result += page.substr(done, at - done) + "<h2 id=\"" + IdOf(title) + "\">";
        done = at + kHeading.size();
    }
    return result + page.substr(done);
}

std::string WithPart(const std::string& page, const std::string& name, const std::string& part) {
    const std::string begin = "<!-- " + name + " -->\n";
    const Span span = Between(page, begin, "<!-- /" + name + " -->\n");
    return std::string(page).replace(span.Begin, span.End - span.Begin, part);
}

std::string TitleOf(std::string_view page) { return Words(Inside(page, "<h1>", "</h1>")); }

std::vector<HelpSection> SectionsOf(const std::string& file, std::string_view page) {
    std::string rest = Inside(page, "</h1>", "</main>");
    std::vector<HelpSection> sections;
    HelpSection section{file, {}, TitleOf(page), {}};
    for (std::size_t heading; (heading = rest.find("<h2 ")) != std::string::npos;) {
        section.Text = Words(rest.substr(0, heading));
        sections.push_back(section);
        rest.erase(0, heading);
        section = {file, Inside(rest, "id=\"", "\""), Words(Inside(rest, ">", "</h2>")), {}};
        rest.erase(0, rest.find("</h2>"));
    }
    section.Text = Words(rest);
    sections.push_back(section);
    return sections;
}

std::string SearchTexts(const std::vector<HelpSection>& sections) {
    std::string script = "// What the help pages say. Written by scripts/bless.\nconst kSections = [\n";
    for (const HelpSection& section : sections)
        script += "[" + Quoted(LinkTo(section)) + ", " + Quoted(section.Title) + ", " + Quoted(section.Text) +
                  "],\n";
    return script + "];\n";
}

std::string TableOfContents(const std::vector<HelpSection>& sections) {
    std::string list;
    bool isOpen = false;
    for (const HelpSection& section : sections) {
        if (section.Id.empty()) {
            list += isOpen ? "</ul></li>\n" : "";
            list += "<li><a href=\"" + LinkTo(section) + "\">" + Escaped(section.Title) + "</a><ul>\n";
            isOpen = true;
        } else {
            list += "<li><a href=\"" + LinkTo(section) + "\">" + Escaped(section.Title) + "</a></li>\n";
        }
    }
    return "<ul class=\"contents\">\n" + list + "</ul></li>\n</ul>\n";
}

} // namespace orvane::test
