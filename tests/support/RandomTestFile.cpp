// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/RandomTestFile.h"

#include "run/TestWriter.h"

namespace orvane::test {

namespace gen = rc::gen;
using rc::Gen;
using namespace run;

namespace {

Gen<std::string> AnyWord() {
    return gen::element<std::string>("Idle", "Run", "Two Words", "on", "=>", "", "a;b", "quo\"te",
                                     "back\\slash", "3s", "\xC3\xBC", "Timeout", "e6:x", "#x", "not", "(",
                                     "\xE2\x82\xAC+1");
}

Gen<TestName> AnyName() {
    return gen::map(gen::tuple(AnyWord(), gen::inRange(0, 4), gen::inRange(1, 101)),
                    [](const std::tuple<std::string, int, int>& choice) {
                        const auto& [text, kind, number] = choice;
                        TestName name = NameOf(text);
                        if (kind == 0 && !text.empty())
                            name.Number = number;
                        return name;
                    });
}

Gen<TestTime> AnyTime() {
    return gen::map(gen::pair(gen::inRange(0, 100'000), gen::inRange(0, 5)),
                    [](const std::pair<int, int>& choice) {
                        TestTime time;
                        time.Suffix = static_cast<TimeSuffix>(choice.second);
                        time.Number = std::to_string(choice.first) +
                                      (choice.second != 0 && choice.first % 2 == 0 ? ".25" : "");
                        return time;
                    });
}

Gen<std::vector<TestTerm>> AnyTerms() {
    return gen::map(
        gen::pair(gen::container<std::vector<int>>(gen::inRange(0, 3)), AnyName()),
        [](const std::pair<std::vector<int>, TestName>& choice) {
            std::vector<TestTerm> terms = {{TestOperator::Name, choice.second}};
            for (const int kind : choice.first) {
                if (kind == 0) {
                    terms.push_back({TestOperator::Not, {}});
                    continue;
                }
                const bool onTheLeft = terms.size() % 2 == 0;
                const TestTerm name{TestOperator::Name, NameOf("x" + std::to_string(terms.size()))};
                terms.insert(onTheLeft ? terms.begin() : terms.end(), name);
                terms.push_back({kind == 1 ? TestOperator::And : TestOperator::Or, {}});
            }
            return terms;
        });
}

Gen<TestDoing> AnyDoing(bool waits) {
    return gen::map(gen::tuple(gen::inRange(0, 4), gen::container<std::vector<TestName>>(2, AnyName()),
                               AnyName(), AnyTime(), gen::inRange(1, 9)),
                    [waits](const std::tuple<int, std::vector<TestName>, TestName, TestTime, int>& choice) {
                        const auto& [kind, inputs, state, time, count] = choice;
                        TestDoing doing;
                        doing.What = static_cast<Doing>(kind);
                        if (kind <= static_cast<int>(Doing::Pulse))
                            doing.Inputs = inputs;
                        if (doing.What == Doing::Limit) {
                            doing.State = state;
                            doing.Limit = time;
                        }
                        if (count == 8 && !waits)
                            doing = {Doing::Timeout, {}, {}, {}, 1, {}};
                        return doing;
                    });
}

Gen<TestCheck> AnyCheck() {
    return gen::map(gen::tuple(gen::inRange(0, 8), AnyName(), gen::inRange(0, 1000), AnyTime()),
                    [](const std::tuple<int, TestName, int, TestTime>& choice) {
                        const auto& [kind, name, count, time] = choice;
                        TestCheck check;
                        check.What = static_cast<Check>(kind);
                        const bool named = check.What == Check::Via || check.What == Check::Runs ||
                                           check.What == Check::NotRuns || check.What == Check::Timer;
                        check.Name = named ? name : TestName();
                        check.Count = check.What == Check::Ran ? count : 0;
                        check.Time = check.What == Check::Timer ? time : TestTime();
                        return check;
                    });
}

Gen<TestStep> AnyStep() {
    return gen::exec([] {
        TestStep step;
        if (*gen::arbitrary<bool>())
            step.Wait = *AnyTime();
        step.Doings =
            *gen::resize(3, gen::container<std::vector<TestDoing>>(AnyDoing(step.Wait.has_value())));
        const bool empty = !step.Wait && step.Doings.empty();
        if (empty || *gen::arbitrary<bool>()) {
            TestExpectation expect;
            expect.Way = *gen::nonEmpty(gen::resize(3, gen::container<std::vector<TestName>>(AnyName())));
            expect.Checks = *gen::resize(3, gen::container<std::vector<TestCheck>>(AnyCheck()));
            step.Expect = expect;
        }
        return step;
    });
}

Gen<TestLine> AnyLine() {
    return gen::exec([] {
        TestLine line;
        switch (*gen::inRange(0, 9)) {
        case 0:
            line.What = MachineHead{NameOf(*AnyWord())};
            break;
        case 1:
            line.What = UnitHead{*AnyTime()};
            break;
        case 2:
            line.What = ConstantHead{*AnyName(), *gen::inRange<std::int64_t>(0, 1'000'000)};
            break;
        case 3:
            line.What =
                SignalHead{*gen::nonEmpty(gen::resize(3, gen::container<std::vector<TestName>>(AnyName())))};
            break;
        case 4:
            line.What = EventHead{*AnyName(), *gen::resize(8, AnyTerms())};
            break;
        case 5:
            line.What = ReadingHead{static_cast<ReadingChoice>(*gen::inRange(0, 4))};
            break;
        case 6:
            break;
        default:
            line.What = *AnyStep();
        }
        if (*gen::inRange(0, 3) == 0)
            line.Comment = *gen::element<std::string>("", " a comment", "; => \"", "\xC3\xBC");
        return line;
    });
}

} // namespace

Gen<TestFile> AnyTestFile() {
    return gen::map(gen::container<std::vector<TestLine>>(AnyLine()), [](std::vector<TestLine> lines) {
        TestFile file;
        file.Lines.push_back({TestHead{"of everything"}, std::nullopt, {}});
        NamesHead names;
        for (int number = 1; number < 4; ++number) {
            TestName name = NameOf(number == 2 ? "Two Words" : "Name");
            name.Number = number;
            names.Entries.push_back({number == 3, name});
        }
        file.Lines.push_back({names, std::nullopt, {}});
        for (TestLine& line : lines)
            file.Lines.push_back(std::move(line));
        return file;
    });
}

Gen<std::string> TestWordSoup() {
    const auto word = gen::element<std::string>(
        "machine", "unit", "constant", "signal", "event", "names", "reading", "test", "on", "off", "pulse",
        "limit", "timeout", "scan", "via", "stays", "not", "runs", "ran", "timer", "again", "spins", "=>",
        "=", "+", "(", ")", "and", "or", "\"", "\"a b\"", ";", "\n", "\n", "\r\n", "0.1", "s", "99", "Idle",
        "3:Idle", "#3", "\\", ",", "\xFF");
    return gen::map(gen::container<std::vector<std::string>>(word),
                    [](const std::vector<std::string>& words) {
                        std::string soup;
                        for (const std::string& each : words)
                            soup += each + " ";
                        return soup;
                    });
}

} // namespace orvane::test
