// SPDX-License-Identifier: GPL-3.0-or-later
// Any bytes are unpacked over a document that already holds something: the document stays one that packs, and
// its image unpacks to itself.
#include "Require.h"
#include "core/TightPacked.h"
#include "text/AnsiText.h"

#include <cstdint>
#include <string>

using namespace orvane;

namespace {

FsmDocument Used() {
    FsmDocument document;
    document.View.Polytask = true;
    document.General.BuildFile = "build";
    document.General.FsmName = "USED";
    document.Event(6) = {"name", "code", "tip", 1};
    document.State(1).Name = "used";
    document.State(1).ColWidth = 77;
    document.State(1).LastTab = 2;
    return document;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view image(reinterpret_cast<const char*>(data), size);
    FsmDocument document = Used();
    const std::vector<std::string> messages = Unpack(image, document);

    Require(document.View == Used().View, "the view stays");
    Require(document.General.BuildFile == "build", "the builder script stays");
    Require(document.State(1).ColWidth == 77 && document.State(1).LastTab == 2, "widths and tabs stay");
    if (!image.starts_with('0'))
        Require(document == Used() && messages.size() == 1, "an image of another format changes nothing");

    const std::string packed = Pack(document);
    FsmDocument again = Used();
    Require(Unpack(packed, again).empty(), "what was packed unpacks without a message");
    again.Event(6).LastTab = document.Event(6).LastTab;
    Require(again == document, "what was packed unpacks as it was");
    Require(Pack(again) == packed, "the same document gives the same image");
    return 0;
}
