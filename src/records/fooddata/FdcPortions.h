#pragma once

#include "records/fooddata/FdcFood.h"

#include <QString>

/// Gives each food that is not branded its first household measure as its serving.
namespace FdcPortions {
void Read(const QString& folder, FdcFoods& foods);
}
