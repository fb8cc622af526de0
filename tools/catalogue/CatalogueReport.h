#pragma once

#include "catalogue/Catalogue.h"

#include <QString>

/// What the tool read, assigned and left out, as a page of Markdown.
QString CatalogueReport(const Catalogue& catalogue);
