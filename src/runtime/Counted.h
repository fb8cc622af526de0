#pragma once

#include <QString>

/// A number and what it counts: "1 day", "3 days".
QString Counted(qint64 count, const char* one, const char* many);
