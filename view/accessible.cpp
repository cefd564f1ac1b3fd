#include "view/accessible.h"

#include "platform/win32/component.h"
#include "platform/win32/system_library.h"
#include "platform/win32/wide.h"
#include "ui/controls/bar_chart.h"
#include "ui/controls/lists.h"
#include "view/control.h"

#include <oleacc.h>

#include <algorithm>
#include <utility>

namespace tarvelon {

namespace {

const SystemLibrary& readerLibrary() {
    static const SystemLibrary library("oleacc.dll");
    return library;
}

bool isSelf(const VARIANT& child) {
    return child.vt == VT_I4 && child.lVal == CHILDID_SELF;
}

template<class... Styles>
bool isLabelOf(const Control& control, Styles... styles) {
    return control.kind() == ControlKind::Label &&
           ((static_cast<const Label&>(control).style() == styles) || ...);
}

LONG roleOf(const Control& control) {
    switch (control.kind()) {
    case ControlKind::Frame:
        if (!control.captionOrName().empty()) {
            return ROLE_SYSTEM_GROUPING;
        }
        return static_cast<const Frame&>(control).look() == Frame::Look::Group ? ROLE_SYSTEM_SEPARATOR
                                                                               : ROLE_SYSTEM_PANE;
    case ControlKind::Label:
        if (isLabelOf(control, TextStyle::Link)) {
            return ROLE_SYSTEM_LINK;
        }
        return isLabelOf(control, TextStyle::Action, TextStyle::Step) ? ROLE_SYSTEM_PUSHBUTTON
                                                                      : ROLE_SYSTEM_STATICTEXT;
    case ControlKind::FlatButton:
    case ControlKind::NavButton:
    case ControlKind::Picture:
        return ROLE_SYSTEM_PUSHBUTTON;
    case ControlKind::FlatCheck:
    case ControlKind::CheckBox:
        return ROLE_SYSTEM_CHECKBUTTON;
    case ControlKind::OptionButton:
        return ROLE_SYSTEM_RADIOBUTTON;
    case ControlKind::TextBox:
        return ROLE_SYSTEM_TEXT;
    case ControlKind::ListBox:
    case ControlKind::CheckList:
        return ROLE_SYSTEM_LIST;
    case ControlKind::Tree:
        return ROLE_SYSTEM_OUTLINE;
    case ControlKind::ComboBox:
        return ROLE_SYSTEM_COMBOBOX;
    case ControlKind::ProgressBar:
        return ROLE_SYSTEM_PROGRESSBAR;
    case ControlKind::BarChart:
        return ROLE_SYSTEM_CHART;
    case ControlKind::Icon:
        return ROLE_SYSTEM_GRAPHIC;
    case ControlKind::StepDots:
        return ROLE_SYSTEM_INDICATOR;
    case ControlKind::Verdict:
    case ControlKind::StatusLine:
    case ControlKind::Timer:
        break;
    }
    return ROLE_SYSTEM_STATICTEXT;
}

bool isTicked(const Control& control) {
    switch (control.kind()) {
    case ControlKind::FlatCheck:
    case ControlKind::CheckBox:
        return static_cast<const TickBox&>(control).value() != 0;
    case ControlKind::OptionButton:
        return static_cast<const OptionButton&>(control).value();
    default:
        return false;
    }
}

LONG stateOf(const ControlWindow& window) {
    const Control& control = window.control();
    const bool isOpenPage =
        control.kind() == ControlKind::NavButton && static_cast<const NavButton&>(control).Current();
    LONG state = 0;
    const auto add = [&](bool holds, LONG flag) { state |= holds ? flag : 0; };
    add(!control.isUsable(), STATE_SYSTEM_UNAVAILABLE);
    add(!control.isShown(), STATE_SYSTEM_INVISIBLE);
    add(window.takesKeys() && control.isUsable(), STATE_SYSTEM_FOCUSABLE);
    add(window.isFocused(), STATE_SYSTEM_FOCUSED);
    add(isTicked(control), STATE_SYSTEM_CHECKED);
    add(isOpenPage, STATE_SYSTEM_PRESSED);
    add(!window.takesKeys(), STATE_SYSTEM_READONLY);
    return state;
}

/// What stands in front of a field and names it, or the title of the box around it.
std::string labelBefore(const Control& field) {
    const auto& controls = field.screen().controls();
    for (auto at = std::ranges::find(controls, &field); at != controls.begin();) {
        const Control& before = **--at;
        if (before.frame() == field.frame() && before.Visible() && !before.Caption().empty() &&
            isLabelOf(before, TextStyle::Normal, TextStyle::Title, TextStyle::Heading, TextStyle::Hint)) {
            return before.Caption();
        }
    }
    return field.frame() ? field.frame()->Caption() : std::string();
}

/// Captions of buttons have "&&" for one "&".
std::string withoutMarks(std::string caption) {
    for (std::size_t at = 0; (at = caption.find('&', at)) != std::string::npos; ++at) {
        caption.erase(at, 1);
    }
    return caption;
}

std::string nameOf(const Control& control) {
    switch (control.kind()) {
    case ControlKind::TextBox:
    case ControlKind::ListBox:
    case ControlKind::CheckList:
    case ControlKind::Tree:
    case ControlKind::ComboBox:
    case ControlKind::ProgressBar:
        return control.name.empty() ? labelBefore(control) : control.name;
    case ControlKind::StepDots: {
        const auto& dots = static_cast<const StepDots&>(control);
        return "Step " + std::to_string(dots.current() + 1) + " of " + std::to_string(dots.count());
    }
    case ControlKind::StatusLine: {
        const auto& line = static_cast<const StatusLine&>(control);
        return line.Caption() + ", " + line.toneInWords() + ": " + line.text();
    }
    case ControlKind::Icon:
        return control.name.empty() ? labelBefore(control) : control.name;
    case ControlKind::BarChart:
        return control.captionOrName().empty() ? labelBefore(control) : control.captionOrName();
    case ControlKind::Label:
    case ControlKind::Verdict:
        return control.captionOrName();
    default:
        return withoutMarks(control.captionOrName());
    }
}

/// "64 Kb: 12.5, marked; 128 Kb: 14".
std::string valuesOf(const BarChart& chart) {
    std::string all;
    for (int i = 0; i < chart.count(); ++i) {
        const BarChart::Bar& bar = chart.bars()[static_cast<std::size_t>(i)];
        std::string figure = std::to_string(bar.value);
        figure.erase(figure.find_last_not_of('0') + 1);
        figure.erase(figure.find_last_not_of('.') + 1);
        all += (i > 0 ? "; " : "") + bar.label + ": " + figure + (i == chart.marked() ? ", marked" : "");
    }
    return all;
}

/// Empty for a control without a value.
std::string valueOf(const Control& control) {
    switch (control.kind()) {
    case ControlKind::TextBox:
        return control.Caption();
    case ControlKind::ComboBox:
        return static_cast<const ItemControl&>(control).text();
    case ControlKind::ProgressBar: {
        const auto& bar = static_cast<const ProgressBar&>(control);
        return std::to_string(bar.max() > 0 ? bar.value() * 100LL / bar.max() : 0) + "%";
    }
    case ControlKind::BarChart:
        return valuesOf(static_cast<const BarChart&>(control));
    default:
        return {};
    }
}

HRESULT give(const std::string& text, BSTR* answer) {
    *answer = text.empty() ? nullptr : SysAllocString(wideText(text).c_str());
    return text.empty() ? S_FALSE : S_OK;
}

HRESULT give(LONG number, VARIANT* answer) {
    answer->vt = VT_I4;
    answer->lVal = number;
    return S_OK;
}

/// Lives as long as a reader holds it, and outlives the window: then it knows nothing more.
class Accessible : public IAccessible {
public:
    Accessible(ControlWindow& window, Component<IAccessible> standard)
        : window_(window.window())
        , standard_(std::move(standard)) {}
    virtual ~Accessible() = default;

    // IUnknown
    STDMETHODIMP QueryInterface(REFIID id, void** answer) override {
        const bool known =
            id == __uuidof(IUnknown) || id == __uuidof(IDispatch) || id == __uuidof(IAccessible);
        *answer = known ? this : nullptr;
        if (known) {
            AddRef();
        }
        return known ? S_OK : E_NOINTERFACE;
    }
    STDMETHODIMP_(ULONG) AddRef() override { return ++holders_; }
    STDMETHODIMP_(ULONG) Release() override {
        const ULONG left = --holders_;
        if (left == 0) {
            delete this;
        }
        return left;
    }

    // IDispatch
    STDMETHODIMP GetTypeInfoCount(UINT* count) override { return standard_->GetTypeInfoCount(count); }
    STDMETHODIMP GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) override {
        return standard_->GetTypeInfo(index, locale, info);
    }
    STDMETHODIMP GetIDsOfNames(REFIID id, LPOLESTR* names, UINT count, LCID locale, DISPID* ids) override {
        return standard_->GetIDsOfNames(id, names, count, locale, ids);
    }
    STDMETHODIMP Invoke(DISPID member, REFIID id, LCID locale, WORD flags, DISPPARAMS* parameters,
                        VARIANT* result, EXCEPINFO* exception, UINT* argument) override {
        return standard_->Invoke(member, id, locale, flags, parameters, result, exception, argument);
    }

    // What our windows know better than their classes.
    STDMETHODIMP get_accName(VARIANT child, BSTR* name) override {
        const ControlWindow* own = ownFor(child);
        return own ? give(nameOf(own->control()), name) : standard_->get_accName(child, name);
    }
    STDMETHODIMP get_accRole(VARIANT child, VARIANT* role) override {
        const ControlWindow* own = ownFor(child);
        return own ? give(roleOf(own->control()), role) : standard_->get_accRole(child, role);
    }
    STDMETHODIMP get_accState(VARIANT child, VARIANT* state) override {
        if (const ControlWindow* own = ownFor(child)) {
            return give(stateOf(*own), state);
        }
        const HRESULT result = standard_->get_accState(child, state);
        const ControlWindow* own = ControlWindow::from(window_);
        if (own && SUCCEEDED(result) && child.vt == VT_I4 &&
            own->control().kind() == ControlKind::CheckList &&
            static_cast<const CheckListBox&>(own->control()).ticked(child.lVal - 1)) {
            state->lVal |= STATE_SYSTEM_CHECKED;
        }
        return result;
    }
    STDMETHODIMP get_accValue(VARIANT child, BSTR* value) override {
        const ControlWindow* own = ownFor(child);
        return own ? give(valueOf(own->control()), value) : standard_->get_accValue(child, value);
    }
    STDMETHODIMP get_accDescription(VARIANT child, BSTR* description) override {
        const ControlWindow* own = ownFor(child);
        return own ? give(own->control().ToolTip(), description)
                   : standard_->get_accDescription(child, description);
    }
    STDMETHODIMP get_accKeyboardShortcut(VARIANT child, BSTR* keys) override {
        const ControlWindow* own = ownFor(child);
        if (!own) {
            return standard_->get_accKeyboardShortcut(child, keys);
        }
        const char letter = own->control().accessKey;
        return give(letter ? std::string("Alt+") + letter : std::string(), keys);
    }
    STDMETHODIMP get_accDefaultAction(VARIANT child, BSTR* action) override {
        const ControlWindow* own = ownFor(child);
        return own && isPressed(*own) ? give("Press", action)
                                      : standard_->get_accDefaultAction(child, action);
    }
    STDMETHODIMP accDoDefaultAction(VARIANT child) override {
        const ControlWindow* own = ownFor(child);
        if (!own || !isPressed(*own)) {
            return standard_->accDoDefaultAction(child);
        }
        PostMessageA(window_, BM_CLICK, 0, 0); // What it does may take long, and ask questions.
        return S_OK;
    }

    // The rest.
    STDMETHODIMP get_accParent(IDispatch** parent) override { return standard_->get_accParent(parent); }
    STDMETHODIMP get_accChildCount(LONG* count) override { return standard_->get_accChildCount(count); }
    STDMETHODIMP get_accChild(VARIANT child, IDispatch** found) override {
        return standard_->get_accChild(child, found);
    }
    STDMETHODIMP get_accHelp(VARIANT child, BSTR* help) override {
        return standard_->get_accHelp(child, help);
    }
    STDMETHODIMP get_accHelpTopic(BSTR* file, VARIANT child, LONG* topic) override {
        return standard_->get_accHelpTopic(file, child, topic);
    }
    STDMETHODIMP get_accFocus(VARIANT* child) override { return standard_->get_accFocus(child); }
    STDMETHODIMP get_accSelection(VARIANT* children) override {
        return standard_->get_accSelection(children);
    }
    STDMETHODIMP accSelect(LONG flags, VARIANT child) override { return standard_->accSelect(flags, child); }
    STDMETHODIMP accLocation(LONG* left, LONG* top, LONG* width, LONG* height, VARIANT child) override {
        return standard_->accLocation(left, top, width, height, child);
    }
    STDMETHODIMP accNavigate(LONG direction, VARIANT start, VARIANT* end) override {
        return standard_->accNavigate(direction, start, end);
    }
    STDMETHODIMP accHitTest(LONG left, LONG top, VARIANT* child) override {
        return standard_->accHitTest(left, top, child);
    }
    STDMETHODIMP put_accName(VARIANT, BSTR) override { return E_NOTIMPL; }
    STDMETHODIMP put_accValue(VARIANT, BSTR) override { return E_NOTIMPL; }

private:
    /// Null for a row of the window, or when the window has gone.
    const ControlWindow* ownFor(const VARIANT& child) const {
        return isSelf(child) ? ControlWindow::from(window_) : nullptr;
    }
    static bool isPressed(const ControlWindow& own) {
        const LONG role = roleOf(own.control());
        return role == ROLE_SYSTEM_PUSHBUTTON || role == ROLE_SYSTEM_CHECKBUTTON ||
               role == ROLE_SYSTEM_RADIOBUTTON || role == ROLE_SYSTEM_LINK;
    }

    HWND window_;
    Component<IAccessible> standard_;
    ULONG holders_ = 1;
};

} // namespace

LRESULT answerReader(ControlWindow& window, WPARAM wide) {
    const auto makeStandard =
        readerLibrary().find<HRESULT WINAPI(HWND, LONG, REFIID, void**)>("CreateStdAccessibleObject");
    const auto answerWith =
        readerLibrary().find<LRESULT WINAPI(REFIID, WPARAM, IUnknown*)>("LresultFromObject");
    void* standard = nullptr;
    if (!makeStandard || !answerWith ||
        FAILED(makeStandard(window.window(), static_cast<LONG>(OBJID_CLIENT), __uuidof(IAccessible),
                            &standard))) {
        return 0;
    }
    const Component<IAccessible> own(
        new Accessible(window, Component<IAccessible>(static_cast<IAccessible*>(standard))));
    return answerWith(__uuidof(IAccessible), wide, own.get());
}

} // namespace tarvelon
