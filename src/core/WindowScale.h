#pragma once

#include <QSize>

/// The size of the whole window in percent. It is a setting of the user and counts from the next
/// start, because the platform takes its scale when the application object is made.
namespace WindowScale {
inline constexpr int Normal = 100;

int Stored(); ///< the step that is kept; Normal if none is
void Keep(int percent);
int Larger(int percent); ///< the next step; the same at the end
int Smaller(int percent);
/// The largest step at which a window of that size fits the screen. Both sizes are those of a
/// process that was started at `started` percent.
int LargestThatFits(QSize window, QSize screen, int started);

/// Call it before the application object is made. The size counts on top of the desktop's scale.
void TellPlatform();
/// Call it afterwards: programs that this one opens have a size of their own.
void ClearEnvironment();
int Started(); ///< the size of this process
} // namespace WindowScale
