#include "DataFoodsBench.h"
#include "DataUseBench.h"
#include "SpeedFile.h"
#include "StartBench.h"
#include "Table.h"

#include "core/Appearance.h"
#include "core/Application.h"
#include "store/StoreThreads.h"

#include <vector>

/// Measures each path that a person waits for, next to its limit, and prints a table of both. With
/// `--json=FILE` the file gets them, too.
int main(int argc, char** argv) {
    SpeedFile::TakeArgument(argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    StoreThreads::AllocateApart();
    Application application(argc, argv);
    Appearance::Take();
    std::vector<char*> arguments(argv, argv + argc);
    std::string flags[] = {"--benchmark_repetitions=5", "--benchmark_min_time=0.2"};
    for (std::string& flag : flags)
        arguments.insert(arguments.begin() + 1, flag.data());
    int count = int(arguments.size());
    benchmark::Initialize(&count, arguments.data());
    Table table;
    benchmark::RunSpecifiedBenchmarks(&table);
    MeasureStart();
    MeasureUse();
    MeasureFoodImport();
    SpeedFile::Write();
    return 0;
}
