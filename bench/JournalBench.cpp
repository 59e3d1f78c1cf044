// SPDX-License-Identifier: GPL-3.0-or-later
// What the recovery journal costs: a typed edit beside packing the document, which every edit does anyway;
// recovery of as many steps as a journal holds beside copying the images that undo can reach; and the bytes
// of an hour of work. The two of a line alternate, and the least time of each counts.
#include "SampleDocuments.h"
#include "core/DocumentWriter.h"
#include "core/TightPacked.h"
#include "files/NativeFiles.h"
#include "session/Journal.h"
#include "session/JournalReader.h"
#include "session/JournalWriter.h"
#include "session/Session.h"

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <iomanip>
#include <iostream>
#include <limits>
#include <string>
#include <utility>
#include <vector>

#ifdef __GLIBC__
#include <malloc.h>
#endif
#include <unistd.h>

namespace orvane {
namespace {

using Milliseconds = std::chrono::duration<double, std::milli>;

template <typename Work>
double TimeOf(Work&& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return Milliseconds(std::chrono::steady_clock::now() - start).count();
}

struct LeastTime {
    void Add(double time) { Time = std::min(Time, time); }
    double Time = std::numeric_limits<double>::max(); // ms
};

JournalTime Now() { return std::chrono::floor<std::chrono::milliseconds>(std::chrono::system_clock::now()); }

// A document under typed edits: each gives one cell another target.
class Typing final : public JournalSource {
  public:
    explicit Typing(FsmDocument document) : document_(std::move(document)), images_{Pack(document_)} {}

    // Returns the image before.
    std::string Edit() {
        const int state = 1 + edits_ % 20;
        const int row = kFirstEventRow + edits_ / 20 % 15;
        document_.State(state).Targets[row] = static_cast<std::int16_t>(1 + (edits_ + 7) % 100);
        ++edits_;
        std::string before = std::exchange(images_.back(), Pack(document_));
        return before;
    }
    const FsmDocument& Document() const { return document_; }
    const std::string& Image() const { return images_.back(); }

    JournalState State() const override {
        JournalState state;
        state.Path = "/work/plant.zfsm";
        state.Document = DocumentText();
        state.Oldest = images_.back();
        state.SavedImage = images_.back();
        state.View = ViewOf(document_);
        return state;
    }

    std::string DocumentText() const override { return WriteDocument(document_); }

  private:
    FsmDocument document_;
    std::vector<std::string> images_;
    int edits_ = 0;
};

class Folder {
  public:
    Folder() { std::filesystem::create_directories(Path); }
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;
    ~Folder() {
        std::error_code ignored;
        std::filesystem::remove_all(Path, ignored);
    }

    const std::filesystem::path Path =
        std::filesystem::temp_directory_path() / ("orvane-journal-bench-" + std::to_string(getpid()));
};

void PrintLine(const std::string& what, const std::string& document, std::uintmax_t bytes, double time,
               double floor, const std::string& aim) {
    std::cout << "| " << what << " | " << document << " | " << bytes << " | " << std::setprecision(3) << time
              << " | " << floor << " | " << std::setprecision(2) << time / floor << " | " << aim << " |\n";
}

void MeasureEdits(const std::string& name, const FsmDocument& document) {
    const Folder folder;
    NativeFiles files;
    Typing typing(document);
    JournalWriter writer({files, folder.Path, "bench", Now}, typing);
    LeastTime packing;
    LeastTime difference;
    LeastTime journal;
    constexpr int edits = 1200; // an hour of one every three seconds
    for (int i = 0; i < edits; ++i) {
        const std::string before = typing.Edit();
        TextDelta delta;
        packing.Add(TimeOf([&] { (void)Pack(typing.Document()); }));
        difference.Add(TimeOf([&] { delta = Difference(before, typing.Image()); }));
        journal.Add(TimeOf([&] { writer.Committed(before, typing.Image(), "transition"); }));
    }
    const std::uintmax_t size = std::filesystem::file_size(folder.Path / writer.Name());
    const auto begun = BeginJournal({"01234567", {}, "bench", {}, 0}, typing.State())->Bytes.size();
    PrintLine("difference of an edit", name, typing.Image().size(), difference.Time, packing.Time,
              "0.2 of packing");
    PrintLine("journal of an edit", name, (size - begun) / (edits - 1), journal.Time, packing.Time, "");
    std::cout << "| an hour of edits | " << name << " | " << size - begun << " | | | | 200 KB |\n";
}

// Each step changes one cell, back and forth, so that the images are of the full size.
std::string LongJournal(const FsmDocument& document, std::vector<std::string>& reachable) {
    Typing typing(document);
    JournalFile file = *BeginJournal({"01234567", {}, "bench", {}, 0}, typing.State());
    for (std::uint32_t i = 0; i < JournalWriter::kMostRecords; ++i) {
        const std::string before = typing.Edit();
        const CommitRecord step{"transition", Difference(before, typing.Image())};
        if (!AppendRecord({file.Records++, {}, step}, "01234567", file.Bytes))
            std::abort();
        if (i + kMostImages >= JournalWriter::kMostRecords)
            reachable.push_back(typing.Image());
    }
    return file.Bytes;
}

void MeasureRecovery(const std::string& name, const FsmDocument& document) {
    std::vector<std::string> reachable;
    const std::string bytes = LongJournal(document, reachable);
    LeastTime recovery;
    LeastTime copy;
    for (int i = 0; i < 10; ++i) {
        recovery.Add(TimeOf([&] {
            if (Recover(bytes).History.back().Image != reachable.back())
                std::abort();
        }));
        copy.Add(TimeOf([&] { const std::vector<std::string> copied = reachable; }));
    }
    PrintLine("recovery of 2,000 steps", name, bytes.size(), recovery.Time, copy.Time, "300 ms at the limit");
}

// How many bytes the process has on the heap; 0 where nobody says.
std::size_t HeapBytes() {
#ifdef __GLIBC__
    const struct mallinfo2 told = mallinfo2();
    return told.uordblks + told.hblkhd;
#else
    return 0;
#endif
}

// Letters in the machine's name beside a text of 62 MiB: what each step keeps for undo.
void MeasureMemory() {
    const Folder folder;
    NativeFiles files;
    Session session;
    Journal journal(session, {files, folder.Path, "bench", Now});
    FsmDocument document;
    document.General.CodeSeg = std::string(62u << 20, 'x');
    session.Replace(std::move(document), "/work/plant.zfsm");
    const auto edit = [&session](int number) {
        session.Edit({"name", {}}, [number](const Editable& open) {
            open.Document.General.FsmName = "P" + std::to_string(number);
        });
    };
    constexpr int edits = 30;
    constexpr int first = 3; // that have their room already
    for (int i = -first; i <= 0; ++i)
        edit(i);
    const std::size_t before = HeapBytes();
    for (int i = 1; i <= edits; ++i)
        edit(i);
    const std::size_t after = HeapBytes();
    std::cout << "| memory of an undo step | 62 MiB text | " << (after > before ? after - before : 0) / edits
              << " | | | | far below 62 MiB |\n";
}

} // namespace
} // namespace orvane

// Arguments are those of the other benchmarks and mean nothing here.
int main() {
    std::cout << std::fixed
              << "| journal | document | bytes | time (ms) | packing or copying (ms) | ratio | aim |\n"
              << "| --- | --- | ---: | ---: | ---: | ---: | ---: |\n";
    const orvane::FsmDocument midSize = orvane::MidSizeDocument();
    const orvane::FsmDocument limit = orvane::DocumentAtTheLimit();
    orvane::MeasureEdits("mid-size", midSize);
    orvane::MeasureEdits("limit", limit);
    orvane::MeasureRecovery("mid-size", midSize);
    orvane::MeasureRecovery("limit", limit);
    orvane::MeasureMemory();
    return 0;
}
