// SPDX-License-Identifier: GPL-3.0-or-later
// The pictures in docs/diagrams are what `orvanec diagram` draws of the examples, byte by byte.
#include "diagram/Dot.h"
#include "diagram/Layout.h"
#include "diagram/LetterWidths.h"
#include "diagram/Svg.h"
#include "support/Folders.h"
#include "support/GoldenFile.h"
#include "support/MachineJson.h"

namespace orvane::diagram {
namespace {

TEST(GoldenDiagrams, OfTheExamplesAreThoseInTheDocumentation) {
    const LetterWidths sizes;
    for (const test::NamedDocument& example : test::ExampleDocuments()) {
        const Scene scene = MakeScene(example.Document, sizes);
        const std::filesystem::path name = std::filesystem::path(example.Name).replace_extension(".svg");
        test::ExpectGolden(test::kDiagramsFolder / name,
                           SvgOf(scene, FittingLayout(scene, sizes, {0, 0, 1200, 800}), sizes));
    }
}

// Every byte of the code page as a name, and what means something in XML and DOT.
FsmDocument Hostile() {
    FsmDocument document;
    document.General.FsmName = "M";
    for (int byte = 1; byte < 256; ++byte) {
        const int state = byte % 50 + 1;
        document.State(state).Name += char(byte);
        document.Event(6 + byte % 49).Name += char(byte);
        document.State(state).Targets[6 + byte % 49] = byte % 17 + 1;
    }
    document.State(51).Name = "]]></title><script>alert('\"&amp;\\N')</script>";
    document.State(51).Targets[7] = 1;
    return document;
}

TEST(DiagramSvg, HasNoMarkupOfANameInIt) {
    const LetterWidths sizes;
    const Scene scene = MakeScene(Hostile(), sizes);
    const std::string svg = SvgOf(scene, ColdLayout(scene, sizes, Direction::LeftToRight), sizes);
    EXPECT_EQ(svg.find("<script"), std::string::npos);
    EXPECT_EQ(svg.find("]]>"), std::string::npos);
    EXPECT_NE(svg.find("&lt;script&gt;alert(&#39;&quot;&amp;amp;"), std::string::npos);
    for (const char control : svg)
        EXPECT_TRUE(control == '\n' || control == '\t' || control < 0 || control >= 0x20);
    const auto file = std::filesystem::temp_directory_path() / "orvane-hostile.svg";
    WriteFileBytes(file, svg);
    if (std::system("command -v xmllint >/dev/null") == 0) {
        EXPECT_EQ(std::system(("xmllint --noout '" + file.string() + "'").c_str()), 0);
    }
    std::filesystem::remove(file);
}

TEST(DiagramDot, QuotesWhatWouldEndANameOrBeginAnEscape) {
    const std::string dot = DotOf(MakeScene(Hostile(), LetterWidths()), Direction::LeftToRight);
    EXPECT_NE(dot.find("51:]]></title><script>alert('\\\"&amp;a"), std::string::npos) << dot;
    const auto file = std::filesystem::temp_directory_path() / "orvane-hostile.dot";
    WriteFileBytes(file, dot);
    if (std::system("command -v dot >/dev/null") == 0) {
        EXPECT_EQ(std::system(("dot -Tcanon '" + file.string() + "' >/dev/null").c_str()), 0);
    }
    std::filesystem::remove(file);
}

} // namespace
} // namespace orvane::diagram
