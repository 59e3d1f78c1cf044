// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/ShortestTest.h"

#include "codegen/DesignChecks.h"
#include "run/AssumedLimits.h"
#include "run/Recorder.h"
#include "run/TestableWays.h"
#include "run/WayDriver.h"
#include "run/WayToState.h"
#include "text/AnsiText.h"

#include <algorithm>
#include <array>

namespace orvane::run {

namespace {

class Finder {
  public:
    explicit Finder(const FsmDocument& document)
        : document_(document),
          assumed_(document),
          machine_(document, assumed_.Given),
          space_(machine_, assumed_.Surroundings),
          ways_(machine_, assumed_.Surroundings, space_) {}

    ShortestTestResult Run(const WayWanted& wanted) {
        ShortestTestResult result;
        result.Complete = space_.Complete();
        if (!wanted.From) {
            const Way way = WayTo(std::array{StateSpace::kPowerOff}, wanted.To);
            if (!way.empty())
                result.Test = Write({way}, "to " + Title(wanted.To));
            return result;
        }
        std::vector<std::uint32_t> places = PlacesIn(*wanted.From);
        while (!places.empty()) {
            const Way onward = WayTo(places, wanted.To);
            if (onward.empty())
                break;
            const std::uint32_t begin = PlaceBefore(*onward.front(), places);
            const Way toBegin = WayToPlace(begin);
            if (!toBegin.empty()) {
                result.Test =
                    Write({toBegin, onward}, "from " + Title(*wanted.From) + " to " + Title(wanted.To));
                break;
            }
            std::erase(places, begin); // only a machine with other inputs from the start on comes there
        }
        return result;
    }

  private:
    std::string Title(StateNumber state) const { return ToUtf8(StateTitle(document_, state)); }

    std::vector<std::uint32_t> PlacesIn(StateNumber state) const {
        std::vector<std::uint32_t> places;
        for (std::uint32_t place = 1; place < space_.Places(); ++place) {
            if (space_.StateAt(place) == state)
                places.push_back(place);
        }
        return places;
    }

    Way WayTo(std::span<const std::uint32_t> from, StateNumber to) const {
        return WayToState(machine_, ways_, from, to);
    }

    Way WayToPlace(std::uint32_t place) const {
        return ShortestWay(ways_, std::array{StateSpace::kPowerOff},
                           [&](std::uint32_t, const TestableWay& way) { return way.To == place; });
    }

    std::uint32_t PlaceBefore(const TestableWay& way, std::span<const std::uint32_t> places) const {
        const auto has = [&](std::uint32_t place) {
            const std::span<const TestableWay> from = ways_.From(place);
            return &way >= from.data() && &way < from.data() + from.size();
        };
        return *std::find_if(places.begin(), places.end(), has);
    }

    std::optional<TestFile> Write(const std::vector<Way>& ways, const std::string& name) const {
        WayDriver driver(machine_, assumed_.Surroundings, space_);
        for (const Way& way : ways) {
            const bool last = &way == &ways.back();
            if (!driver.Go(way, last ? WayDriver::End::Anywhere : WayDriver::End::AtItsEnd))
                return std::nullopt;
        }
        return RecordTest(document_, {driver.Steps(), assumed_.Given, name, std::nullopt, std::nullopt});
    }

    const FsmDocument& document_;
    const AssumedLimits assumed_;
    const Machine machine_;
    const StateSpace space_;
    const TestableWays ways_;
};

} // namespace

ShortestTestResult ShortestTest(const FsmDocument& document, const WayWanted& wanted) {
    return Finder(document).Run(wanted);
}

} // namespace orvane::run
