// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/RecordedExpectation.h"

#include "run/CodeLines.h"
#include "run/StepCheck.h"
#include "run/TestWriter.h"
#include "text/AnsiText.h"

#include <algorithm>

namespace orvane::run {

namespace {

constexpr std::size_t kLongestWay = 12; // beyond it only the end is expected
constexpr std::size_t kMostCodes = 4;   // of a step of which a line is expected

// The line that says most: the first that is more than a comment, without the comment behind it.
std::string TellingLine(const std::string& code) {
    std::string_view rest = code;
    while (!rest.empty()) {
        const std::size_t end = rest.find_first_of("\r\n");
        const std::string_view line = rest.substr(0, end);
        const std::string text = WithSingleBlanks(line.substr(0, line.find(';')));
        const std::string_view trimmed = Trim(text);
        if (!trimmed.empty())
            return std::string(trimmed);
        rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
    }
    return {};
}

class Expectation {
  public:
    Expectation(const FsmDocument& document, const NameBook& names, const Machine& machine,
                const Clock& clock, const StepResult& result)
        : document_(document), names_(names), machine_(machine), clock_(clock), result_(result) {
        for (const Happening& happening : result.Log) {
            if (!happening.What.Holds)
                last_ = &happening.What;
        }
    }

    TestExpectation Run() {
        AddWay();
        if (last_ != nullptr)
            AddVia();
        else if (!result_.PowerOn)
            Add(Check::Stays);
        AddCode();
        if (result_.End == Outcome::Again)
            Add(Check::Again);
        if (result_.End == Outcome::Spins)
            Add(Check::Spins);
        return std::move(expect_);
    }

  private:
    TestCheck& Add(Check what) {
        expect_.Checks.emplace_back().What = what;
        return expect_.Checks.back();
    }

    void AddWay() {
        if (result_.PowerOn)
            expect_.Way.push_back(names_.NameOfState(machine_.Start()));
        for (const Happening& happening : result_.Log) {
            if (happening.What.From != happening.What.To)
                expect_.Way.push_back(names_.NameOfState(happening.What.To));
        }
        if (expect_.Way.empty() || expect_.Way.size() > kLongestWay)
            expect_.Way = {names_.NameOfState(clock_.Where().State)};
    }

    void AddVia() {
        TestName& row = Add(Check::Via).Name;
        if (last_->Row < RowNumber(kFirstEventRow))
            row.Text = RowText(document_, last_->Row);
        else
            row = names_.NameOfEvent(last_->Row);
    }

    void AddCode() {
        std::vector<const std::string*> ran;
        if (const std::string& first = document_.State(machine_.Start()).EntryCode;
            result_.PowerOn && !first.empty())
            ran.push_back(&first);
        for (const Happening& happening : result_.Log)
            AddCodeOf(ran, document_, happening.What);
        // Of a long way what came last says most.
        const std::size_t first = ran.size() - std::min(ran.size(), kMostCodes);
        for (std::size_t i = result_.Log.empty() ? ran.size() : first; i < ran.size(); ++i)
            AddLineOf(*ran[i]);
        Add(Check::Ran).Count = std::int64_t(ran.size());
    }

    void AddLineOf(const std::string& code) {
        const std::string line = TellingLine(code);
        const TestName name = NameOf(ToUtf8(line));
        const bool told =
            std::any_of(expect_.Checks.begin(), expect_.Checks.end(), [&](const TestCheck& check) {
                return check.What == Check::Runs && check.Name == name;
            });
        if (!line.empty() && !told && HasText(code, line))
            Add(Check::Runs).Name = name;
    }

    const FsmDocument& document_;
    const NameBook& names_;
    const Machine& machine_;
    const Clock& clock_;
    const StepResult& result_;
    const Taken* last_ = nullptr;
    TestExpectation expect_;
};

} // namespace

TestExpectation RecordedExpectation(const FsmDocument& document, const NameBook& names,
                                    const Machine& machine, const Clock& clock, const StepResult& result) {
    return Expectation(document, names, machine, clock, result).Run();
}

} // namespace orvane::run
