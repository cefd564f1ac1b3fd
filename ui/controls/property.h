#pragma once

#include <utility>

namespace tarvelon {

/// What about a control has changed; the view decides by it what to redraw.
enum class Aspect {
    Caption,
    Visible,
    Enabled,
    Value,     ///< Check state, progress, selected row, timer settings.
    TextColor, ///< Text colour or underline.
    Items,     ///< All rows anew.
    ItemAdded,
    ToolTip,
    Front, ///< A screen that is shown already is wanted in front.
};

/// A value that tells its owner about each real change. The owner has `void changed(Aspect)`.
template<class T, class Owner, Aspect aspect>
class Property {
public:
    Property(Owner& owner, T value)
        : owner_(owner)
        , value_(std::move(value)) {}
    Property(const Property&) = delete;

    Property& operator=(T value) {
        if (!(value == value_)) {
            value_ = std::move(value);
            owner_.changed(aspect);
        }
        return *this;
    }
    Property& operator=(const Property& other) { return *this = other.value_; }

    const T& operator()() const { return value_; }

private:
    Owner& owner_;
    T value_;
};

} // namespace tarvelon
