#pragma once

struct Period;

/// The figures of the report for a doctor.
void PrintReport(const Period& period);
