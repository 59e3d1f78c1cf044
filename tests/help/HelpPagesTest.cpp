// SPDX-License-Identifier: GPL-3.0-or-later
// What stands in more than one help page, or is made of what others say, agrees. With ORVANE_BLESS=1 in the
// environment it is written.
#include "support/HelpPages.h"
#include "session/Commands.h"
#include "support/Folders.h"
#include "support/GoldenFile.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>

namespace orvane {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

std::filesystem::path FileOf(const std::string& name) {
    return std::filesystem::path(test::kHelpFolder) / name;
}

std::vector<test::HelpPage> Pages() { return test::HelpPagesOf(FileBytes(FileOf("index.htm"))); }

// "Ctrl+Shift+S" as keys to be pressed together.
std::string KeyCaps(std::string_view keys) {
    std::string caps = "<kbd>";
    for (std::size_t at = 0; at < keys.size(); ++at) {
        const bool parts = keys[at] == '+' && at != 0 && at + 1 < keys.size();
        caps += parts ? "</kbd>+<kbd>" : std::string(1, keys[at]);
    }
    return caps + "</kbd>";
}

std::string KeysOfCommands() {
    std::string rows = "<table>\n<tr><th>Command</th><th>Keys</th></tr>\n";
    std::string menu;
    for (const CommandEntry& entry : kCommands) {
        if (entry.Kind == EntryKind::BarMenu)
            menu = entry.Caption;
        if (entry.Keys.empty())
            continue;
        std::string caption(entry.Caption);
        std::erase(caption, '&');
        rows += "<tr><td>" + menu + ": " + caption + "</td><td>" + KeyCaps(entry.Keys) +
                (entry.Where == HeardIn::TheTable ? " in the table" : "") + "</td></tr>\n";
    }
    return rows + "</table>\n";
}

std::vector<test::HelpSection> AllSections() {
    std::vector<test::HelpSection> all;
    for (const test::HelpPage& page : Pages()) {
        if (page.File == "index.htm")
            continue; // it leads to the others
        const auto sections = test::SectionsOf(page.File, FileBytes(FileOf(page.File)));
        all.insert(all.end(), sections.begin(), sections.end());
    }
    return all;
}

TEST(GoldenHelpPages, EachHasTheRowOfAllAndIdsToLinkTo) {
    const std::vector<test::HelpPage> pages = Pages();
    for (const test::HelpPage& page : pages) {
        const std::string bytes = FileBytes(FileOf(page.File));
        test::ExpectGolden(FileOf(page.File),
                           test::WithHeadingIds(test::WithRowOfPages(bytes, page.File, pages)));
    }
}

TEST(GoldenHelpPages, TheKeysOfAllCommandsAreThoseOfTheMenus) {
    const std::string page = FileBytes(FileOf("keys.htm"));
    test::ExpectGolden(FileOf("keys.htm"), test::WithPart(page, "commands", KeysOfCommands()));
}

TEST(GoldenHelpPages, TheTableOfContentsHasEveryHeading) {
    const std::string page = FileBytes(FileOf("index.htm"));
    test::ExpectGolden(FileOf("index.htm"),
                       test::WithPart(page, "contents", test::TableOfContents(AllSections())));
}

TEST(GoldenHelpPages, TheSearchKnowsEveryWord) {
    test::ExpectGolden(FileOf("sections.js"), test::SearchTexts(AllSections()));
}

TEST(HelpPages, EveryPageThatIsThereStandsInTheRow) {
    std::vector<std::string> there;
    for (const auto& entry : std::filesystem::directory_iterator(test::kHelpFolder)) {
        if (entry.path().extension() == ".htm")
            there.push_back(entry.path().filename().string());
    }
    std::vector<std::string> listed;
    for (const test::HelpPage& page : Pages())
        listed.push_back(page.File);
    EXPECT_THAT(there, testing::UnorderedElementsAreArray(listed));
}

TEST(HelpPages, EachCanBeSearchedFrom) {
    for (const test::HelpPage& page : Pages()) {
        const std::string bytes = FileBytes(FileOf(page.File));
        EXPECT_THAT(bytes, HasSubstr("<script defer src=\"sections.js\"></script>\n"
                                     "<script defer src=\"search.js\"></script>\n</head>"))
            << page.File;
    }
}

TEST(HelpPages, EachEndsWithTheSameFoot) {
    for (const test::HelpPage& page : Pages())
        EXPECT_THAT(
            FileBytes(FileOf(page.File)),
            testing::EndsWith("</main>\n<footer><p>Orvane help. <kbd>F1</kbd> in any window or pane opens "
                              "its page.</p></footer>\n</body>\n</html>\n"))
            << page.File;
}

TEST(HelpPages, NoHeadingStandsTwiceOnAPage) {
    for (const test::HelpPage& page : Pages()) {
        std::vector<std::string> ids;
        for (const auto& section : test::SectionsOf(page.File, FileBytes(FileOf(page.File))))
            ids.push_back(section.Id);
        std::sort(ids.begin(), ids.end());
        EXPECT_EQ(std::adjacent_find(ids.begin(), ids.end()), ids.end()) << page.File;
    }
}

TEST(HelpPages, ATextIsReadWithoutItsMarkup) {
    const std::string page = "<h1>A &amp; B</h1>\n<p>Press <kbd>Ctrl</kbd>+<kbd>S</kbd>,\n<b>now</b>.</p>"
                             "<table><tr><td>x</td><td>&lt;y&gt;</td></tr></table>\n"
                             "<h2>What can go wrong?</h2><ul><li>much</li><li>more</li></ul></main>";
    const auto sections = test::SectionsOf("p.htm", test::WithHeadingIds(page));
    ASSERT_EQ(sections.size(), 2U);
    EXPECT_EQ(sections[0].Title, "A & B");
    EXPECT_EQ(sections[0].Text, "Press Ctrl+S, now. x <y>");
    EXPECT_EQ(sections[1].Id, "what-can-go-wrong");
    EXPECT_EQ(sections[1].Text, "much more");
}

} // namespace
} // namespace orvane
