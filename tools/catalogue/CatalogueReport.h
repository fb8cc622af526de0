#pragma once

#include "catalogue/Catalogue.h"

#include <QString>

/// What the tool read, mapped and left, as a page of Markdown.
QString CatalogueReport(const Catalogue& catalogue);
