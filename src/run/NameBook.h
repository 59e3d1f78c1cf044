// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Cell.h"
#include "core/FsmDocument.h"
#include "run/TestReader.h"
#include "run/TestText.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace orvane::run {

// A name in a test file that the document does not have any more: the names line says whose it was.
struct Renamed {
    bool IsEvent = false;
    TestName Written;
    std::string NewName; // UTF-8
};

// Finds what the names of a test file mean in a document. Names are the key: a number only chooses among
// equal names, so that renumbering changes nothing. Document text is compared as Windows-1252, without blanks
// at the ends.
class NameBook {
  public:
    // `documentName` stands in messages. The document must outlive the book.
    NameBook(const FsmDocument& document, std::string documentName);

    // What states and events were called when the file was recorded.
    void Remember(const NamesHead& head);

    // What is found; none after a slip, which is told. A name that the file's names line explains is found
    // and noted as renamed.
    std::optional<StateNumber> State(const TestName& name);
    std::optional<RowNumber> Event(const TestName& name);

    // Names that `Event` may be asked for and finds nowhere else, for its messages.
    void AddInputNames(const std::vector<std::string>& names);

    // The name of a state or event where its number is not needed to tell it from others, as a test writes
    // it.
    TestName NameOfState(StateNumber state) const;
    TestName NameOfEvent(RowNumber row) const;

    const std::vector<TestMessage>& Slips() const { return slips_; }
    // Beyond kMostSlips nothing is added.
    void Slip(Place place, std::string text);
    const std::vector<Renamed>& AllRenamed() const { return renamed_; }
    const std::string& DocumentName() const { return documentName_; }

  private:
    struct Kind; // states or events
    std::optional<int> Find(const Kind& kind, const TestName& name);
    std::optional<int> FindRenamed(const Kind& kind, const TestName& name);
    const std::vector<int>& Called(const Kind& kind, const std::string& text) const;
    std::string NameAt(const Kind& kind, int number) const;
    TestName NameOfNumber(const Kind& kind, int number) const;

    static const Kind kStates;
    static const Kind kEvents;

    const FsmDocument& document_;
    std::string documentName_;
    // The numbers under which each name stands, as document text.
    std::map<std::string, std::vector<int>, std::less<>> states_;
    std::map<std::string, std::vector<int>, std::less<>> events_;
    std::vector<NamesHead::Entry> remembered_;
    std::vector<std::string> inputNames_;
    std::vector<TestMessage> slips_;
    std::vector<Renamed> renamed_;
};

} // namespace orvane::run
