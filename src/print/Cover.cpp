// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/Cover.h"

#include "text/NumberText.h"

#include <array>

namespace orvane::print {

namespace {

constexpr int kFactGap = 120;
constexpr int kFactsAt = 2400;   // where the facts stand behind their names
constexpr int kMostChapters = 8; // and the heading of the contents

void WriteFact(PageFlow& flow, const std::string& name, const std::string& fact) {
    flow.Put(0, Face::Bold, name);
    flow.Write(kFactsAt, Face::Body, fact.empty() ? "-" : fact);
    flow.Skip(kFactGap / 2);
}

// A name, or a line to write one on, and lines for date and signature.
void WriteSignature(PageFlow& flow, const std::string& what, const std::string& name) {
    const int height = flow.Measure().LineHeight(Face::Body);
    const int rest = flow.Width() - kFactsAt;
    flow.Skip(height);
    flow.Put(0, Face::Bold, what);
    flow.Put(kFactsAt, Face::Body, Fitted(name, rest / 3 - kFactGap, 1, Face::Body, flow.Measure()).front());
    for (const int third : {0, 1, 2}) {
        const int x = kFactsAt + third * rest / 3;
        flow.Current().Lines.push_back({x, flow.At() + height, x + rest / 3 - kFactGap, flow.At() + height});
    }
    flow.Skip(height + kFactGap / 4);
    const std::array<const char*, 3> captions{"name", "date", "signature"};
    for (std::size_t third = 0; third < captions.size(); ++third)
        flow.Put(kFactsAt + int(third) * rest / 3, Face::Small, captions[third]);
    flow.Skip(flow.Measure().LineHeight(Face::Small));
}

} // namespace

ContentsPlace WriteCover(PageFlow& flow, const std::string& machine, const CoverFacts& facts) {
    flow.BeginChapter("State machine");
    flow.Skip(flow.Room() / 20);
    flow.Write(0, Face::Title, machine.empty() ? "A machine without a name" : machine);
    flow.Skip(2 * kFactGap);
    WriteFact(flow, "File", facts.File.empty() ? "not saved yet" : facts.File);
    WriteFact(flow, "Revision", facts.Revision);
    WriteFact(flow, "Printed", facts.Date);
    WriteFact(flow, "Document, SHA-256", facts.DocumentDigest);
    WriteFact(flow, "Program, CRC-32", facts.ProgramDigest);
    flow.Skip(kFactGap);
    WriteSignature(flow, "Prepared", facts.Prepared);
    WriteSignature(flow, "Checked", facts.Checked);
    WriteSignature(flow, "Approved", facts.Approved);
    flow.Skip(4 * kFactGap);
    flow.Need(kMostChapters * flow.Measure().LineHeight(Face::Body));
    return {flow.Sheets() - 1, flow.At()};
}

void WriteContents(std::vector<Sheet>& sheets, const ContentsPlace& place, const PageFlow& flow) {
    std::vector<Text>& texts = sheets.at(place.Sheet).Texts;
    int y = place.Y;
    texts.push_back({0, y, Face::Bold, "Contents"});
    for (const Chapter& chapter : flow.Chapters()) {
        if (chapter.FirstSheet == 0)
            continue;
        texts.push_back({kFactsAt, y, Face::Body, NumberText(std::int64_t(chapter.FirstSheet + 1))});
        texts.push_back({kFactsAt + 4 * kFactGap, y, Face::Body, chapter.Title});
        y += flow.Measure().LineHeight(Face::Body);
    }
}

} // namespace orvane::print
