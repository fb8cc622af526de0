#pragma once

#include <QString>

/// "1 recipe", "2 recipes".
QString Counted(qint64 count, const char* one, const char* many);
