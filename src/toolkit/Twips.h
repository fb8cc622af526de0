#pragma once

/// Screen positions are given in twips, 1/1440 inch: 15 to the pixel at the standard density.
/// The ratio is read from the primary screen at run time, here and nowhere else.
namespace Twips {
int PerPixel();
int ToPixels(double twips); ///< rounded to the nearest pixel
int FromPixels(int pixels);
} // namespace Twips
