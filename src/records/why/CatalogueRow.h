#pragma once

#include "store/Recordset.h"

#include <QJsonObject>

/// A row of the catalogue, as explanations name it.
namespace CatalogueRow {
Recordset Of(qint32 id);
QString Title(const Recordset& row); ///< "Butter, salted (food:16096)"
QJsonObject Facts(const Recordset& row);
} // namespace CatalogueRow
