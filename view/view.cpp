#include "view/view.h"

#include "view/form.h"

#include <algorithm>

namespace tarvelon {

namespace {

HICON applicationIcon(int widthMetric, int heightMetric) {
    return static_cast<HICON>(LoadImageA(GetModuleHandleA(nullptr), "application", IMAGE_ICON,
                                         GetSystemMetrics(widthMetric), GetSystemMetrics(heightMetric),
                                         LR_DEFAULTCOLOR));
}

void registerWindowClasses() {
    registerWindowClass(frameWindowClass);
    registerWindowClass(formWindowClass, applicationIcon(SM_CXICON, SM_CYICON),
                        applicationIcon(SM_CXSMICON, SM_CYSMICON));
}

} // namespace

Win32View::Win32View(ThemeKind theme)
    : tools_(std::make_unique<ViewTools>(themeFor(theme))) {
    registerWindowClasses();
}

Win32View::~Win32View() = default;

void Win32View::attach(Screen& screen) {
    screen.listener = this;
    main_ = main_ ? main_ : &screen;
}

void Win32View::loaded(Screen& screen) {
    forms_.push_back(std::make_unique<FormWindow>(screen, *tools_));
    belongToMain();
    if (blocks_ > 0) {
        forms_.back()->setBlocked(true);
    }
}

FormWindow* Win32View::formOf(const Screen& screen) const {
    const auto found = std::ranges::find(forms_, &screen, [](const auto& form) { return &form->screen(); });
    return found == forms_.end() ? nullptr : found->get();
}

void Win32View::belongToMain() {
    const FormWindow* main = main_ ? formOf(*main_) : nullptr;
    const HWND owner = main && main_->Visible() ? main->window() : nullptr;
    for (const auto& form : forms_) {
        if (form.get() != main) {
            form->belongTo(owner);
        }
    }
}

void Win32View::changed(Screen& screen, Aspect aspect) {
    if (FormWindow* form = formOf(screen)) {
        form->changed(aspect);
        if (&screen == main_ && aspect == Aspect::Visible) {
            belongToMain();
        }
    }
}

void Win32View::changed(Control& control, Aspect aspect) {
    if (FormWindow* form = formOf(control.screen())) {
        form->changed(control, aspect);
    }
}

void Win32View::handle(MSG& message) {
    const HWND root = GetAncestor(message.hwnd, GA_ROOT);
    const auto found = std::ranges::find(forms_, root, [](const auto& form) { return form->window(); });
    FormWindow* form = found == forms_.end() ? nullptr : found->get();
    if (!form || !form->takes(message)) {
        TranslateMessage(&message);
        windowCalls().dispatchMessage(&message);
    }
    if (form) {
        form->settleFocus();
    }
}

void Win32View::block(HWND owner) {
    if (++blocks_ > 1) {
        return;
    }
    for (const auto& form : forms_) {
        // Disabled before its box is, the owner would not come back to the front when the box closes.
        if (form->window() != owner) {
            form->setBlocked(true);
        }
    }
}

void Win32View::unblock() {
    if (--blocks_ > 0) {
        return;
    }
    for (const auto& form : forms_) {
        form->setBlocked(false);
    }
}

void Win32View::refresh() {
    for (const auto& form : forms_) {
        form->refresh();
    }
}

void Win32View::refreshIfDue() {
    for (const auto& form : forms_) {
        form->refreshIfDue();
    }
}

bool Win32View::makeReady() {
    return std::any_of(forms_.begin(), forms_.end(), [](const auto& form) { return form->makeReady(); });
}

} // namespace tarvelon
