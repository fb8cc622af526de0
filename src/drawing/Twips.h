#pragma once

/// Positions are in twips, 1/1440 inch: 15 to the pixel at the standard density. This is the only
/// place that reads the ratio; it comes from the primary screen.
namespace Twips {
int PerPixel();
int ToPixels(double twips); ///< rounded to the nearest pixel
int FromPixels(int pixels);
} // namespace Twips
