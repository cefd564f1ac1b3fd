#include "view/form.h"

#include "platform/win32/common_controls.h"
#include "platform/win32/foremost.h"
#include "view/create.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace tarvelon {

namespace {

constexpr DWORD extendedStyle = WS_EX_CONTROLPARENT;
constexpr UINT_PTR refreshTimer = 1;
constexpr UINT_PTR firstControlTimer = 16;
constexpr int firstControlId = 100; ///< Above the numbers that Enter and Esc stand for.
constexpr DWORD refreshEvery = 33;  ///< Milliseconds.

DWORD styleOf(const Screen& screen) {
    return WS_OVERLAPPED | WS_CAPTION | WS_SYSMENU | WS_CLIPCHILDREN |
           (screen.canMinimize ? WS_MINIMIZEBOX : 0);
}

} // namespace

FormWindow::FormWindow(Screen& screen, ViewTools& tools)
    : screen_(screen)
    , tools_(tools) {
    createWindow();
    for (const Control* control : screen_.controls()) {
        if (control->kind() == ControlKind::Timer) {
            applyTimer(*control);
        }
    }
    applyVisible();
}

FormWindow::~FormWindow() {
    const WindowCalls& calls = windowCalls();
    calls.setWindowLongPtr(window(), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(calls.defWindowProc));
}

void FormWindow::createWindow() {
    const WindowCalls& calls = windowCalls();
    window_.reset(
        makeWindow(extendedStyle, formWindowClass, screen_.Caption(), styleOf(screen_), RECT{}, nullptr));
    calls.setWindowLongPtr(window(), GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    calls.setWindowLongPtr(window(), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(procedure));
    darkenTitleBar(window(), tools_.theme);
    scale_ = Scale(tools_.scaling.dotsPerInch(window()));
    const SIZE size = outerSize();
    RECT desktop;
    SystemParametersInfoA(SPI_GETWORKAREA, 0, &desktop, 0);
    const int x = desktop.left + std::max((widthOf(desktop) - static_cast<int>(size.cx)) / 2, 0);
    const int y = desktop.top + std::max((heightOf(desktop) - static_cast<int>(size.cy)) / 2, 0);
    SetWindowPos(window(), nullptr, x, y, size.cx, size.cy, SWP_NOZORDER | SWP_NOACTIVATE);
}

SIZE FormWindow::outerSize() const {
    RECT frame = scale_(at(0, 0, screen_.width(), screen_.height()));
    tools_.scaling.addFrame(frame, styleOf(screen_), extendedStyle, scale_.dotsPerInch());
    return {widthOf(frame), heightOf(frame)};
}

/// Makes the windows of the controls in a frame, or of those in none, unless they are there.
void FormWindow::createControls(const Frame* within) {
    if (!created_.insert(within).second) {
        return;
    }
    needCommonControls();
    const HWND parent = within ? windowOf(*within)->window() : window();
    std::optional<ControlKind> before;
    int id = firstControlId;
    for (Control* control : screen_.controls()) {
        const int own = id++;
        if (control->kind() == ControlKind::Timer || control->frame() != within) {
            continue;
        }
        ControlWindow& made = *(controls_[control] = makeControlWindow(*this, *control));
        // The arrow keys go round among neighbours of one kind; what takes no keys is a group of its own.
        const auto group = made.takesKeys() ? std::optional(control->kind()) : std::nullopt;
        made.create(parent, own, !group || group != before);
        before = group;
        if (control->kind() == ControlKind::Frame && control->Visible()) {
            createControls(static_cast<const Frame*>(control));
        }
    }
}

bool FormWindow::makeReady() {
    const auto found = std::ranges::find_if(screen_.controls(), [this](const Control* control) {
        return control->kind() == ControlKind::Frame && windowOf(*control) &&
               !created_.contains(static_cast<const Frame*>(control));
    });
    if (found == screen_.controls().end()) {
        return false;
    }
    createControls(static_cast<const Frame*>(*found));
    return true;
}

ControlWindow* FormWindow::windowOf(const Control& control) const {
    const auto found = controls_.find(&control);
    return found == controls_.end() ? nullptr : found->second.get();
}

bool FormWindow::isNavigation(const Frame& frame) const {
    return std::ranges::any_of(screen_.controls(), [&](const Control* control) {
        return control->kind() == ControlKind::NavButton && control->frame() == &frame;
    });
}

void FormWindow::changed(Aspect aspect) {
    switch (aspect) {
    case Aspect::Visible:
        refresh();
        applyVisible();
        break;
    case Aspect::Value:
        applyMinimized();
        break;
    case Aspect::Front:
        bringToFront();
        break;
    default:
        captionWaits_ = true;
        refreshIfDue();
        break;
    }
}

void FormWindow::changed(Control& control, Aspect aspect) {
    const bool comesOrGoes = aspect == Aspect::Visible || aspect == Aspect::Enabled;
    if (control.kind() == ControlKind::Frame && comesOrGoes && control.Visible() && control.Enabled()) {
        pageShown_ = &control;
    }
    if (control.kind() == ControlKind::Timer) {
        applyTimer(control);
    } else if (ControlWindow* window = windowOf(control)) {
        if (control.kind() == ControlKind::Frame && control.Visible()) {
            createControls(static_cast<const Frame*>(&control));
        }
        window->changed(aspect);
    }
}

void FormWindow::applyVisible() {
    if (!screen_.Visible()) {
        ShowWindow(window(), SW_HIDE);
        return;
    }
    if (blocked_ || !screen_.Minimized()) {
        createControls(nullptr);
    }
    if (blocked_) {
        SetWindowPos(window(), foremostUsable(), 0, 0, 0, 0,
                     SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE | SWP_SHOWWINDOW);
    } else if (screen_.Minimized()) {
        ShowWindow(window(), SW_SHOWMINIMIZED);
    } else {
        bringToFront();
    }
}

void FormWindow::bringToFront() {
    if (!blocked_) {
        ShowWindow(window(), SW_SHOWNORMAL);
        SetForegroundWindow(window());
    }
}

void FormWindow::setBlocked(bool blocked) {
    blocked_ = blocked;
    EnableWindow(window(), !blocked);
}

void FormWindow::applyMinimized() {
    const bool already = (IsIconic(window()) != FALSE) == screen_.Minimized();
    if (screen_.Visible() && !already) {
        ShowWindow(window(), screen_.Minimized() ? SW_MINIMIZE : SW_RESTORE);
    }
}

/// A timer's number is its place among the controls.
void FormWindow::applyTimer(const Control& timer) {
    const auto place = std::ranges::find(screen_.controls(), &timer) - screen_.controls().begin();
    const UINT_PTR id = firstControlTimer + static_cast<UINT_PTR>(place);
    if (timer.Enabled()) {
        SetTimer(window(), id, static_cast<UINT>(static_cast<const Timer&>(timer).interval()), nullptr);
    } else {
        KillTimer(window(), id);
    }
}

void FormWindow::timerFired(UINT_PTR id) {
    const auto& controls = screen_.controls();
    const UINT_PTR place = id - firstControlTimer;
    if (id == refreshTimer) {
        KillTimer(window(), refreshTimer);
        timerRuns_ = false;
        refresh();
    } else if (place < controls.size() && controls[place]->kind() == ControlKind::Timer) {
        static_cast<Timer*>(controls[place])->tick();
    }
}

void FormWindow::refreshLater(ControlWindow& window) {
    if (!window.waitsForRefresh) {
        window.waitsForRefresh = true;
        waiting_.push_back(&window);
    }
    // Not the focus: what has gone may have something come in its place yet.
    if (isDue()) {
        showChanges();
    }
    wakeIfAnythingWaits();
}

bool FormWindow::isDue() const {
    return GetTickCount() - refreshedAt_ >= refreshEvery;
}

bool FormWindow::wakeIfAnythingWaits() {
    const bool waits = !waiting_.empty() || captionWaits_ || focusLost_ || emptied_;
    if (waits && !timerRuns_) {
        timerRuns_ = SetTimer(window(), refreshTimer, refreshEvery, nullptr) != 0;
    }
    return waits;
}

void FormWindow::refreshIfDue() {
    if (wakeIfAnythingWaits() && isDue()) {
        refresh();
    }
}

void FormWindow::showChanges() {
    refreshedAt_ = GetTickCount();
    if (captionWaits_) {
        captionWaits_ = false;
        windowCalls().defWindowProc(window(), WM_SETTEXT, 0, WindowText(screen_.Caption()).parameter());
    }
    for (ControlWindow* window : std::exchange(waiting_, {})) {
        window->waitsForRefresh = false;
        window->refresh();
    }
}

void FormWindow::refresh() {
    showChanges();
    if (std::exchange(focusLost_, false)) {
        giveFocus();
    }
    const ControlWindow* emptied = std::exchange(emptied_, nullptr);
    if (emptied && emptied->isFocused() && emptied->isEmpty()) {
        moveFocus(FALSE, FALSE);
    }
}

void FormWindow::scaleTo(unsigned dotsPerInch, const RECT& place) {
    scale_ = Scale(dotsPerInch);
    const SIZE size = outerSize();
    SetWindowPos(window(), nullptr, place.left, place.top, size.cx, size.cy, SWP_NOZORDER | SWP_NOACTIVATE);
    for (const auto& [control, window] : controls_) {
        window->arrange();
    }
    themeChanged();
}

void FormWindow::themeChanged() {
    darkenTitleBar(window(), tools_.theme);
    for (const auto& [control, window] : controls_) {
        window->followTheme();
    }
    RedrawWindow(window(), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN);
}

} // namespace tarvelon
