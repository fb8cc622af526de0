#include "runtime/RuntimeError.h"

RuntimeError::RuntimeError(int number, QString description)
    : number_(number)
    , description_(std::move(description))
    , text_(description_.toUtf8()) {}
