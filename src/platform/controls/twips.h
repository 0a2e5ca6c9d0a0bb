#pragma once

#include <QRect>

class QWidget;

/// Lengths on screen are twips, 1/1440 of an inch: 15 of them are one logical pixel.
namespace controls
{

inline constexpr int kTwipsPerPixel = 15;

/// Logical pixels of a length, rounded half away from zero.
constexpr int Pixels(int twips)
{
    return (twips >= 0 ? twips + kTwipsPerPixel / 2 : twips - kTwipsPerPixel / 2) / kTwipsPerPixel;
}
constexpr int Twips(int pixels) { return pixels * kTwipsPerPixel; }

/// A rectangle in twips.
struct TwipRect {
    int left = 0, top = 0, width = 0, height = 0;
    bool operator==(const TwipRect &) const = default;
    int Right() const { return left + width; }
    int Bottom() const { return top + height; }
};
inline QRect PixelRect(const TwipRect &r)
{
    const int x = Pixels(r.left), y = Pixels(r.top);
    return {x, y, Pixels(r.left + r.width) - x, Pixels(r.top + r.height) - y};
}

/// Puts a control at its place in its parent. The place is kept, so that PlaceOf gives back lengths
/// that are no whole pixels.
void Place(QWidget *control, const TwipRect &rect);
/// The place of a control: as it was given to Place, or, when it was moved or sized since, its
/// pixels.
TwipRect PlaceOf(const QWidget *control);

} // namespace controls
