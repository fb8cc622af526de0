#pragma once

class QFont;
class QString;

/// The points before a value, which put the values of all rows into one column.
namespace Leader {
/// The caption with as many points of its leader as there is room for.
QString Fitting(const QString& caption, const QFont& font, int space);
} // namespace Leader
