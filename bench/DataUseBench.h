#pragma once

/// Measures each command that a script or a launcher waits for as a complete process, on records of
/// ten years. Prints a line for each.
void MeasureUse();
