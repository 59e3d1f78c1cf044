// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/MachineJson.h"

#include "core/DocumentReader.h"
#include "core/TimingMode.h"
#include "support/FileBytes.h"
#include "support/Folders.h"
#include "support/Json.h"
#include "text/AnsiText.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <functional>

namespace orvane::test {

namespace {

std::string AnsiOf(const JsonValue& text) { return FromUtf8(text.Text(), '?'); }

// Each line of foreign code as a comment.
std::string AsComment(const std::string& code) {
    if (code.empty())
        return {};
    std::string comment = ";";
    for (const char character : code)
        comment += character == '\n' ? std::string(kLineEnd) + ";" : std::string(1, character);
    return comment;
}

class MachineBuilder {
  public:
    explicit MachineBuilder(const JsonValue& machine)
        : machine_(machine), initial_(machine["initial"].Number()) {}

    FsmDocument Build() {
        document_.General.FsmName = "M";
        document_.General.HeaderComment = AsComment(AnsiOf(machine_["name"]));
        AddEvents();
        AddStates();
        AddTransitions();
        if (machine_.Has("timeouts"))
            AddTimeouts();
        return std::move(document_);
    }

  private:
    static int Row(const JsonValue& event) { return kElseRow + event.Number(); }

    int StateNumber(int number) const {
        if (number == initial_)
            return 1;
        return number == 1 ? initial_ : number;
    }
    StateRecord& State(int number) { return document_.State(StateNumber(number)); }

    void AddEvents() {
        int row = kFirstEventRow;
        for (const JsonValue& name : machine_["events"].List()) {
            EventRecord& event = document_.Event(row++);
            event.Name = AnsiOf(name);
            event.Code = ";" + event.Name;
        }
    }

    void AddStates() {
        int number = 1;
        for (const JsonValue& name : machine_["states"].List())
            State(number++).Name = AnsiOf(name);
        if (!machine_.Has("entry"))
            return;
        for (const auto& [state, code] : machine_["entry"].Members())
            State(std::stoi(state)).EntryCode = AsComment(AnsiOf(code));
    }

    void AddTransitions() {
        for (const JsonValue& transition : machine_["transitions"].List()) {
            const std::vector<JsonValue>& parts = transition.List();
            StateRecord& state = State(parts.at(0).Number());
            const int row = Row(parts.at(1));
            state.Targets[row] = static_cast<std::int16_t>(StateNumber(parts.at(2).Number()));
            state.Actions[row] = AsComment(AnsiOf(parts.at(3)));
        }
    }

    void AddTimeouts() {
        for (const auto& [number, timeout] : machine_["timeouts"].Members()) {
            StateRecord& state = State(std::stoi(number));
            state.TimingMode = kStartConstant;
            state.TimeConst = AnsiOf(timeout["delay"]);
            state.Targets[kTimeoutRow] = state.Targets[Row(timeout["event"])];
        }
    }

    const JsonValue& machine_;
    const int initial_;
    FsmDocument document_;
};

std::vector<NamedDocument> DocumentsIn(const std::filesystem::path& folder, const std::string& extension,
                                       const std::function<FsmDocument(std::string_view)>& read) {
    std::vector<NamedDocument> documents;
    std::error_code missing;
    for (const auto& entry : std::filesystem::directory_iterator(folder, missing)) {
        if (entry.path().extension() == extension)
            documents.push_back({entry.path().filename().string(), read(FileBytes(entry.path()))});
    }
    std::sort(documents.begin(), documents.end(),
              [](const NamedDocument& a, const NamedDocument& b) { return a.Name < b.Name; });
    return documents;
}

} // namespace

FsmDocument MachineFromJson(std::string_view json) {
    const JsonValue machine = JsonValue::Parse(json);
    return MachineBuilder(machine).Build();
}

std::vector<NamedDocument> RealMachines() {
    const char* folder = std::getenv("ORVANE_MACHINES");
    return DocumentsIn(folder != nullptr ? folder : kMachinesFolder, ".json", MachineFromJson);
}

std::vector<NamedDocument> ExampleDocuments() {
    return DocumentsIn(kExamplesFolder, ".zfsm",
                       [](std::string_view bytes) { return ReadDocument(bytes).Document; });
}

} // namespace orvane::test
