// SPDX-License-Identifier: GPL-3.0-or-later
// What holds for every document and every file, on random ones.
#include "core/DocumentReader.h"
#include "core/DocumentWriter.h"
#include "core/TightPacked.h"
#include "support/Property.h"
#include "support/RandomDocument.h"

namespace orvane::test {
namespace {

// A mode that does not fit the image's one character is packed as 255.
FsmDocument PackedPart(FsmDocument document) {
    for (const StateNumber state : StateNumbers()) {
        std::int32_t& mode = document.State(state).TimingMode;
        if (mode < 0 || mode > 255)
            mode = 255;
    }
    return document;
}

// The design of one document, looked at like another.
FsmDocument DesignOfSeenLike(const FsmDocument& design, const FsmDocument& looks) {
    FsmDocument both = PackedPart(design);
    both.View = looks.View;
    both.General.BuildFile = looks.General.BuildFile;
    for (const StateNumber state : StateNumbers()) {
        both.State(state).ColWidth = looks.State(state).ColWidth;
        both.State(state).LastTab = looks.State(state).LastTab;
    }
    for (const RowNumber row : CellRows())
        both.Event(row).LastTab = looks.Event(row).LastTab;
    return both;
}

std::string Formatted(std::string_view bytes) { return WriteDocument(ReadDocument(bytes).Document); }

// CR LF, LF and CR end lines.
std::size_t LineCount(std::string_view bytes) {
    std::size_t lines = 1;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        const bool secondOfPair = bytes[i] == '\n' && i > 0 && bytes[i - 1] == '\r';
        if ((bytes[i] == '\r' || bytes[i] == '\n') && !secondOfPair)
            ++lines;
    }
    return lines;
}

// The lines of the messages lie in the file and never go back; only the last one may concern all of it.
bool LinesAreSane(const ReadResult& result, std::string_view bytes) {
    std::size_t last = 0;
    for (const ReaderMessage& message : result.Messages) {
        if (message.Line == 0)
            return &message == &result.Messages.back() && !message.Text.empty();
        if (message.Text.empty() || message.Line < last || message.Line > LineCount(bytes))
            return false;
        last = message.Line;
    }
    return true;
}

TEST(DocumentProperties, AWrittenDocumentReadsBackWithEveryStoredField) {
    ExpectProperty({.Cases = 3000, .LargestSize = 200}, [] {
        const FsmDocument document = *AnyDocument();
        const ReadResult read = ReadDocument(WriteDocument(document));
        RC_ASSERT(read.Messages.empty());
        RC_ASSERT(!read.BrokeOff);
        RC_ASSERT(read.Document == StoredPart(document));
    });
}

TEST(DocumentProperties, AFileThatWasWrittenIsWrittenAgainByteForByte) {
    ExpectProperty({.Cases = 2000, .LargestSize = 200}, [] {
        const std::string bytes = WriteDocument(*AnyDocument());
        RC_ASSERT(Formatted(bytes) == bytes);
    });
}

TEST(DocumentProperties, OtherLineEndsReadAsTheSameDocument) {
    ExpectProperty({.Cases = 500, .LargestSize = 200}, [] {
        const std::string bytes = WriteDocument(*AnyDocument());
        const char end = *rc::gen::element('\r', '\n');
        std::string other;
        for (std::size_t i = 0; i < bytes.size(); ++i) {
            if (bytes[i] == '\n')
                continue;
            other += bytes[i] == '\r' ? end : bytes[i];
        }
        RC_ASSERT(Formatted(other) == bytes);
    });
}

TEST(DocumentProperties, FormattingTwiceChangesNothingMoreWhateverTheBytes) {
    const auto property = [](const std::string& bytes) {
        const std::string once = Formatted(bytes);
        RC_ASSERT(Formatted(once) == once);
    };
    ExpectProperty({.Cases = 3000, .LargestSize = 200}, [&] { property(*DamagedFile()); });
    ExpectProperty({.Cases = 3000, .LargestSize = 200}, [&] { property(*TagSoup()); });
    ExpectProperty({.Cases = 500, .LargestSize = 200}, [&] { property(*rc::gen::arbitrary<std::string>()); });
}

TEST(DocumentProperties, MessagesOfAnyFileNameALineOfIt) {
    const auto property = [](const std::string& bytes) {
        const ReadResult result = ReadDocument(bytes);
        RC_ASSERT(LinesAreSane(result, bytes));
        RC_ASSERT(!result.BrokeOff || !result.Messages.empty());
    };
    ExpectProperty({.Cases = 3000, .LargestSize = 200}, [&] { property(*DamagedFile()); });
    ExpectProperty({.Cases = 3000, .LargestSize = 200}, [&] { property(*TagSoup()); });
    ExpectProperty({.Cases = 500, .LargestSize = 200}, [&] { property(*rc::gen::arbitrary<std::string>()); });
}

TEST(DocumentProperties, UnpackingGivesTheDesignAndKeepsTheLooks) {
    ExpectProperty({.Cases = 2000, .LargestSize = 200}, [] {
        const FsmDocument design = *AnyDocument();
        const FsmDocument looks = *AnyDocument();
        FsmDocument document = looks;
        RC_ASSERT(Unpack(Pack(design), document).empty());
        RC_ASSERT(document == DesignOfSeenLike(design, looks));
    });
}

TEST(DocumentProperties, AnUnpackedImagePacksToItself) {
    ExpectProperty({.Cases = 1500, .LargestSize = 200}, [] {
        const std::string image = Pack(*AnyDocument());
        FsmDocument document;
        RC_ASSERT(Unpack(image, document).empty());
        RC_ASSERT(Pack(document) == image);
    });
}

TEST(DocumentProperties, ADamagedImageStillUnpacksToADocumentThatCanBeSaved) {
    ExpectProperty({.Cases = 2000, .LargestSize = 200}, [] {
        std::string image = Pack(*AnyDocument());
        const std::size_t place = *rc::gen::inRange<std::size_t>(0, image.size());
        image[place] = *rc::gen::arbitrary<char>();
        image.resize(*rc::gen::inRange<std::size_t>(0, image.size() + 1));
        FsmDocument document;
        (void)Unpack(image, document);
        const std::string bytes = Formatted(WriteDocument(document));
        RC_ASSERT(Formatted(bytes) == bytes);
    });
}

} // namespace
} // namespace orvane::test
