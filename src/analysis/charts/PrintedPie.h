#pragma once

#include <QSize>

class EnergyShares;
class QPainter;

/// A pie with its legend below it, as a page holds it, from the painter's origin. Its sectors have
/// edges and differ in lightness, so that a page without colours can be read, too.
namespace PrintedPie {
QSize Size();
void Paint(QPainter& painter, const EnergyShares& shares);
} // namespace PrintedPie
