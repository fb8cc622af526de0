#pragma once

/// Measures complete processes next to a bare window: the time until the frame is painted, and the
/// memory used by then. Prints a line for each.
void MeasureStart();
