#pragma once

/// The chosen day becomes today where it counts as unset: null, or before 1 December 1992.
void EnsureCurrentDate();
