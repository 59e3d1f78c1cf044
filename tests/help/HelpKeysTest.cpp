// SPDX-License-Identifier: GPL-3.0-or-later
// Windows and panes are looked for in the code itself, so that a new one without a help page is not
// overlooked. That F1 opens the page is shown by the tests of the windows.
#include "support/FileBytes.h"
#include "support/Folders.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <map>
#include <regex>
#include <string>
#include <vector>

namespace orvane {
namespace {

namespace fs = std::filesystem;

// What the editors have in common; the greeting, which takes every key as its end; a hint; and the list over
// a cell, in which F1 is that of the table.
const std::vector<std::string> kWithoutPage = {"EditorDialog", "TabbedEditorDialog", "frmSplash",
                                               "frmMyToolTip", "frmChooseTarget"};

// The classes of windows and panes by their names, each with its code.
std::map<std::string, std::string> WindowsOfTheCode() {
    static const std::regex window(R"(class ((?:frm|dck)\w+|\w+Dialog)(?: final)? : public )");
    std::map<std::string, std::string> windows;
    for (const auto& entry : fs::recursive_directory_iterator(test::kSourceFolder)) {
        const fs::path& header = entry.path();
        if (header.extension() != ".h")
            continue;
        const std::string text = FileBytes(header);
        std::smatch found;
        if (std::regex_search(text, found, window))
            windows[found[1]] = FileBytes(fs::path(header).replace_extension(".cpp"));
    }
    for (const std::string& name : kWithoutPage)
        windows.erase(name);
    return windows;
}

// Empty where the window has none behind F1.
std::string PageOf(const std::string& code) {
    static const std::regex number(R"(k\w*HelpPage = (\d+);)");
    static const std::regex key(
        R"(AddHelpKey\(\*this, k\w*HelpPage\)|\bk\w*HelpPage, parent\))"); // by itself or its base
    std::smatch found;
    return std::regex_search(code, found, number) && std::regex_search(code, key) ? found[1].str() + ".htm"
                                                                                  : "";
}

TEST(HelpKeys, EveryWindowAndPaneOpensAPageThatIsThere) {
    const std::map<std::string, std::string> windows = WindowsOfTheCode();
    for (const std::string name :
         {"frmTable", "frmStateEdit", "frmBackTrack", "frmGenerator", "dckRun", "FindReplaceDialog"})
        EXPECT_TRUE(windows.contains(name)) << name;
    for (const auto& [name, code] : windows) {
        EXPECT_NE(PageOf(code), "") << name;
        EXPECT_TRUE(fs::is_regular_file(fs::path(test::kHelpFolder) / PageOf(code))) << name;
    }
}

TEST(HelpKeys, EveryNumberedPageIsThatOfSomeWindow) {
    std::vector<std::string> opened;
    for (const auto& [name, code] : WindowsOfTheCode())
        opened.push_back(PageOf(code));
    for (const auto& entry : fs::directory_iterator(test::kHelpFolder)) {
        const std::string name = entry.path().filename().string();
        const bool isNumbered = entry.path().extension() == ".htm" && name.front() <= '9';
        EXPECT_TRUE(!isNumbered || std::find(opened.begin(), opened.end(), name) != opened.end()) << name;
    }
}

} // namespace
} // namespace orvane
