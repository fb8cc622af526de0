#pragma once

class SingleInstance;

/// Start and end of the program.
namespace Flow {
/// Runs the steps from the single-instance test to the first window; the first step that fails ends
/// it. Returns the exit code for the case that no window is open.
int Main(SingleInstance& instance);

/// The only way out: saves the position of the frame, closes every form and both connections, and
/// ends the process.
void QuitApp();

bool HasWindow();    ///< a window is open
void BringForward(); ///< the frame, and a modal dialog in front of it
} // namespace Flow
