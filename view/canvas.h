#pragma once

#include "platform/win32/owned.h"
#include "platform/win32/window_calls.h"
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
    /// False when the system has no memory left for it.
    bool reserve(int width, int height);

    HDC dc() const { return dc_.get(); }
    std::uint32_t* row(int y) const { return pixels_ + static_cast<std::ptrdiff_t>(y) * width_; }

private:
    OwnedBitmap bitmap_; ///< In the DC, so freed after it.
    OwnedMemoryDc dc_{CreateCompatibleDC(nullptr)};
    std::uint32_t* pixels_ = nullptr;
    int width_ = 0;
    int height_ = 0;
};

struct TextLook {
    Color color = colors::black;
    int tenthPoints = textSize::normal;
    int weight = FW_NORMAL;
    UINT align = DT_LEFT;
    bool underlined = false;
    bool mnemonics = false; ///< "&&" shows as one "&", as captions of buttons have it.
    char accessKey = 0;     ///< Its first place in such a caption is underlined; 0 for none.
    bool middle = false;    ///< Of the rectangle's height, however many lines there is room for.
};

/// Draws one control, from its top left corner on, with smooth edges.
class Canvas {
public:
    Canvas(BackBuffer& buffer, Fonts& fonts, const Scale& scale, int width, int height)
        : buffer_(buffer)
        , fonts_(fonts)
        , scale_(scale)
        , width_(width)
        , height_(height) {}

    RECT area() const { return {0, 0, width_, height_}; }
    const Scale& scale() const { return scale_; }
    HDC dc() const { return buffer_.dc(); }

    void fill(const RECT& rect, Color color);
    void roundedBox(const RECT& rect, int radius, Color color);
    /// A box with an edge of `thickness` pixels in another colour.
    void roundedBox(const RECT& rect, int radius, Color color, Color edge, int thickness);
    /// The edge of such a box alone.
    void roundedEdge(const RECT& rect, int radius, int thickness, Color color);
    /// Straight lines from spot to spot, with round ends.
    void stroke(std::initializer_list<Spot> spots, float thickness, Color color);
    /// Fills the square of the rectangle's width with the drawing; `ground` shows where it is cut out.
    void drawing(const LineDrawing& drawing, const RECT& rect, Color color, Color ground);
    void ring(Spot middle, float radius, float thickness, Color color);
    /// Light around a disc, that fades towards `width` pixels from it.
    void glow(Spot middle, float radius, float width, Color color);

    /// Draws the text in the middle of the rectangle's height; one with room for more than three lines
    /// is filled from its top. Text that does not fit into one line is first set a little smaller, then
    /// broken into lines and, down to four fifths, set smaller again; at last it is shortened by dots. A path
    /// is only shortened. Text with line breaks of its own is set in lines from the start.
    void text(const std::string& text, const RECT& rect, const TextLook& look);
    /// Width of the text in one line.
    int textWidth(const std::string& text, const TextLook& look);

private:
    /// Chooses the font of that letter height and measures the text in it: in one line (DT_SINGLELINE), or
    /// broken into lines of that width (DT_WORDBREAK).
    SIZE measure(const WindowText& text, const TextLook& look, int height, UINT lines, int width = 0);

    /// Draws each row that is seen of the bounds: `draw(y, left, right)`.
    template<class Draw>
    void eachRow(const RECT& bounds, Draw draw);
    /// Fills up to where the distance of a pixel's middle is 0; half-way there the edge is half as strong.
    template<class Distance>
    void shape(const RECT& bounds, Color color, Distance distance);

    BackBuffer& buffer_;
    Fonts& fonts_;
    const Scale& scale_;
    int width_;
    int height_;
};

} // namespace tarvelon
