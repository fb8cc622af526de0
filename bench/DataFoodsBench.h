#pragma once

/// Measures how halvane-data brings a large download of branded foods in, once: time and memory of
/// the process. It takes half a minute, so it runs only with HALVANE_BENCH_FOODS set to the number
/// of foods.
void MeasureFoodImport();
