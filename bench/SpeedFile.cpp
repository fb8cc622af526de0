#include "SpeedFile.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSysInfo>

#include <algorithm>
#include <cstdio>
#include <span>
#include <thread>

namespace {
QString path;
QJsonArray rows;

QString Processor() {
    QFile file(QStringLiteral("/proc/cpuinfo"));
    if (file.open(QIODevice::ReadOnly))
        for (const QByteArray& line : file.readAll().split('\n'))
            if (line.startsWith("model name"))
                return QString::fromUtf8(line.mid(line.indexOf(':') + 1).trimmed());
    return QSysInfo::currentCpuArchitecture();
}

QJsonObject Machine() {
    return {{"processor", Processor()},
            {"cores", int(std::thread::hardware_concurrency())},
            {"system", QSysInfo::prettyProductName()}};
}
} // namespace

void SpeedFile::TakeArgument(int& count, char** arguments) {
    constexpr std::string_view flag = "--json=";
    const std::span all(arguments, size_t(count));
    const auto named = std::ranges::find_if(
        all, [&](const char* argument) { return std::string_view(argument).starts_with(flag); });
    if (named == all.end())
        return;
    path = QFile::decodeName(*named + flag.size());
    std::rotate(named, named + 1, all.end());
    --count;
}

void SpeedFile::Add(const QString& work, const QString& unit, double ours,
                    std::optional<double> limit, double aim) {
    QJsonObject row{{"work", work}, {"unit", unit}, {"ours", ours}, {"aim", aim}};
    if (limit)
        row["limit"] = *limit;
    rows.append(row);
}

void SpeedFile::Write() {
    if (path.isEmpty())
        return;
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) ||
        file.write(QJsonDocument({{"machine", Machine()}, {"rows", rows}}).toJson()) < 0)
        std::fprintf(stderr, "%s cannot be written\n", qPrintable(path));
}
