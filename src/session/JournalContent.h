// SPDX-License-Identifier: GPL-3.0-or-later
// What the records of a journal say.
#pragma once

#include "core/Cell.h"
#include "session/JournalView.h"
#include "text/TextDelta.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace orvane {

class JournalBytesReader;
class JournalBytesWriter;

// What a document's file was when it was read or written.
struct JournalStamp {
    std::uint64_t Size = 0;                // bytes
    std::int64_t Modified = 0;             // as the file system says it, nanoseconds
    std::array<std::uint8_t, 32> Sha256{}; // of its bytes

    bool operator==(const JournalStamp&) const = default;
};

struct JournalHead {
    std::string Program;               // name and version of the program that wrote the journal
    std::string Path;                  // of the document, full, UTF-8; empty when it has no file
    std::optional<JournalStamp> Stamp; // none when it has no file
    // Names of the older journals in the same folder that this one holds everything of.
    std::vector<std::string> Replaces;

    bool operator==(const JournalHead&) const = default;
};

enum class JournalDraftKind : std::uint8_t { State = 1, Event, General, Action, Target, Script };

struct JournalField {
    std::string Name;
    std::string Text;

    bool operator==(const JournalField&) const = default;
};

// What is typed in an open editor and not yet in the document. Kind and place name the editor.
struct JournalDraft {
    JournalDraftKind Kind = JournalDraftKind::State;
    Cell Place;
    std::vector<JournalField> Fields;

    bool IsSameEditor(const JournalDraft& other) const { return Kind == other.Kind && Place == other.Place; }
    bool operator==(const JournalDraft&) const = default;
};

enum class JournalClose : std::uint8_t {
    NothingUnsaved = 1, // all of it is in the document's file
    Discarded,          // the user was asked and did not want it
};

// The records. Texts live where the bytes live that they were read from.
struct HeadRecord {
    JournalHead Head;
    bool operator==(const HeadRecord&) const = default;
};
// The document as the writer writes it, as a change of the one before it; of nothing, the first time.
struct DocumentRecord {
    TextDelta Change;
    // This text, and not the present image, says what the document is. Undo cannot carry a text with the
    // delimiter in it, which a file from elsewhere may hold; the writer can.
    bool InsteadOfImage = false;
    bool operator==(const DocumentRecord&) const = default;
};
// The history begins here; the image as a change of the present one, or of nothing, the first time.
struct ImageRecord {
    TextDelta Change;
    bool CountsAsSaved = false; // otherwise the saved image stays what it was
    bool operator==(const ImageRecord&) const = default;
};
// One more step of the history: what the user did, and its image as a change of the present one.
struct CommitRecord {
    std::string_view Name;
    TextDelta Change;
    bool operator==(const CommitRecord&) const = default;
};
// Undo (below 0) or redo.
struct MoveRecord {
    std::int64_t Steps = 0;
    bool operator==(const MoveRecord&) const = default;
};
struct ViewRecord {
    JournalView View;
    bool operator==(const ViewRecord&) const = default;
};
struct DraftRecord {
    JournalDraft Draft; // takes the place of an older one of the same editor
    bool operator==(const DraftRecord&) const = default;
};
struct DraftGoneRecord {
    JournalDraft Editor; // without fields
    bool operator==(const DraftGoneRecord&) const = default;
};
// The present image is in this file.
struct SavedRecord {
    std::string Path; // full, UTF-8
    JournalStamp Stamp;
    bool operator==(const SavedRecord&) const = default;
};
struct ClosedRecord {
    JournalClose Reason = JournalClose::NothingUnsaved;
    bool operator==(const ClosedRecord&) const = default;
};
// The records up to here say how things stood when this file was begun; what the user did follows.
struct StandRecord {
    std::uint64_t Changes = 0; // steps, undos and redos that had been made and not saved
    bool operator==(const StandRecord&) const = default;
};

// A record's type in the file is its place in this list, from 1 on.
using RecordContent =
    std::variant<HeadRecord, DocumentRecord, ImageRecord, CommitRecord, MoveRecord, ViewRecord, DraftRecord,
                 DraftGoneRecord, SavedRecord, ClosedRecord, StandRecord>;

inline constexpr std::size_t kRecordTypes = std::variant_size_v<RecordContent>;

// The type in the file, 1..kRecordTypes.
std::uint8_t TypeOf(const RecordContent& content);

void WriteContent(const RecordContent& content, JournalBytesWriter& bytes);

// The whole body of a record of that type; none when it is not such a body to its last byte.
std::optional<RecordContent> ReadContent(std::uint8_t type, JournalBytesReader& bytes);

} // namespace orvane
