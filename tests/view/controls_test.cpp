#include "platform/win32/system_library.h"
#include "tests/view/sample.h"

#include <commctrl.h>
#include <oleacc.h>

#include <utility>

// Single controls as windows.

namespace tarvelon {

namespace {

TEST_F(View, TextsOfEveryScriptAnswerAtOnceAndWhole) {
    const std::wstring wide = L"\u0416\u03C9\u65E5\u00E9\U0001F600";
    const std::string text = narrowText(wide);
    for (const std::string& caption : {std::string("Sample 1"), text}) {
        screen.Caption = caption;
        screen.gauge.Caption = caption;
        EXPECT_EQ(textOf(form), caption);
        EXPECT_EQ(textOf(windowOf(screen.gauge)), caption);
    }
    screen.text.Caption = "by code";
    ask(screen.text, EM_SETSEL, 7, 7);
    std::ranges::for_each(wide, [&](wchar_t c) { PostMessageW(windowOf(screen.text), WM_CHAR, c, 0); });
    screen.list.add(text);
    screen.list.ToolTip = text;
    ask(screen.list, WM_MOUSEMOVE);
    screen.tree.addRoot("root", text);
    pumpFor(60);
    EXPECT_EQ(screen.text.Caption(), "by code" + text);
    EXPECT_EQ(LOWORD(ask(screen.text, EM_GETSEL)), 13) << "The caret stays behind what was typed";
    EXPECT_EQ(FindWindowW(L"TarvelonForm", wide.c_str()), form);
    wchar_t given[9] = L"";
    const HWND list = windowOf(screen.list);
    auto* const root = reinterpret_cast<HTREEITEM>(ask(screen.tree, TVM_GETNEXTITEM, TVGN_ROOT));
    const TVITEMW item{TVIF_TEXT, root, 0, 0, given, 9, 0, 0, 0, 0};
    const TOOLINFOW tip{
        TTTOOLINFOW_V1_SIZE, 0, list, reinterpret_cast<UINT_PTR>(list), {}, nullptr, given, 0, nullptr};
    const std::tuple<HWND, UINT, WPARAM, const void*> texts[] = {
        {form, WM_GETTEXT, 9, given},
        {list, LB_GETTEXT, 0, given},
        {windowOf(screen.tree), TVM_GETITEMW, 0, &item},
        {FindWindowA(TOOLTIPS_CLASSA, nullptr), TTM_GETTEXTW, 9, &tip}};
    for (const auto& [window, message, size, answer] : texts) {
        *given = L'\0';
        SendMessageW(window, message, size, reinterpret_cast<LPARAM>(answer));
        EXPECT_TRUE(given == wide && IsWindowUnicode(window)) << message;
    }
    EXPECT_EQ(SendMessageW(form, WM_GETTEXTLENGTH, 0, 0), 6);
    SendMessageW(form, WM_GETTEXT, 6, reinterpret_cast<LPARAM>(given));
    EXPECT_EQ(given, wide.substr(0, 4)) << "Cut to the buffer, at the end of a character";
}

struct ThemedView : View, testing::WithParamInterface<ThemeKind> {
    ThemedView()
        : View(GetParam()) {}
};

INSTANTIATE_TEST_SUITE_P(Each, ThemedView,
                         testing::Values(ThemeKind::Light, ThemeKind::Dark, ThemeKind::HighContrast));

TEST_P(ThemedView, ControlsAreDrawnInTheirLastState) {
    const Surface captions = theme.captions.value_or(theme.card);
    EXPECT_EQ(ChildWindowFromPoint(windowOf(screen.page), {383, 247}), windowOf(screen.checkList));
    for (const char* row : {"one", "two", "three"}) {
        screen.list.add(row);
        screen.checkList.add(row);
    }
    screen.list.setListIndex(2);
    screen.chart.add("1", 5);
    screen.chart.add("2", 10);
    screen.chart.mark(1);
    screen.entry.Current = true;
    screen.bar.setMax(400);
    screen.bar.setValue(300);
    screen.second.setValue(true);
    expectDrawn({{screen.gauge, 100, theme.track},
                 {screen.button, 4, theme.card.button(Rank::Ordinary).normal},
                 {screen.action, 4, theme.card.button(Rank::Ordinary).normal},
                 {screen.check, 9, captions.mark.field},
                 {screen.check, 110, captions.ground},
                 {screen.chart, 90, theme.bar},
                 {screen.entry, 110, theme.navigationCurrent},
                 {screen.second, 4, theme.card.mark.ticked},
                 {screen.list, 2, theme.selectedElsewhere},
                 {screen.bar, 60, theme.bar},
                 {screen.bar, 110, theme.track},
                 {screen.plain, 15, theme.restart.normal}});
    EXPECT_EQ(ask(screen.bar, PBM_GETPOS), 300);
    screen.gauge.Caption = "80%";
    ask(screen.button, WM_MOUSEMOVE, 0, MAKELPARAM(60, 16));
    ask(screen.action, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(60, 16));
    ask(screen.check, BM_CLICK);
    screen.second.Enabled = screen.plain.Enabled = false;
    expectDrawn({{screen.gauge, 100, theme.bar},
                 {screen.button, 4, theme.card.button(Rank::Ordinary).hovered},
                 {screen.action, 4, theme.card.button(Rank::Ordinary).pressed},
                 {screen.check, 10, captions.mark.tick},
                 {screen.second, 4, theme.card.mark.edge},
                 {screen.plain, 15, theme.restart.disabled}});
}

TEST_F(View, ButtonsArePressedByMouseKeysAndOtherPrograms) {
    screen.button.onClick = screen.check.onClick = screen.step.onClick = screen.gauge.onClick =
        hear("click ");
    screen.action.onMouseDown = hear("down ");
    screen.action.onMouseUp = hear("up ");
    screen.action.onClick = hear("action ");
    ask(screen.button, BM_CLICK);
    ask(screen.check, BM_CLICK);
    ask(screen.step, BM_CLICK);
    EXPECT_EQ(ask(screen.gauge, WM_NCHITTEST), HTCLIENT);
    click(screen.gauge, 5, 5);
    click(screen.button, 60, 16);
    EXPECT_EQ(std::exchange(heard, ""), "click click click click click ");
    ask(screen.action, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(60, 16));
    ask(screen.action, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(60, 90));
    ask(screen.action, WM_LBUTTONUP, 0, MAKELPARAM(60, 90));
    screen.action.Enabled = false;
    click(screen.action, 60, 16);
    EXPECT_EQ(std::exchange(heard, ""), "down up up ");
    screen.action.Enabled = true;
    for (const bool stays : {false, true}) {
        SetFocus(windowOf(screen.action));
        ask(screen.action, WM_KEYDOWN, VK_SPACE, 1);
        SetFocus(windowOf(stays ? screen.action : static_cast<const Control&>(screen.text)));
        ask(screen.action, WM_KEYUP, VK_SPACE, static_cast<LPARAM>(0xC0000001));
    }
    EXPECT_EQ(heard, "down up down up action ");

    ask(screen.second, BM_CLICK);
    EXPECT_TRUE(isTabStop(screen.second) && !isTabStop(screen.first)) << "Tab leads to the choice";
    SetFocus(windowOf(screen.second));
    PostMessageA(windowOf(screen.second), WM_KEYDOWN, VK_RIGHT, 1);
    pumpFor(0);
    EXPECT_EQ(GetFocus(), windowOf(screen.first)) << "The arrows go round among the choices";
    ask(screen.first, BM_CLICK);
    EXPECT_EQ(ask(screen.second, BM_GETCHECK), BST_UNCHECKED);
    for (const int x : {40, 4}) {
        ask(screen.check, WM_MOUSEMOVE, 0, MAKELPARAM(x, 12));
        EXPECT_EQ(screen.check.hovered(), x == 40) << "The box has no look of its own";
    }
}

TEST_F(View, ReadersAreToldWhatIsSeen) {
    const SystemLibrary library("oleacc.dll");
    const auto find = library.find<HRESULT WINAPI(HWND, DWORD, REFIID, void**)>("AccessibleObjectFromWindow");
    screen.list.name = "Rows";
    screen.check.setValue(true);
    screen.chart.add("64 Kb", 2.5);
    screen.bar.setValue(57);
    std::string told;
    for (const Control* control : screen.controls()) {
        IAccessible* reader = nullptr;
        find(windowOf(*control), static_cast<DWORD>(OBJID_CLIENT), __uuidof(IAccessible),
             reinterpret_cast<void**>(&reader));
        VARIANT self{}, role{}, state{};
        self.vt = VT_I4;
        BSTR texts[2]{};
        reader->get_accRole(self, &role);
        reader->get_accState(self, &state);
        reader->get_accName(self, &texts[0]);
        reader->get_accValue(self, &texts[1]);
        told += std::to_string(role.lVal) + (state.lVal & STATE_SYSTEM_CHECKED ? "+" : "");
        for (BSTR text : texts) {
            told += text ? "|" + narrowText(text) : "";
        }
        told += "\n";
        reader->Release();
    }
    EXPECT_EQ(told, "21\n43|Step\n41|50%\n43|A & B\n43|An action\n44+|A check\n45|First\n45|Second\n42\n"
                    "33|Rows\n17|Chart|64 Kb: 2.5\n33\n48|57%\n35\n43|Restart\n43|Restart\n16\n43|Entry\n");
}

TEST_F(View, RowsFollowAndAreChosen) {
    for (int row = 0; row < 1000; ++row) {
        screen.list.add("row " + std::to_string(row));
    }
    EXPECT_EQ(ask(screen.list, LB_GETCOUNT), 1000);
    screen.list.onClick = [&] { heard += screen.list.text(); };
    screen.list.setListIndex(2);
    EXPECT_EQ(ask(screen.list, LB_GETCURSEL), 2);
    screen.list.replace(1, "new");
    click(screen.list, 30, 30);
    EXPECT_EQ(heard, "new") << "Selected by code, it raises no click";
    ask(screen.list, LB_SETTOPINDEX, 500);
    screen.list.replace(5, std::string(99, 'w'));
    EXPECT_EQ(ask(screen.list, LB_GETTOPINDEX), 500) << "Rows that change do not move";
    EXPECT_GT(ask(screen.list, LB_GETHORIZONTALEXTENT), 400) << "As far as the longest";
    SetFocus(windowOf(screen.list));
    screen.list.clear();
    pumpFor(60);
    EXPECT_EQ(GetFocus(), windowOf(screen.tree)) << "Nothing is left to choose from";

    EXPECT_FALSE(IsWindowEnabled(windowOf(screen.checkList)));
    screen.checkList.Enabled = true;
    screen.checkList.add("first");
    screen.checkList.add("second");
    EXPECT_EQ(ask(screen.checkList, LB_GETCOUNT), 2);
    click(screen.checkList, 30, 26);
    click(screen.checkList, 30, 70); // Below the last row there is nothing to click.
    EXPECT_TRUE(screen.checkList.ticked(1) && ask(screen.checkList, LB_GETITEMDATA, 1) == 1);
    for (const WPARAM key : {VK_SPACE, VK_UP, VK_SPACE}) {
        press(screen.checkList, key);
    }
    EXPECT_TRUE(screen.checkList.ticked(0) && !screen.checkList.ticked(1));
}

TEST_F(View, ATreeMayBeFilledAnewByItsOwnClickAndKeys) {
    const auto fill = [this] {
        screen.tree.clear();
        screen.tree.addRoot("root", "Root");
        screen.tree.addChild("root", "value", std::string("seen\0unseen", 11));
        screen.tree.addChild("root", "last", "Last");
    };
    fill();
    LRESULT shown = 3;
    screen.tree.onDoubleClick = hear("twice ");
    screen.tree.onExpandOrCollapse = hear("opened ");
    screen.tree.onNodeClick = [&] {
        heard += screen.tree.selected()->key + " ";
        fill();
        pumpFor(0);
        view.refresh();
        EXPECT_EQ(ask(screen.tree, TVM_GETCOUNT), shown) << "Those that the window is telling of";
    };
    screen.tree.onKeyDown = [&](int) { fill(); };
    const LRESULT root = ask(screen.tree, TVM_GETNEXTITEM, TVGN_ROOT);
    ask(screen.tree, TVM_SELECTITEM, TVGN_CARET, root);
    EXPECT_EQ(ask(screen.tree, TVM_GETNEXTITEM, TVGN_CARET), ask(screen.tree, TVM_GETNEXTITEM, TVGN_ROOT));
    press(screen.tree, VK_RIGHT);
    press(screen.tree, VK_DOWN);
    screen.tree.clear();
    screen.tree.addRoot("other", "Other");
    screen.tree.onKeyDown = {};
    shown = 1;
    ask(screen.tree, WM_KEYDOWN, VK_DOWN, 1); // The keyboard finds its way in where nothing is selected.
    view.refresh();
    ask(screen.tree, WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(30, 10));
    EXPECT_EQ(heard, "root opened value other twice opened ") << "The keyboard coming in selects nothing";
}

} // namespace

} // namespace tarvelon
