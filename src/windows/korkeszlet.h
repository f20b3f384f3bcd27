#pragma once

#include <vector>

#include <QImage>
#include <QPen>
#include <QPoint>
#include <QSize>

/// A part of a circle's picture; between the parts it is empty.
struct TKorDarab {
    QPoint hely;  ///< its top left pixel, from the one in whose middle the circle's box begins
    QImage kep;
};

/// An ellipse as the toolkit draws it on a device whose pixels are the painter's units, in parts to be copied
/// in their order: the same pixels in a sixth of the time. It is kept from the third request on, since one
/// drawing asks for some twice; so the start makes no parts, nor does a window that is just being resized.
/// @param meret  of the box that its line runs about, in pixels
/// @param feher  filled with white
/// @return nothing for the first requests, and for a filling so large that the copy would take longer;
///         valid until the next call
const std::vector<TKorDarab>* korDarabok(const QSize& meret, const QPen& toll, bool feher);
