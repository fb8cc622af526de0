#pragma once

/// How all windows look: style, fonts and icon. `Take` comes before the first window, and as late
/// as possible: what a start does before it goes on while the fonts are read.
namespace Appearance {

/// Begins to read what takes long.
void ReadAhead();

/// Takes the style that the user or the desktop wants. Does so once.
void Take();

} // namespace Appearance
