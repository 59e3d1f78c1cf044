// SPDX-License-Identifier: GPL-3.0-or-later
#include "session/JournalWriter.h"

#include "session/JournalBytes.h"
#include "session/RecoveryName.h"

#include <algorithm>
#include <random>
#include <utility>

namespace orvane {

namespace {

std::string FreshSalt() {
    std::random_device random;
    std::string salt;
    for (std::size_t i = 0; i < kJournalSaltSize; ++i)
        JournalBytesWriter(salt).Byte(random() & 0xFF);
    return salt;
}

} // namespace

JournalWriter::JournalWriter(JournalPlace place, const JournalSource& source)
    : place_(std::move(place)),
      source_(source),
      syncer_(place_.Files, place_.Folder, place_.Syncing, place_.SyncDelay) {}

JournalWriter::~JournalWriter() {
    syncer_.Finish();
    std::vector<RetiredJournal> left = syncer_.Forget();
    left.insert(left.end(), retired_.begin(), retired_.end());
    for (const RetiredJournal& journal : left)
        (void)place_.Files.Close(journal.Lock);
    if (file_)
        (void)place_.Files.Close(file_);
}

void JournalWriter::Committed(std::string_view before, std::string_view after, std::string_view name) {
    ++changes_;
    // A caller whose present image is another one would have the reader put together what never was.
    if (before.size() != imageSize_)
        sound_ = false;
    imageSize_ = after.size();
    AppendStep(CommitRecord{name, Difference(before, after)});
}

void JournalWriter::Moved(int steps, std::string_view image) {
    ++changes_;
    imageSize_ = image.size();
    AppendStep(MoveRecord{steps});
}

void JournalWriter::ViewChanged(const JournalView& view) {
    if (file_)
        Append({ViewRecord{view}});
}

void JournalWriter::DraftTyped(const JournalDraft& draft) { Append({DraftRecord{draft}}); }

void JournalWriter::DraftGone(const JournalDraft& editor) {
    if (file_)
        Append({DraftGoneRecord{{editor.Kind, editor.Place, {}}}});
}

void JournalWriter::Saved(const std::string& path, const JournalStamp& stamp) {
    changes_ = 0;
    if (file_)
        Append({SavedRecord{path, stamp}});
}

// A step of a document that images cannot carry goes with the document itself, in one write.
void JournalWriter::AppendStep(RecordContent step) {
    std::vector<RecordContent> contents{std::move(step)};
    if (document_ && CanAppend()) {
        const std::string older = std::exchange(*document_, source_.DocumentText());
        contents.emplace_back(DocumentRecord{Difference(older, *document_), true});
    }
    Append(std::move(contents));
}

// A file that is begun instead holds the change too: the source has it already.
void JournalWriter::Append(std::vector<RecordContent> contents) {
    if (syncer_.TakeFailure())
        sound_ = false;
    if (!CanAppend())
        return Renew();
    if (Write(std::move(contents))) {
        // A torn end that cannot be cut off ends the journal where it was sound, too.
        (void)place_.Files.Truncate(file_, goodEnd_);
        sound_ = false;
        return Renew();
    }
    syncer_.Want(file_);
    const bool isLong = next_ - begunRecords_ >= kMostRecords ||
                        goodEnd_ - begunBytes_ >= std::max<std::uint64_t>(kMostBytes, begunBytes_);
    if (isLong && BeginFile()) { // the old one does it for as long again
        begunRecords_ = next_;
        begunBytes_ = goodEnd_;
    }
}

std::error_code JournalWriter::Write(std::vector<RecordContent> contents) {
    const JournalTime now = place_.Now();
    std::string bytes;
    std::uint32_t next = next_;
    for (RecordContent& content : contents) {
        if (!AppendRecord({next++, now, std::move(content)}, salt_, bytes))
            return make_error_code(std::errc::file_too_large);
    }
    if (const std::error_code failure = WriteAll(place_.Files, file_, bytes))
        return failure;
    next_ = next;
    goodEnd_ += bytes.size();
    return {};
}

// Tries once, and while that fails again from time to time: an attempt writes the whole state.
void JournalWriter::Renew() {
    const JournalTime now = place_.Now();
    if (failing_ && now < retryAt_)
        return;
    const std::error_code failure = BeginFile();
    if (failure && !failing_)
        message_ = "Changes are not kept for recovery (" + failure.message() + "): save often";
    if (!failure && failing_)
        message_ = "Changes are kept for recovery again";
    failing_ = failure.value() != 0;
    retryAt_ = now + kRetryAfter;
}

std::error_code JournalWriter::BeginFile() {
    const JournalState state = source_.State();
    std::vector<std::string> replaces = replaced_;
    if (file_)
        replaces.push_back(name_);
    const std::string salt = FreshSalt();
    const auto file = BeginJournal({salt, place_.Now(), place_.Program, replaces, changes_}, state);
    if (!file)
        return make_error_code(std::errc::file_too_large);
    const Result<Created> created = CreateFile(file->Bytes);
    if (created.Failure)
        return created.Failure;

    if (file_)
        retired_.push_back({name_, file_, {}});
    file_ = created.Got.File;
    name_ = created.Got.Name;
    salt_ = salt;
    sound_ = true;
    goodEnd_ = begunBytes_ = file->Bytes.size();
    next_ = begunRecords_ = file->Records;
    imageSize_ = state.PresentSize();
    document_ = state.ImagesFallShort ? std::optional(state.Document) : std::nullopt;
    replaced_ = std::move(replaces);
    syncer_.WantNew(file_, std::exchange(retired_, {}));
    return {};
}

// It gets its name when it is whole, so that nobody ever finds a part of one.
Result<JournalWriter::Created> JournalWriter::CreateFile(std::string_view bytes) {
    Result<Created> created = CreateUnfinished();
    if (created.Failure)
        return created;
    const FileSystem::Path unfinished = place_.Folder / (created.Got.Name + kUnfinishedSuffix);
    created.Got.Name += kJournalSuffix;
    created.Failure = WriteAll(place_.Files, created.Got.File, bytes);
    if (!created.Failure)
        created.Failure = place_.Files.Rename(unfinished, place_.Folder / created.Got.Name);
    if (created.Failure) {
        (void)place_.Files.Remove(unfinished);
        (void)place_.Files.Close(created.Got.File);
    }
    return created;
}

Result<JournalWriter::Created> JournalWriter::CreateUnfinished() {
    if (const std::error_code failure = place_.Files.MakePrivateFolder(place_.Folder))
        return {{}, failure};
    const std::string stem = RecoveryStem(place_.Now());
    const Result<FileHandle> file =
        place_.Files.OpenLocked(place_.Folder / (stem + kUnfinishedSuffix), Existence::New);
    return {{file.Got, stem}, file.Failure};
}

void JournalWriter::Closed(JournalClose reason) {
    const bool isDiscarded = reason == JournalClose::Discarded;
    if (CanAppend())
        (void)Write({ClosedRecord{reason}}); // without it the name says the same
    if (isDiscarded)
        syncer_.Finish();
    std::vector<RetiredJournal> over = syncer_.Forget();
    over.insert(over.end(), retired_.begin(), retired_.end());
    if (file_)
        over.push_back({name_, file_, {}});
    for (RetiredJournal& journal : over) {
        if (isDiscarded && journal.KeepAs.empty())
            journal.KeepAs = RecoveryStem(place_.Now()) + kDiscardedSuffix;
    }
    PutAway(place_.Files, place_.Folder, over);
    Forget();
}

void JournalWriter::Adopt(std::vector<RetiredJournal> recovered, std::uint64_t changes) {
    for (RetiredJournal& journal : recovered) {
        replaced_.push_back(journal.Name);
        retired_.push_back(std::move(journal));
    }
    changes_ = changes;
    sound_ = false;
    Renew();
}

std::optional<std::string> JournalWriter::TakeMessage() { return std::exchange(message_, std::nullopt); }

// The next document's journal has nothing of this one.
void JournalWriter::Forget() {
    file_ = {};
    name_.clear();
    sound_ = false;
    imageSize_ = 0;
    changes_ = 0;
    document_.reset();
    retired_.clear();
    replaced_.clear();
    failing_ = false;
}

} // namespace orvane
