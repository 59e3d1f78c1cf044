// SPDX-License-Identifier: GPL-3.0-or-later
// The help pages as texts: what is the same in all of them, and what is made of other things.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace orvane::test {

struct HelpPage {
    std::string File;    // "4835.htm"
    std::string Caption; // as the row of pages has it, "Table"
};

// A heading of a page with what stands below it, up to the next one.
struct HelpSection {
    std::string File;
    std::string Id;    // of the heading, for links; the page's own has none
    std::string Title; // as it is read, without markup
    std::string Text;  // likewise, in one line
};

// In the order of the row of pages on the start page.
std::vector<HelpPage> HelpPagesOf(std::string_view startPage);

// The page with the row of all pages, in which it is marked itself.
std::string WithRowOfPages(std::string page, const std::string& file, const std::vector<HelpPage>& pages);
// Headings of the second rank have an id, made of their words where none was given.
std::string WithHeadingIds(const std::string& page);
// What stands between the marks <!-- NAME --> and <!-- /NAME --> is this.
std::string WithPart(const std::string& page, const std::string& name, const std::string& part);

std::string TitleOf(std::string_view page);
std::vector<HelpSection> SectionsOf(const std::string& file, std::string_view page);

// For the script of the search field: an array of [link, title, text].
std::string SearchTexts(const std::vector<HelpSection>& sections);
std::string TableOfContents(const std::vector<HelpSection>& sections);

} // namespace orvane::test
