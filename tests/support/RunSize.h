#pragma once

#include <QtGlobal>

/// How much a test tries: what the environment variable asks for, or what an ordinary run tries.
inline int RunSize(const char* variable, int ordinary) {
    const int asked = qEnvironmentVariableIntValue(variable);
    return asked > 0 ? asked : ordinary;
}
