// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/TraceVcd.h"

#include "codegen/DesignChecks.h"
#include "run/StepCheck.h"
#include "text/AnsiText.h"
#include "text/NumberText.h"
#include "text/Utf8.h"

#include <algorithm>
#include <array>
#include <limits>
#include <set>

namespace orvane::run {

namespace {

// How a moment of the machine becomes a number in the file.
struct Scale {
    const char* Tick = "1 s";
    std::int64_t TicksOfUnit = 1;
};

// The coarsest tick of which a unit has a thousand; a coarser one when the run would not fit.
Scale ScaleOf(const RunTrace& trace) {
    constexpr std::array ticks{std::pair{"1 ms", std::int64_t{1'000'000}},
                               std::pair{"1 us", std::int64_t{1'000}}, std::pair{"1 ns", std::int64_t{1}}};
    const std::int64_t unit = trace.Unit.value_or(1'000'000); // microseconds
    const Units last = std::max<Units>(trace.Rows.back().When, 1);
    Scale scale;
    for (const auto& [name, nanoseconds] : ticks) {
        if (unit > std::numeric_limits<std::int64_t>::max() / 1'000)
            break;
        const std::int64_t ticksOfUnit = unit * 1'000 / nanoseconds;
        const bool whole = ticksOfUnit * nanoseconds == unit * 1'000 && ticksOfUnit > 0;
        if (!whole || ticksOfUnit > std::numeric_limits<std::int64_t>::max() / 2 / (last + 1))
            continue;
        scale = {name, ticksOfUnit};
        if (ticksOfUnit >= 1'000)
            break;
    }
    return scale;
}

// Viewers end a value at a blank.
std::string VcdText(const std::string& utf8) {
    std::string text;
    for (const char byte : ValidUtf8(utf8))
        text += static_cast<unsigned char>(byte) <= ' ' || byte == '\x7F' ? '_' : byte;
    return text.empty() ? "_" : text;
}

// A name that every reader takes: letters, digits and "_".
std::string Identifier(const std::string& utf8) {
    std::string name;
    for (const char byte : utf8) {
        const bool plain =
            (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z') || (byte >= '0' && byte <= '9');
        name += plain ? byte : '_';
    }
    const bool starts = !name.empty() && (name.front() < '0' || name.front() > '9');
    return starts ? name : "_" + name;
}

std::string Binary(Units number) {
    std::string bits;
    do {
        bits.insert(bits.begin(), (number & 1) == 0 ? '0' : '1');
        number >>= 1;
    } while (number > 0);
    return bits;
}

class VcdWriter {
  public:
    VcdWriter(const RunTrace& trace, const FsmDocument& document, const Machine& machine)
        : trace_(trace), document_(document), machine_(machine), timers_(machine), scale_(ScaleOf(trace)) {}

    std::string Run() {
        PutHead();
        for (const TraceRow& row : trace_.Rows)
            Put(row);
        return std::move(vcd_);
    }

  private:
    // The variables stand in this order: state, its name, row, inputs, timers.
    std::size_t FirstInput() const { return 3; }
    std::size_t FirstTimer() const { return FirstInput() + trace_.Inputs.size(); }

    // Printable characters, the first variables with one.
    static std::string Code(std::size_t variable) {
        std::string code;
        do {
            code += static_cast<char>('!' + variable % 94);
            variable /= 94;
        } while (variable > 0);
        return code;
    }

    void PutHead() {
        vcd_ = "$version Orvane $end\n";
        if (!trace_.Unit)
            vcd_ += "$comment 1 s stands for one unit of the machine's time $end\n";
        vcd_ += std::string("$timescale ") + scale_.Tick + " $end\n$scope module " +
                Identifier(ToUtf8(Trim(document_.General.FsmName))) + " $end\n";
        PutVariable("integer 32", "state");
        PutVariable("string 1", "state_name");
        PutVariable("string 1", "via");
        for (const TraceInput& input : trace_.Inputs)
            PutVariable("wire 1", input.Name);
        for (const std::string& id : TimerIds(document_, machine_))
            PutVariable("integer 32", id.empty() ? "timer" : "timer_" + id);
        values_.resize(variables_);
        vcd_ += "$upscope $end\n$enddefinitions $end\n";
    }

    // Viewers take two variables of one name for one.
    void PutVariable(const char* type, const std::string& name) {
        std::string unique = Identifier(name);
        for (int number = 2; !names_.insert(unique).second; ++number)
            unique = Identifier(name) + "_" + NumberText(number);
        vcd_ += std::string("$var ") + type + " " + Code(variables_++) + " " + unique + " $end\n";
    }

    void Put(const TraceRow& row) {
        const std::int64_t tick = TickOf(row);
        const TraceTimers before = timers_;
        timers_.Add(row);
        PutEndsOfRamps(row, before, tick);
        PutTime(tick);
        Set(0, "b" + Binary(row.What.To.Number()) + " ");
        Set(1, "s" + VcdText(ToUtf8(StateTitle(document_, row.What.To))) + " ");
        const bool moved = row.Kind == TraceKind::Transition;
        Set(2, "s" + VcdText(moved ? RowText(document_, row.What.Row) : "-") + " ");
        const std::vector<bool>& inputs = trace_.InputSets[row.Inputs];
        for (std::size_t i = 0; i < inputs.size(); ++i)
            Set(FirstInput() + i, inputs[i] ? "1" : "0");
        for (std::size_t i = 0; i < machine_.Timers().size(); ++i)
            Set(FirstTimer() + i, TimerValue(timers_.Since(i, row.When)));
    }

    // A timer that starts anew had run until then: its last value stands one tick before.
    void PutEndsOfRamps(const TraceRow& row, const TraceTimers& before, std::int64_t tick) {
        if (tick - 1 <= tick_)
            return;
        for (std::size_t i = 0; i < machine_.Timers().size(); ++i) {
            const std::optional<Units> was = before.Since(i, row.When);
            if (!was || was == timers_.Since(i, row.When))
                continue;
            PutTime(tick - 1);
            Set(FirstTimer() + i, TimerValue(was));
        }
    }

    static std::string TimerValue(std::optional<Units> since) {
        return since ? "b" + Binary(*since) + " " : "bx ";
    }

    // Rows that no longer fit into their unit share its last tick.
    std::int64_t TickOf(const TraceRow& row) {
        order_ = row.When == unit_ ? order_ + 1 : 0;
        unit_ = row.When;
        return row.When * scale_.TicksOfUnit + std::min(order_, scale_.TicksOfUnit - 1);
    }

    void PutTime(std::int64_t tick) {
        if (tick == tick_)
            return;
        tick_ = tick;
        vcd_ += "#" + NumberText(tick) + "\n";
    }

    void Set(std::size_t variable, const std::string& value) {
        if (values_[variable] == value)
            return;
        values_[variable] = value;
        vcd_ += value + Code(variable) + "\n";
    }

    const RunTrace& trace_;
    const FsmDocument& document_;
    const Machine& machine_;
    TraceTimers timers_;
    const Scale scale_;
    std::set<std::string> names_;
    std::size_t variables_ = 0;
    std::vector<std::string> values_;
    Units unit_ = -1;
    std::int64_t order_ = 0; // within the unit
    std::int64_t tick_ = -1;
    std::string vcd_;
};

} // namespace

std::string TraceVcd(const RunTrace& trace, const FsmDocument& document, const Machine& machine) {
    return VcdWriter(trace, document, machine).Run();
}

} // namespace orvane::run
