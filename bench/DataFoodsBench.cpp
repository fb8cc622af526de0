#include "DataFoodsBench.h"

#include "Ground.h"
#include "SpeedFile.h"

#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>

#include <cstdio>

#include <sys/resource.h>

namespace {
constexpr double MostSeconds = 60;
constexpr double MostMegabytes = 500;
constexpr int FirstKey = 1'000'000;
constexpr int Nutrients[] = {1008, 1003, 1004, 1005, 1079, 2000, 1087, 1089,
                             1093, 1092, 1258, 1257, 1253, 1104, 1162};

class Download {
public:
    explicit Download(int foods) {
        Write("nutrient.csv", [](QFile& file) {
            file.write("\"id\",\"name\",\"unit_name\"\n\"1008\",\"Energy\",\"KCAL\"\n");
        });
        Write("food.csv", [=](QFile& file) { WriteFoods(file, foods); });
        Write("branded_food.csv", [=](QFile& file) { WriteBrands(file, foods); });
        Write("food_nutrient.csv", [=](QFile& file) { WriteAmounts(file, foods); });
    }
    QString Path() const { return folder_.path(); }

private:
    template <class Rows> void Write(const char* name, Rows rows) {
        QFile file(folder_.filePath(QLatin1String(name)));
        if (file.open(QIODevice::WriteOnly))
            rows(file);
    }
    static void WriteFoods(QFile& file, int foods) {
        file.write("\"fdc_id\",\"data_type\",\"description\",\"food_category_id\","
                   "\"publication_date\"\n");
        for (int i = 0; i < foods; ++i)
            file.write(
                QString::asprintf(
                    "\"%d\",\"branded_food\",\"INVENTED CRISPS NUMBER %d\",\"\",\"2026-04-30\"\n",
                    FirstKey + i, i * 7919 % foods)
                    .toUtf8());
    }
    static void WriteBrands(QFile& file, int foods) {
        file.write("\"fdc_id\",\"brand_owner\",\"brand_name\",\"gtin_upc\",\"ingredients\","
                   "\"serving_size\",\"serving_size_unit\",\"household_serving_fulltext\","
                   "\"branded_food_category\",\"data_source\",\"modified_date\","
                   "\"available_date\",\"discontinued_date\"\n");
        for (int i = 0; i < foods; ++i)
            file.write(QString::asprintf("\"%d\",\"Invented Foods Inc.\",\"BRAND "
                                         "%d\",\"%014d\",\"POTATOES, OIL, SALT AND "
                                         "WHAT ELSE IS IN THE BAG\",\"%d\",\"g\",\"1 "
                                         "ONZ\",\"Snacks\",\"LI\",\"2025-11-02\","
                                         "\"2025-11-02\",\"\"\n",
                                         FirstKey + i, i % 997, i, 20 + i % 50)
                           .toUtf8());
    }
    static void WriteAmounts(QFile& file, int foods) {
        QRandomGenerator random(1);
        file.write("\"id\",\"fdc_id\",\"nutrient_id\",\"amount\",\"data_points\",\"derivation_id\","
                   "\"min\",\"max\",\"median\",\"loq\",\"footnote\",\"min_year_acquired\","
                   "\"percent_daily_value\"\n");
        for (int i = 0; i < foods; ++i)
            for (const int nutrient : Nutrients)
                file.write(QString::asprintf("\"1\",\"%d\",\"%d\",\"%.2f\",\"\",\"71\",\"\",\"\","
                                             "\"\",\"\",\"\",\"\",\"\"\n",
                                             FirstKey + i, nutrient, random.generateDouble() * 30)
                               .toUtf8());
    }

    QTemporaryDir folder_;
};
} // namespace

void MeasureFoodImport() {
    const int foods = qEnvironmentVariableIntValue("HALVANE_BENCH_FOODS");
    if (foods <= 0)
        return;
    const Download download(foods);
    const QTemporaryDir records;
    qputenv("XDG_DATA_HOME", records.path().toLocal8Bit());
    Ground::LayOut(records.path());
    QProcess process;
    QElapsedTimer clock;
    clock.start();
    process.start(QStringLiteral(HALVANE_BUILD_DIR "/src/halvane-data"),
                  {QStringLiteral("--folder"), records.path(), QStringLiteral("foods"),
                   QStringLiteral("import"), download.Path()});
    process.waitForFinished(-1);
    const double seconds = double(clock.elapsed()) / 1000;
    rusage used{};
    getrusage(RUSAGE_CHILDREN, &used);
    std::printf("\n%d branded foods: %s\n%-46s %12s %8s\n", foods,
                process.readAllStandardOutput().constData(), "foods import", "ours", "aim");
    std::printf("%-46s %12.1f %8.0f\n", "time (s)", seconds, MostSeconds);
    const double megabytes = double(used.ru_maxrss) / 1024;
    std::printf("%-46s %12.1f %8.0f\n", "memory at most (MB)", megabytes, MostMegabytes);
    const QString work = QStringLiteral("import of %1 foods").arg(foods);
    SpeedFile::Add(work, "s", seconds, {}, MostSeconds);
    SpeedFile::Add(work + ", memory", "MB", megabytes, {}, MostMegabytes);
}
