// SPDX-License-Identifier: GPL-3.0-or-later
// What may not be mixed up does not compile.
#include "core/Cell.h"
#include "core/FsmDocument.h"
#include "core/Length.h"
#include "table/CellEdit.h"
#include "table/RowVisibility.h"

#include <gtest/gtest.h>

#include <concepts>
#include <type_traits>

namespace orvane {
namespace {

template <typename From, typename To>
concept Becomes = std::is_convertible_v<From, To> || std::is_constructible_v<To, From>;

template <typename Row, typename State>
concept MakesCell = requires(Row row, State state) {
    Cell{row, state};
};

template <typename Row, typename State>
concept NamesTransition = requires(const FsmDocument& document, Row row, State state) {
    document.Event(row);
    document.State(state).Targets[row];
    CellEditText(document, {row, state});
};

template <typename A, typename B>
concept Comparable = requires(A a, B b) {
    a == b;
};

template <typename A, typename B>
concept Addable = requires(A a, B b) {
    a + b;
};

template <typename Height>
concept ShowsRows = requires(ViewOptions view, Height height) {
    ForceShowElse(view, height);
};

TEST(MixUp, RowAndStateCannotBeExchanged) {
    static_assert(MakesCell<RowNumber, StateNumber> && NamesTransition<RowNumber, StateNumber>);
    static_assert(!MakesCell<StateNumber, RowNumber> && !NamesTransition<StateNumber, RowNumber>);
    static_assert(!NamesTransition<StateNumber, StateNumber> && !NamesTransition<RowNumber, RowNumber>);
    static_assert(!Becomes<RowNumber, StateNumber> && !Becomes<StateNumber, RowNumber>);
    static_assert(!Comparable<RowNumber, StateNumber> && Comparable<StateNumber, StateNumber>);
    static_assert(!std::is_convertible_v<RowNumber, int> && !std::is_convertible_v<StateNumber, int>);
}

TEST(MixUp, TwipsAndPixelsCannotBeExchanged) {
    static_assert(!Becomes<Twips, Pixels> && !Becomes<Pixels, Twips>);
    static_assert(ShowsRows<Twips> && !ShowsRows<Pixels>);
    static_assert(Addable<Twips, Twips> && !Addable<Twips, Pixels>);
    static_assert(Comparable<Twips, Twips> && !Comparable<Twips, Pixels>);
    static_assert(!std::is_convertible_v<Twips, int> && !std::is_convertible_v<Pixels, int>);
}

TEST(MixUp, LengthsChangeTheirUnitByFifteenToTheNearestPixel) {
    EXPECT_EQ(PixelsFromTwips(945), 63);
    EXPECT_EQ(PixelsFromTwips(7), 0);
    EXPECT_EQ(PixelsFromTwips(8), 1);
    EXPECT_EQ(TwipsFromPixels(63), 945);
}

} // namespace
} // namespace orvane
