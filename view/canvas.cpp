#include "view/canvas.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>

namespace tarvelon {

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
    OwnedBitmap bitmap(CreateDIBSection(dc(), &info, DIB_RGB_COLORS, &pixels, nullptr, 0));
    if (!bitmap) {
        return false;
    }
    SelectObject(dc(), bitmap.get());
    bitmap_ = std::move(bitmap);
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

std::uint32_t blend(std::uint32_t under, std::uint32_t over, float coverage) {
    const auto weight = static_cast<std::uint32_t>(coverage * 256);
    return mix(under, over, weight, 16) | mix(under, over, weight, 8) | mix(under, over, weight, 0);
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

/// All that a line of that thickness can touch.
template<class Iterator>
RECT boundsOf(Iterator first, Iterator last, float thickness) {
    constexpr float edge = 1; // Pixels at the rim that are covered in part.
    const auto [left, right] = std::minmax_element(first, last, [](Spot a, Spot b) { return a.x < b.x; });
    const auto [top, bottom] = std::minmax_element(first, last, [](Spot a, Spot b) { return a.y < b.y; });
    const float around = thickness / 2 + edge;
    return {static_cast<LONG>(std::floor(left->x - around)), static_cast<LONG>(std::floor(top->y - around)),
            static_cast<LONG>(std::ceil(right->x + around)),
            static_cast<LONG>(std::ceil(bottom->y + around))};
}

/// By how often a ray from the spot crosses the closed line.
bool isInside(const std::vector<Spot>& line, Spot spot) {
    bool inside = false;
    for (std::size_t i = 1; i < line.size(); ++i) {
        const Spot& from = line[i - 1];
        const Spot& to = line[i];
        if ((from.y > spot.y) != (to.y > spot.y) &&
            spot.x < (to.x - from.x) * (spot.y - from.y) / (to.y - from.y) + from.x) {
            inside = !inside;
        }
    }
    return inside;
}

UINT prefixFlag(const TextLook& look) {
    if (look.accessKey != 0) {
        return 0;
    }
    return look.mnemonics ? DT_HIDEPREFIX : DT_NOPREFIX;
}

/// The caption with the system's mark before the letter, if it has that.
std::string withAccessKey(std::string caption, char key) {
    const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; };
    const auto found = std::ranges::find(caption, lower(key), lower);
    if (key != 0 && found != caption.end()) {
        caption.insert(found, '&');
    }
    return caption;
}

} // namespace

template<class Draw>
void Canvas::eachRow(const RECT& bounds, Draw draw) {
    GdiFlush();
    RECT visible;
    const RECT whole = area();
    if (IntersectRect(&visible, &bounds, &whole)) {
        for (int y = visible.top; y < visible.bottom; ++y) {
            draw(y, visible.left, visible.right);
        }
    }
}

template<class Distance>
void Canvas::shape(const RECT& bounds, Color color, Distance distance) {
    const std::uint32_t over = pixelFrom(color);
    eachRow(bounds, [&](int y, int left, int right) {
        std::uint32_t* row = buffer_.row(y);
        for (int x = left; x < right; ++x) {
            const Spot middle{static_cast<float>(x) + 0.5F, static_cast<float>(y) + 0.5F};
            row[x] = blend(row[x], over, std::clamp(0.5F - distance(middle), 0.0F, 1.0F));
        }
    });
}

void Canvas::fill(const RECT& rect, Color color) {
    eachRow(rect, [&](int y, int left, int right) {
        std::fill(buffer_.row(y) + left, buffer_.row(y) + right, pixelFrom(color));
    });
}

void Canvas::roundedBox(const RECT& rect, int radius, Color color) {
    const auto [left, top, right, bottom] = rect;
    const LONG across = std::min<LONG>(radius, widthOf(rect) / 2);
    const LONG down = std::min<LONG>(radius, heightOf(rect) / 2);
    fill({left + across, top, right - across, bottom}, color);
    fill({left, top + down, left + across, bottom - down}, color);
    fill({right - across, top + down, right, bottom - down}, color);
    const auto corner = static_cast<float>(radius);
    const auto distance = [&](Spot spot) { return boxDistance(rect, corner, spot); };
    shape({left, top, left + across, top + down}, color, distance);
    shape({right - across, top, right, top + down}, color, distance);
    shape({left, bottom - down, left + across, bottom}, color, distance);
    shape({right - across, bottom - down, right, bottom}, color, distance);
}

void Canvas::roundedBox(const RECT& rect, int radius, Color color, Color edge, int thickness) {
    roundedBox(rect, radius, edge);
    roundedBox(inset(rect, thickness, thickness), std::max(radius - thickness, 0), color);
}

void Canvas::roundedEdge(const RECT& rect, int radius, int thickness, Color color) {
    const auto corner = static_cast<float>(radius);
    shape(rect, color, [&](Spot spot) {
        const float away = boxDistance(rect, corner, spot);
        return std::max(away, -away - static_cast<float>(thickness));
    });
}

void Canvas::stroke(std::initializer_list<Spot> spots, float thickness, Color color) {
    shape(boundsOf(spots.begin(), spots.end(), thickness), color,
          [&](Spot spot) { return polylineDistance(spots.begin(), spots.end(), spot) - thickness / 2; });
}

void Canvas::drawing(const LineDrawing& drawing, const RECT& rect, Color color, Color ground) {
    if (drawing.side <= 0) {
        return;
    }
    const float zoom = static_cast<float>(widthOf(rect)) / drawing.side;
    const auto placed = [&](Spot spot) {
        return Spot{static_cast<float>(rect.left) + spot.x * zoom,
                    static_cast<float>(rect.top) + spot.y * zoom};
    };
    std::vector<Spot> there;
    for (const LineDrawing::Part& part : drawing.parts) {
        there.clear();
        std::ranges::transform(part.line, std::back_inserter(there), placed);
        RECT touched = boundsOf(there.begin(), there.end(), drawing.thickness * zoom);
        IntersectRect(&touched, &touched, &rect);
        shape(touched, part.ink == Ink::Cut ? ground : color, [&](Spot spot) {
            const float away = polylineDistance(there.begin(), there.end(), spot);
            if (part.ink != Ink::Solid) {
                return away - drawing.thickness * zoom / 2;
            }
            return isInside(there, spot) ? -away : away;
        });
    }
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

SIZE Canvas::measure(const WindowText& text, const TextLook& look, int height, UINT lines, int width) {
    SelectObject(dc(), fonts_.get(height, look.weight, look.underlined));
    RECT size{0, 0, width, 0};
    text.draw(dc(), size, DT_CALCRECT | lines | prefixFlag(look));
    return {widthOf(size), heightOf(size)};
}

int Canvas::textWidth(const std::string& text, const TextLook& look) {
    return measure(WindowText(text), look, scale_.letters(look.tenthPoints), DT_SINGLELINE).cx;
}

void Canvas::text(const std::string& text, const RECT& rect, const TextLook& look) {
    if (text.empty()) {
        return;
    }
    const WindowText shown(look.accessKey != 0 ? withAccessKey(text, look.accessKey) : text);
    const bool isPath = text.find('\\') != std::string::npos;
    const int wanted = scale_.letters(look.tenthPoints);
    UINT lines = DT_SINGLELINE;
    SIZE size{};
    const auto fit = [&](int height, UINT by) {
        lines = by;
        size = measure(shown, look, height, lines, widthOf(rect));
        return size.cx <= widthOf(rect) && size.cy <= heightOf(rect);
    };
    bool fits = fit(wanted, DT_SINGLELINE);
    const bool paragraph = !look.middle && 2 * heightOf(rect) >= 7 * size.cy;
    const auto shrink = [&](int height, int smallest, UINT by) {
        for (; !fits && height >= smallest; --height) {
            fits = fit(height, by);
        }
    };
    if (text.find_first_of("\r\n") != std::string::npos) {
        fits = false; // As one line, breaks would be drawn as boxes.
        shrink(wanted, wanted * 4 / 5, DT_WORDBREAK);
    } else if (!isPath) { // The names of files that pass by must not change size one by one.
        shrink(wanted - 1, wanted * 9 / 10, DT_SINGLELINE);
        shrink(wanted, wanted * 4 / 5, DT_WORDBREAK);
    }
    RECT place = rect;
    place.top += paragraph ? 0 : std::max<LONG>((heightOf(rect) - size.cy) / 2, 0);
    SetBkMode(dc(), TRANSPARENT);
    SetTextColor(dc(), look.color);
    shown.drawShortened(
        dc(), place, lines | look.align | prefixFlag(look) | (isPath ? DT_PATH_ELLIPSIS : DT_END_ELLIPSIS));
}

} // namespace tarvelon
