#pragma once

#include <QString>
#include <QVariant>

/// A value in a cell of a table or in a line of Markdown, such that it can be read again exactly.
/// Null is an empty cell.
namespace MarkdownCell {
QString Written(const QVariant& value);
QVariant Text(const QString& cell);
QVariant Number(const QString& cell); ///< null also for what is no number

QString Row(const QStringList& cells); ///< without a line end
QStringList CellsOf(const QString& row);
} // namespace MarkdownCell
