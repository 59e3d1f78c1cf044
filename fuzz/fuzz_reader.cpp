// SPDX-License-Identifier: GPL-3.0-or-later
// Any bytes are read, and what was read is written: reading that again must give the same document and the
// same bytes.
#include "Require.h"
#include "core/DocumentReader.h"
#include "core/DocumentWriter.h"
#include "text/AnsiText.h"

#include <algorithm>
#include <cstdint>
#include <string>

using namespace orvane;

namespace {

// The lines that bytes have, whatever ends them.
std::size_t LineCount(std::string_view bytes) {
    std::size_t lines = 1;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        const bool pair = bytes[i] == '\r' && i + 1 < bytes.size() && bytes[i + 1] == '\n';
        if (!pair && (bytes[i] == '\r' || bytes[i] == '\n'))
            ++lines;
    }
    return lines;
}

void CheckMessages(const ReadResult& read, std::string_view bytes) {
    std::size_t line = 0;
    for (const ReaderMessage& message : read.Messages) {
        Require(!message.Text.empty(), "a message says something");
        Require(message.Line <= LineCount(bytes), "a message's line is one of the file's");
        Require(message.Line == 0 || message.Line >= line, "messages come in the order of the file");
        line = std::max(line, message.Line);
    }
    Require(!read.BrokeOff || !read.Messages.empty(), "a reading that broke off is told");
    Require(read.Messages.size() <= kMostUnknownTags + 3, "there are not too many messages to be shown");
}

// What the format cannot carry: event records of rows 4 and 5, tabs, and (seen by the caller) texts in which
// the delimiter forms a terminator with what follows.
FsmDocument Storable(FsmDocument document) {
    for (const int row : {kTimeoutRow, kElseRow})
        document.Event(row) = {};
    for (const StateNumber state : StateNumbers())
        document.State(state).LastTab = 0;
    return document;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    const ReadResult first = ReadDocument(bytes);
    CheckMessages(first, bytes);

    const std::string written = WriteDocument(first.Document);
    const ReadResult second = ReadDocument(written);
    Require(!second.BrokeOff, "what was written reads to its end");
    Require(second.Document == Storable(first.Document), "what was written reads back as it was");
    Require(WriteDocument(second.Document) == written, "the same document gives the same bytes");
    return 0;
}
