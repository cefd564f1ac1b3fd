// Every screen by the keyboard, and as screen readers are told of it.

#include "tools/driver/reader.h"
#include "tools/driver/screens.h"
#include "tools/driver/seen_windows.h"

#include <gtest/gtest.h>
#include <oleacc.h>

#include <algorithm>
#include <set>
#include <tuple>

namespace e2e {
namespace {

/// Where each Tab leads to, from the first control on.
std::vector<HWND> goRound(HWND first) {
    std::vector<HWND> way{keyboardFocus()};
    do {
        pressKey(VK_TAB);
        comesTrue([&] { return keyboardFocus() != way.back(); }, Milliseconds(500));
        way.push_back(keyboardFocus());
    } while (way.back() != way.front() && way.size() < 99);
    way.pop_back();
    std::ranges::rotate(way, std::ranges::find(way, first));
    return way;
}

TEST(Screens, AreToldToReadersAndGoneThroughByKeysInTheOrderOfReading) {
    walkScreens([](const std::string& screen) {
        awaitStillness();
        std::vector<HWND> stops;
        std::set<std::tuple<HWND, LONG, std::string>> names;
        std::set<std::string> letters;
        RECT before{};
        HWND const form = GetForegroundWindow();
        for (HWND control : classOf(form) == "TarvelonForm" ? visibleChildren(form) : std::vector<HWND>()) {
            const Told told = askAsReader(control);
            const std::string where = screen + ": " + told.name;
            EXPECT_EQ((told.state & STATE_SYSTEM_UNAVAILABLE) == 0, IsWindowEnabled(control) != 0) << where;
            if (told.role != ROLE_SYSTEM_STATICTEXT && told.role != ROLE_SYSTEM_PANE &&
                told.role != ROLE_SYSTEM_GRAPHIC && told.role != ROLE_SYSTEM_SEPARATOR) {
                EXPECT_TRUE(names.emplace(GetParent(control), told.role, told.name).second) << where;
                EXPECT_TRUE(!told.name.empty() && told.role != ROLE_SYSTEM_CLIENT) << where;
                EXPECT_TRUE(told.keys.empty() || letters.insert(told.keys).second) << where;
            }
            if ((GetWindowLongA(control, GWL_STYLE) & (WS_TABSTOP | WS_DISABLED)) == WS_TABSTOP) {
                const RECT place = placeOf(control);
                const RECT seen = placeOf(WindowFromPoint({place.left + 1, (place.top + place.bottom) / 2}));
                EXPECT_TRUE(EqualRect(&seen, &place)) << where << " is covered";
                const bool isNext = stops.empty() || GetParent(control) != GetParent(stops.back()) ||
                                    place.left >= before.right || place.top >= before.bottom;
                EXPECT_TRUE(isNext) << where;
                before = told.name == "Cancel" ? RECT{} : place; // So that a key too soon does no harm.
                stops.push_back(control);
            }
        }
        EXPECT_TRUE(stops.empty() || goRound(stops.front()) == stops) << screen;
    });
}

} // namespace
} // namespace e2e
