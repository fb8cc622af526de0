// Makes the stock catalogue, the list of its sources and its report from a USDA Standard Reference
// release.
#include "catalogue/Catalogue.h"
#include "catalogue/CatalogueReport.h"
#include "foods/delivery/WriteText.h"
#include "foods/release/FoodSources.h"

#include <QFile>

#include <cstdio>
#include <exception>

int main(int argc, char** argv) {
    if (argc != 6) {
        std::fputs("usage: make_catalogue RELEASE_FOLDER RELEASE_NAME FOODS.tsv SOURCES.json "
                   "REPORT.md\n",
                   stderr);
        return 2;
    }
    try {
        const QString folder = QFile::decodeName(argv[1]);
        const Catalogue catalogue = Catalogue::FromRelease(folder);
        const auto sources =
            FoodSources::Of(catalogue.Release(), QString::fromLocal8Bit(argv[2]), folder);
        catalogue.Table().Write(QFile::decodeName(argv[3]));
        WriteText(QFile::decodeName(argv[4]), QString::fromUtf8(sources.Json()));
        WriteText(QFile::decodeName(argv[5]), CatalogueReport(catalogue));
        return 0;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "make_catalogue: %s\n", error.what());
        return 1;
    }
}
