// SPDX-License-Identifier: GPL-3.0-or-later
// What programs of others read in our exports, of a machine whose names hold every byte that a name can.
// Programs that are not installed are not asked.
#include "cli/Orvanec.h"

#include <gmock/gmock.h>

#include <cstdlib>

namespace orvane {
namespace {

bool IsInstalled(const std::string& program) {
    return std::system(("command -v " + program + " >/dev/null 2>&1").c_str()) == 0;
}

class ForeignReaders : public Orvanec {
  protected:
    ForeignReaders() {
        std::string name = "]]> <script>alert(1)</script> -- ";
        for (int byte = 1; byte < 256; ++byte) {
            if (byte != 0xA4 && byte != '\r' && byte != '\n')
                name += static_cast<char>(byte);
        }
        std::string document = PumpDocument();
        document.replace(document.find("<NAME>Idle") + 6, 4, name);
        document.insert(document.find("\xA4<CODE>;start?"), "\xA4<NAME>" + name + "\xA4/\r\n  ");
        WriteFile("hostile.zfsm", document);
    }

    void Export(const std::string& form, const std::string& file) const {
        EXPECT_EQ(Run("export hostile.zfsm --format=" + form + " -o " + file).Status, 0);
    }

    // What the program says, empty when it has nothing against the file.
    std::string Complaint(const std::string& command) const {
        const std::string run = "cd '" + Path(".").string() + "' && " + "(" + command + ") >complaint 2>&1";
        const int status = std::system(run.c_str());
        return status == 0 ? "" : command + ": " + ReadFile("complaint");
    }
};

TEST_F(ForeignReaders, OfXmlTakeChartsAndPictures) {
    if (!IsInstalled("xmllint"))
        GTEST_SKIP() << "no xmllint here";
    Export("scxml", "chart.scxml");
    EXPECT_EQ(Run("diagram hostile.zfsm -o picture.svg").Status, 0);
    EXPECT_EQ(Complaint("xmllint --noout chart.scxml"), "");
    EXPECT_EQ(Complaint("xmllint --noout picture.svg"), "");
}

TEST_F(ForeignReaders, OfChartsTakeOurs) {
    const std::string compiler = "/usr/lib/qt6/libexec/qscxmlc";
    if (!IsInstalled(compiler))
        GTEST_SKIP() << "no qscxmlc here";
    Export("scxml", "chart.scxml");
    EXPECT_EQ(Complaint(compiler + " chart.scxml"), "");
}

TEST_F(ForeignReaders, OfGraphsTakeDot) {
    if (!IsInstalled("dot"))
        GTEST_SKIP() << "no dot here";
    Export("dot", "graph.dot");
    EXPECT_EQ(Complaint("dot -Tplain graph.dot"), "");
}

TEST_F(ForeignReaders, OfTablesFindAsManyCellsInEveryLine) {
    if (!IsInstalled("python3"))
        GTEST_SKIP() << "no python3 here";
    Export("csv", "grid.csv");
    Export("csv-long", "long.csv");
    WriteFile("cells.py", "import csv\n"
                          "for name in ('grid.csv', 'long.csv'):\n"
                          "    with open(name, encoding='utf-8-sig', newline='') as file:\n"
                          "        lines = list(csv.reader(file))\n"
                          "    assert len(lines) > 3, name\n"
                          "    assert len(set(map(len, lines))) == 1, (name, list(map(len, lines)))\n");
    EXPECT_EQ(Complaint("python3 cells.py"), "");
}

TEST_F(ForeignReaders, OfJsonFindEveryCharacterOfTheName) {
    if (!IsInstalled("python3"))
        GTEST_SKIP() << "no python3 here";
    Export("json", "machine.json");
    WriteFile("name.py", "import json\n"
                         "name = json.load(open('machine.json', encoding='utf-8'))['states'][0]['name']\n"
                         "assert len(name) == 33 + 252, len(name)\n"
                         "assert name.startswith(']]> <script>') and name.endswith('\\xfe\\xff'), name\n");
    EXPECT_EQ(Complaint("python3 name.py"), "");
}

TEST_F(ForeignReaders, OfWebPagesFindNoScript) {
    if (!IsInstalled("python3"))
        GTEST_SKIP() << "no python3 here";
    Export("html", "page.html");
    WriteFile("tags.py", "from html.parser import HTMLParser\n"
                         "class Tags(HTMLParser):\n"
                         "    tags, open = set(), []\n"
                         "    def handle_starttag(self, tag, attributes):\n"
                         "        self.tags.add(tag)\n"
                         "        if tag != 'meta': self.open.append(tag)\n"
                         "    def handle_endtag(self, tag):\n"
                         "        assert self.open.pop() == tag, tag\n"
                         "tags = Tags()\n"
                         "tags.feed(open('page.html', encoding='utf-8').read())\n"
                         "assert not tags.open, tags.open\n"
                         "assert 'script' not in tags.tags and 'pre' in tags.tags, tags.tags\n");
    EXPECT_EQ(Complaint("python3 tags.py"), "");
}

// What a browser makes of a page or a picture, as text again.
TEST_F(ForeignReaders, OfTheWebShowNamesAsTheyAreAndRunNothing) {
    const auto shown = [this](const std::string& file) {
        return Complaint("timeout 120 chromium --headless --no-sandbox --disable-gpu --disable-dev-shm-usage "
                         "--user-data-dir=profile --dump-dom \"file://$PWD/" +
                         file + "\" >shown");
    };
    WriteFile("plain.html", "<p>plain</p>");
    if (!IsInstalled("chromium") || !shown("plain.html").empty())
        GTEST_SKIP() << "no chromium that starts here";
    Export("html", "page.html");
    EXPECT_EQ(Run("diagram hostile.zfsm -o picture.svg").Status, 0);
    for (const std::string file : {"page.html", "picture.svg"}) {
        EXPECT_EQ(shown(file), "");
        const std::string text = ReadFile("shown");
        EXPECT_THAT(text, testing::HasSubstr("]]&gt; &lt;script&gt;")) << file;
        EXPECT_THAT(text, testing::Not(testing::HasSubstr("<script"))) << file;
        EXPECT_THAT(text, testing::Not(testing::HasSubstr("parsererror"))) << file;
    }
}

} // namespace
} // namespace orvane
