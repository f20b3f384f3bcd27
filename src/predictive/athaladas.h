#pragma once

#include <cstdint>

/// A body's passage over a longitude within one day of the ephemeris: what returns and solar charts share.
/// All longitudes in arcseconds, a at 0h of the day, b at 0h of the next one.

/// Whether the direct step from a to b holds a longitude, a itself included.
/// @note On a step over 0 degrees of Aries the longitude is compared with 360 although it is in arcseconds,
///       so that one in the last part of Pisces is missed on that day. The lists of returns that users have
///       from earlier work lack these passages too; putting the circle in its place would change them.
bool NapiLepesben(double a, double b, double hossz);

/// Fraction of the day at which the direct step reaches a longitude.
/// @note A longitude exactly at a takes a whole circle more, which makes the fraction far above 1: the
///       comparison admits equality, and the lists show the hours that come of it.
double NapiResz(double a, double b, double hossz);

/// Hours, minutes and seconds of a fraction of the day, all cut off; the hours may pass 24.
struct TNapszak {
    std::int32_t ora, perc, mperc;
};
TNapszak napszak(double resz);
