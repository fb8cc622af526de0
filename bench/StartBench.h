#pragma once

/// Measures whole processes: the start up to the painted frame, and the memory held by then, beside
/// a bare window. Prints a line for each.
void MeasureStart();
