// SPDX-License-Identifier: GPL-3.0-or-later
// Any bytes are read as a document in another form. The first one says which; what is understood can leave
// again in every form, and as JSON comes back as it was.
#include "Require.h"
#include "diagram/Layout.h"
#include "diagram/LetterWidths.h"
#include "diagram/Svg.h"
#include "export/Exports.h"
#include "export/Imports.h"

#include <cstdint>
#include <string_view>

using namespace orvane;

namespace {

exports::ImportResult Read(char form, std::string_view text) {
    if (form == 'j')
        return exports::ReadJson(text);
    return form == 'x' ? exports::ReadScxml(text) : exports::ReadCsv(text);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0)
        return 0;
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const exports::ImportResult read = Read(text.front(), text.substr(1));
    Require(read.Document || !read.Messages.empty(), "a refusal says why");
    if (!read.Document)
        return 0;
    const exports::ImportResult again = exports::ReadJson(exports::JsonOf(*read.Document));
    Require(again.Document && *again.Document == *read.Document, "JSON gives the same document again");
    Require(exports::ReadCsv(exports::CsvLongOf(*read.Document)).Document.has_value(),
            "long tables are read");
    Require(exports::ReadScxml(exports::ScxmlOf(*read.Document)).Document.has_value(), "charts are read");
    exports::HtmlOf(*read.Document);
    exports::MarkdownOf(*read.Document);
    exports::MermaidOf(*read.Document);
    exports::PlantUmlOf(*read.Document);
    constexpr std::size_t fewEdges = 30; // more take longer than a fuzzer has
    const diagram::LetterWidths sizes;
    if (diagram::MergedEdges(*read.Document) <= fewEdges) {
        const diagram::Scene scene = diagram::MakeScene(*read.Document, sizes);
        diagram::SvgOf(scene, diagram::ColdLayout(scene, sizes, diagram::Direction::LeftToRight), sizes);
    }
    return 0;
}
