#pragma once

class SingleInstance;

/// Start and end of the program.
namespace Flow {
/// Everything from the single-instance test to the first window, step by step; the first step that
/// fails is the last. Returns the exit code of a process that is left without a window.
int Main(SingleInstance& instance);

/// The one way out: stores the frame's place, closes every form and both connections, and ends the
/// process.
void QuitApp();

bool HasWindow();    ///< any window stands open
void BringForward(); ///< the frame to the front, and the dialog that takes the input before it
} // namespace Flow
