#pragma once

#include "platform/win32/view_press.h"

namespace tarvelon {

/// A white drawing out of the program's resources, in the size that the scale asks for.
class Drawing {
public:
    Drawing() = default;
    Drawing(const Drawing&) = delete;
    ~Drawing() { forget(); }

    void load(const std::string& name, int size);
    HICON get() const { return picture_; }

private:
    void forget();

    HICON picture_ = nullptr;
};

/// A large button with a drawing on it. "-lit" behind the picture's name stands for the same drawing on a lit
/// face.
class PictureWindow : public PressWindow {
public:
    PictureWindow(FormWindow& form, Picture& picture)
        : PressWindow(form, picture)
        , picture_(picture) {}

protected:
    Kind kind() const override { return {"BUTTON", BS_OWNERDRAW | WS_TABSTOP}; }
    LRESULT handle(UINT message, WPARAM wide, LPARAM low) override;
    void click() override { picture_.click(); }
    void paint(Canvas& canvas) override;
    void arranged() override;

private:
    bool isLit() const;

    Picture& picture_;
    Drawing drawing_;
};

/// An entry of the navigation column.
class NavButtonWindow : public PressWindow {
public:
    NavButtonWindow(FormWindow& form, NavButton& button)
        : PressWindow(form, button)
        , button_(button) {}

protected:
    Kind kind() const override { return {"BUTTON", BS_OWNERDRAW | WS_TABSTOP}; }
    void click() override { button_.click(); }
    void paint(Canvas& canvas) override;
    void arranged() override;

private:
    NavButton& button_;
    Drawing drawing_;
};

} // namespace tarvelon
