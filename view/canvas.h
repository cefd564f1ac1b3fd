#pragma once

#include "platform/win32/windows_api.h"
#include "view/drawings.h"
#include "view/fonts.h"
#include "view/scale.h"
#include "view/theme.h"

#include <cstdint>
#include <initializer_list>
#include <string>

namespace tarvelon {

/// One picture in memory, shared by all painting and grown as needed: what is drawn there reaches the screen
/// in one piece.
class BackBuffer {
public:
    BackBuffer();
    BackBuffer(const BackBuffer&) = delete;
    ~BackBuffer();

    /// False when the system has no memory left for it.
    bool reserve(int width, int height);

    HDC dc() const { return dc_; }
    std::uint32_t* row(int y) const { return pixels_ + static_cast<std::ptrdiff_t>(y) * width_; }

private:
    HDC dc_;
    HBITMAP bitmap_ = nullptr;
    HGDIOBJ original_ = nullptr;
    std::uint32_t* pixels_ = nullptr;
    int width_ = 0;
    int height_ = 0;
};

enum class Align { Left, Center, Right };

struct TextLook {
    Color color = colors::black;
    int tenthPoints = textSize::normal;
    int weight = FW_NORMAL;
    Align align = Align::Left;
    bool underlined = false;
    bool mnemonics = false; ///< "&&" shows as one "&", as captions of buttons have it.
};

/// Draws one control, from its top left corner on, with smooth edges.
class Canvas {
public:
    Canvas(BackBuffer& buffer, Fonts& fonts, Scale scale, int width, int height);

    RECT area() const { return {0, 0, width_, height_}; }
    const Scale& scale() const { return scale_; }
    HDC dc() const { return buffer_.dc(); }

    void fill(const RECT& rect, Color color);
    void roundedBox(const RECT& rect, int radius, Color color);
    /// A box with an edge of `thickness` pixels in another colour.
    void roundedBox(const RECT& rect, int radius, Color color, Color edge, int thickness);
    /// Straight lines from spot to spot, with round ends.
    void stroke(std::initializer_list<Spot> spots, float thickness, Color color);
    /// Fills the square of the rectangle's width with the drawing.
    void drawing(const LineDrawing& drawing, const RECT& rect, Color color);
    void ring(Spot middle, float radius, float thickness, Color color);
    /// Light around a disc, that fades towards `width` pixels from it.
    void glow(Spot middle, float radius, float width, Color color);

    /// Draws the text in the middle of the rectangle's height; a rectangle with room for three lines or more
    /// is filled from its top. Text that does not fit into one line is first set a little smaller, then
    /// broken into lines and, down to four fifths, set smaller again; at last it is shortened by dots. A path
    /// is only shortened. Text with line breaks of its own is set in lines from the start.
    void text(const std::string& text, const RECT& rect, const TextLook& look);
    /// Width of the text in one line.
    int textWidth(const std::string& text, const TextLook& look);

private:
    struct Fit {
        bool fits;
        UINT lines; ///< DT_SINGLELINE or DT_WORDBREAK.
        int height; ///< Of all lines.
    };
    /// Chooses the font of that letter height and measures the text in it.
    Fit fit(const std::string& text, const RECT& rect, const TextLook& look, int height, bool severalLines);

    void blend(std::uint32_t& pixel, Color color, float coverage);
    template<class Distance>
    void shape(const RECT& bounds, Color color, Distance distance);

    BackBuffer& buffer_;
    Fonts& fonts_;
    Scale scale_;
    int width_;
    int height_;
};

} // namespace tarvelon
