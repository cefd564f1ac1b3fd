#pragma once

#include "platform/win32/wide.h"
#include "platform/win32/win32_platform.h"
#include "ui/controls/bar_chart.h"
#include "ui/controls/lists.h"
#include "ui/controls/tree.h"
#include "view/theme.h"
#include "view/view.h"

#include <gmock/gmock.h>

#include <algorithm>

namespace tarvelon {

/// A control of each kind that the tests look at.
struct SampleScreen : Screen {
    SampleScreen()
        : Screen("Sample", 400, 330) {}

    Frame page{*this, "", at(0, 0, 400, 260)};
    Label step{page, "Step", at(8, 8, 120, 16), TextStyle::Step};
    Label gauge{page, "50%", at(200, 8, 192, 16), TextStyle::Gauge};
    cButton button{page, "A && B", at(8, 32, 120, 32)};
    Label action{page, "An action", at(136, 32, 120, 32), TextStyle::Action};
    tarvelon::check check{page, "A check", at(8, 72, 120, 24)};
    OptionButton first{page, "First", at(8, 104, 120, 24)};
    OptionButton second{page, "Second", at(136, 104, 120, 24)};
    TextBox text{page, at(8, 136, 120, 24)};
    ListBox list{page, at(8, 168, 120, 80)};
    BarChart chart{page, "Chart", 2, at(136, 168, 120, 80)};
    CheckListBox checkList{page, at(264, 168, 120, 80)};
    ProgressBar bar{page, at(264, 104, 120, 16)};
    Tree tree{page, at(264, 32, 120, 60)};
    Picture lit{*this, at(300, 262, 64, 64), "restart-lit", "Restart"};
    Picture plain{*this, at(300, 262, 64, 64), "restart", "Restart"};
    Frame navigation{*this, at(8, 264, 120, 60)};
    NavButton entry{navigation, "Entry", at(0, 0, 120, 60), "integrity"};
};

class View : public testing::Test {
protected:
    explicit View(ThemeKind kind = ThemeKind::Light)
        : view(kind)
        , theme(themeFor(kind)) {
        view.attach(screen);
        screen.lit.Visible = false;
        screen.checkList.Enabled = false;
        screen.show();
        form = FindWindowA("TarvelonForm", "Sample");
    }

    void pumpFor(DWORD milliseconds) {
        const DWORD start = GetTickCount();
        do {
            platform.platform().messages.pump();
            Sleep(1);
        } while (GetTickCount() - start < milliseconds);
    }

    /// The control's window, as another program finds it by its number.
    HWND windowOf(const Control& control) const {
        const auto number = 100 + std::ranges::find(screen.controls(), &control) - screen.controls().begin();
        return GetDlgItem(control.frame() ? windowOf(*control.frame()) : form, static_cast<int>(number));
    }

    LRESULT ask(const Control& control, UINT message, WPARAM wide = 0, LPARAM low = 0) const {
        return SendMessageA(windowOf(control), message, wide, low);
    }

    void press(const Control& control, WPARAM key) const {
        ask(control, WM_KEYDOWN, key, 1);
        ask(control, WM_KEYUP, key, static_cast<LPARAM>(0xC0000001));
    }

    void click(const Control& control, int x, int y) const {
        ask(control, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, y));
        ask(control, WM_LBUTTONUP, 0, MAKELPARAM(x, y));
    }

    Screen::Handler hear(const char* what) {
        return [this, what] { heard += what; };
    }

    static std::string textOf(HWND window) {
        char text[256] = "";
        SendMessageA(window, WM_GETTEXT, sizeof text, reinterpret_cast<LPARAM>(text));
        return text;
    }

    bool isTabStop(const Control& control) const {
        return (GetWindowLongA(windowOf(control), GWL_STYLE) & WS_TABSTOP) != 0;
    }

    /// Half-way down the control, so many pixels from its left edge.
    void expectDrawn(std::initializer_list<std::tuple<const Control&, int, Color>> spots) {
        pumpFor(60);
        for (const auto& [control, x, color] : spots) {
            const HDC dc = GetDC(windowOf(control));
            EXPECT_EQ(GetPixel(dc, x, control.place().height / 2), color) << control.captionOrName() << x;
            ReleaseDC(windowOf(control), dc);
        }
    }

    Win32View view;
    Win32Platform platform{view};
    SampleScreen screen;
    HWND form = nullptr;
    std::string heard;
    const Theme theme;
};

} // namespace tarvelon
