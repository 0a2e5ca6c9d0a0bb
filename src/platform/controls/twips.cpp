#include "platform/controls/twips.h"

#include <QVariant>
#include <QWidget>

namespace
{

constexpr char kPlace[] = "twipPlace";

} // namespace

void controls::Place(QWidget *control, const TwipRect &rect)
{
    // A QRect of twips: no arithmetic is done on it but to take it apart again.
    control->setProperty(kPlace, QRect(rect.left, rect.top, rect.width, rect.height));
    control->setGeometry(PixelRect(rect));
}

controls::TwipRect controls::PlaceOf(const QWidget *control)
{
    const QRect pixels = control->geometry();
    if (const QVariant kept = control->property(kPlace); kept.isValid()) {
        const QRect twips = kept.toRect();
        const TwipRect place{twips.x(), twips.y(), twips.width(), twips.height()};
        if (PixelRect(place) == pixels)
            return place;
    }
    return {Twips(pixels.x()), Twips(pixels.y()), Twips(pixels.width()), Twips(pixels.height())};
}
