#pragma once

#include <QString>

/// The quantities of a food that are accepted. Each gives the message that refuses one, empty if it
/// is accepted. The bounds are wider than the messages say: .05 passes, and so does a negative
/// quantity, which takes amounts away.
namespace Quantity {
QString LogRefusal(double quantity);     ///< refuses 0 and more than 99
QString ExamineRefusal(double quantity); ///< refuses 0
} // namespace Quantity
