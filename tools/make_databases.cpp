// Makes users.mdb and foods.mdb from the delivered tables, or updates a folder that has them.
#include "foods/delivery/DeliveredDatabases.h"

#include <QFile>

#include <cstdio>
#include <exception>
#include <string_view>

int main(int argc, char** argv) {
    const bool update = argc == 4 && std::string_view(argv[1]) == "--update";
    const bool build = argc == 4 && std::string_view(argv[1]) == "--build";
    if (!update && !build) {
        std::fputs("usage: make_databases --build|--update DATA_FOLDER TARGET_FOLDER\n"
                   "  --build   writes users.mdb and foods.mdb anew\n"
                   "  --update  makes what is missing, replaces the stock foods of an existing\n"
                   "            foods.mdb, leaves custom foods and an existing users.mdb alone\n",
                   stderr);
        return 2;
    }
    try {
        const DeliveredDatabases databases(QFile::decodeName(argv[2]));
        const QString folder = QFile::decodeName(argv[3]);
        update ? databases.Update(folder) : databases.Build(folder);
        return 0;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "make_databases: %s\n", error.what());
        return 1;
    }
}
