#include "view/canvas.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace tarvelon {

BackBuffer::BackBuffer()
    : dc_(CreateCompatibleDC(nullptr)) {}

BackBuffer::~BackBuffer() {
    if (bitmap_) {
        SelectObject(dc_, original_);
        DeleteObject(bitmap_);
    }
    DeleteDC(dc_);
}

bool BackBuffer::reserve(int width, int height) {
    if (width <= width_ && height <= height_) {
        return true;
    }
    const int newWidth = std::max(width, width_);
    const int newHeight = std::max(height, height_);
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = newWidth;
    info.bmiHeader.biHeight = -newHeight; // The top row comes first.
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    void* pixels = nullptr;
    const HBITMAP bitmap = CreateDIBSection(dc_, &info, DIB_RGB_COLORS, &pixels, nullptr, 0);
    if (!bitmap) {
        return false;
    }
    const HGDIOBJ previous = SelectObject(dc_, bitmap);
    if (bitmap_) {
        DeleteObject(bitmap_);
    } else {
        original_ = previous;
    }
    bitmap_ = bitmap;
    pixels_ = static_cast<std::uint32_t*>(pixels);
    width_ = newWidth;
    height_ = newHeight;
    return true;
}

namespace {

/// Pixels hold red and blue the other way round than colours do.
constexpr std::uint32_t pixelFrom(Color color) {
    return ((color & 0xff) << 16) | (color & 0xff00) | ((color >> 16) & 0xff);
}

constexpr std::uint32_t mix(std::uint32_t under, std::uint32_t over, std::uint32_t weight256, int shift) {
    const std::uint32_t a = (under >> shift) & 0xff;
    const std::uint32_t b = (over >> shift) & 0xff;
    return ((a * (256 - weight256) + b * weight256) >> 8) << shift;
}

/// Distance from the edge of a box with round corners, negative inside.
float boxDistance(const RECT& box, float radius, Spot spot) {
    const float halfWidth = static_cast<float>(widthOf(box)) / 2;
    const float halfHeight = static_cast<float>(heightOf(box)) / 2;
    const float x = std::fabs(spot.x - static_cast<float>(box.left) - halfWidth) - halfWidth + radius;
    const float y = std::fabs(spot.y - static_cast<float>(box.top) - halfHeight) - halfHeight + radius;
    const float outsideX = std::max(x, 0.0F);
    const float outsideY = std::max(y, 0.0F);
    return std::sqrt(outsideX * outsideX + outsideY * outsideY) + std::min(std::max(x, y), 0.0F) - radius;
}

float lineDistance(Spot from, Spot to, Spot spot) {
    const Spot line{to.x - from.x, to.y - from.y};
    const Spot way{spot.x - from.x, spot.y - from.y};
    const float length = line.x * line.x + line.y * line.y;
    const float along =
        length > 0 ? std::clamp((way.x * line.x + way.y * line.y) / length, 0.0F, 1.0F) : 0.0F;
    const float x = way.x - along * line.x;
    const float y = way.y - along * line.y;
    return std::sqrt(x * x + y * y);
}

/// Distance from the nearest of the straight lines from spot to spot.
template<class Iterator>
float polylineDistance(Iterator first, Iterator last, Spot spot) {
    float nearest = std::numeric_limits<float>::max();
    for (; last - first > 1; ++first) {
        nearest = std::min(nearest, lineDistance(first[0], first[1], spot));
    }
    return nearest;
}

} // namespace

Canvas::Canvas(BackBuffer& buffer, Fonts& fonts, Scale scale, int width, int height)
    : buffer_(buffer)
    , fonts_(fonts)
    , scale_(scale)
    , width_(width)
    , height_(height) {}

void Canvas::blend(std::uint32_t& pixel, Color color, float coverage) {
    const std::uint32_t over = pixelFrom(color);
    const auto weight = static_cast<std::uint32_t>(coverage * 256);
    pixel = mix(pixel, over, weight, 16) | mix(pixel, over, weight, 8) | mix(pixel, over, weight, 0);
}

template<class Distance>
void Canvas::shape(const RECT& bounds, Color color, Distance distance) {
    GdiFlush();
    RECT visible;
    const RECT whole = area();
    if (!IntersectRect(&visible, &bounds, &whole)) {
        return;
    }
    for (int y = visible.top; y < visible.bottom; ++y) {
        std::uint32_t* row = buffer_.row(y);
        for (int x = visible.left; x < visible.right; ++x) {
            const Spot middle{static_cast<float>(x) + 0.5F, static_cast<float>(y) + 0.5F};
            blend(row[x], color, std::clamp(0.5F - distance(middle), 0.0F, 1.0F));
        }
    }
}

void Canvas::fill(const RECT& rect, Color color) {
    GdiFlush();
    RECT visible;
    const RECT whole = area();
    if (!IntersectRect(&visible, &rect, &whole)) {
        return;
    }
    for (int y = visible.top; y < visible.bottom; ++y) {
        std::fill(buffer_.row(y) + visible.left, buffer_.row(y) + visible.right, pixelFrom(color));
    }
}

void Canvas::roundedBox(const RECT& rect, int radius, Color color) {
    const auto corner = static_cast<float>(radius);
    shape(rect, color, [&](Spot spot) { return boxDistance(rect, corner, spot); });
}

void Canvas::roundedBox(const RECT& rect, int radius, Color color, Color edge, int thickness) {
    roundedBox(rect, radius, edge);
    roundedBox(inset(rect, thickness, thickness), std::max(radius - thickness, 0), color);
}

void Canvas::stroke(std::initializer_list<Spot> spots, float thickness, Color color) {
    shape(area(), color,
          [&](Spot spot) { return polylineDistance(spots.begin(), spots.end(), spot) - thickness / 2; });
}

void Canvas::drawing(const LineDrawing& drawing, const RECT& rect, Color color) {
    if (drawing.side <= 0) {
        return;
    }
    const float zoom = static_cast<float>(widthOf(rect)) / drawing.side;
    const auto distance = [&](Spot spot) {
        const Spot there{(spot.x - static_cast<float>(rect.left)) / zoom,
                         (spot.y - static_cast<float>(rect.top)) / zoom};
        float nearest = std::numeric_limits<float>::max();
        for (const std::vector<Spot>& line : drawing.lines) {
            nearest = std::min(nearest, polylineDistance(line.begin(), line.end(), there));
        }
        return (nearest - drawing.thickness / 2) * zoom;
    };
    shape(rect, color, distance);
}

void Canvas::ring(Spot middle, float radius, float thickness, Color color) {
    shape(area(), color, [&](Spot spot) {
        return std::fabs(std::hypot(spot.x - middle.x, spot.y - middle.y) - radius) - thickness / 2;
    });
}

void Canvas::glow(Spot middle, float radius, float width, Color color) {
    constexpr float brightest = 0.75F;
    shape(area(), color, [&](Spot spot) {
        const float away = std::hypot(spot.x - middle.x, spot.y - middle.y) - radius;
        const float left = std::clamp(1 - away / width, 0.0F, 1.0F);
        return 0.5F - brightest * left * left;
    });
}

int Canvas::textWidth(const std::string& text, const TextLook& look) {
    SelectObject(dc(), fonts_.get(scale_.letters(look.tenthPoints), look.weight));
    RECT size{};
    DrawTextA(dc(), text.c_str(), static_cast<int>(text.size()), &size,
              DT_CALCRECT | DT_SINGLELINE | (look.mnemonics ? 0U : DT_NOPREFIX));
    return widthOf(size);
}

Canvas::Fit Canvas::fit(const std::string& text, const RECT& rect, const TextLook& look, int height,
                        bool severalLines) {
    SelectObject(dc(), fonts_.get(height, look.weight, look.underlined));
    RECT size{0, 0, widthOf(rect), 0};
    const UINT lines = severalLines ? DT_WORDBREAK : DT_SINGLELINE;
    DrawTextA(dc(), text.c_str(), static_cast<int>(text.size()), &size,
              DT_CALCRECT | lines | (look.mnemonics ? DT_HIDEPREFIX : DT_NOPREFIX));
    const bool fits = widthOf(size) <= widthOf(rect) && heightOf(size) <= heightOf(rect);
    return {fits, lines, heightOf(size)};
}

void Canvas::text(const std::string& text, const RECT& rect, const TextLook& look) {
    if (text.empty()) {
        return;
    }
    const bool isPath = text.find('\\') != std::string::npos;
    const int wanted = scale_.letters(look.tenthPoints);
    Fit chosen = fit(text, rect, look, wanted, false);
    const bool paragraph = heightOf(rect) >= 3 * chosen.height;
    const auto shrink = [&](int height, int smallest, bool severalLines) {
        for (; !chosen.fits && height >= smallest; --height) {
            chosen = fit(text, rect, look, height, severalLines);
        }
    };
    if (text.find_first_of("\r\n") != std::string::npos) {
        chosen.fits = false; // As one line, breaks would be drawn as boxes.
        shrink(wanted, wanted * 4 / 5, true);
    } else if (!isPath) { // The names of files that pass by must not change size one by one.
        shrink(wanted - 1, wanted * 9 / 10, false);
        shrink(wanted, wanted * 4 / 5, true);
    }
    const UINT align = look.align == Align::Center  ? DT_CENTER
                       : look.align == Align::Right ? DT_RIGHT
                                                    : DT_LEFT;
    RECT place = rect;
    place.top += paragraph ? 0 : std::max((heightOf(rect) - chosen.height) / 2, 0);
    SetBkMode(dc(), TRANSPARENT);
    SetTextColor(dc(), look.color);
    DrawTextA(dc(), text.c_str(), static_cast<int>(text.size()), &place,
              chosen.lines | align | (look.mnemonics ? DT_HIDEPREFIX : DT_NOPREFIX) |
                  (isPath ? DT_PATH_ELLIPSIS : DT_END_ELLIPSIS));
}

} // namespace tarvelon
