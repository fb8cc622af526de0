// Makes the stock catalogue and its report from a USDA Standard Reference release.
#include "catalogue/Catalogue.h"
#include "catalogue/CatalogueReport.h"
#include "common/TextFile.h"

#include <QFile>

#include <cstdio>
#include <exception>

int main(int argc, char** argv) {
    if (argc != 4) {
        std::fputs("usage: make_catalogue RELEASE_FOLDER FOODS.tsv REPORT.md\n", stderr);
        return 2;
    }
    try {
        const Catalogue catalogue = Catalogue::FromRelease(QFile::decodeName(argv[1]));
        catalogue.Table().Write(QFile::decodeName(argv[2]));
        WriteText(QFile::decodeName(argv[3]), CatalogueReport(catalogue));
        return 0;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "make_catalogue: %s\n", error.what());
        return 1;
    }
}
