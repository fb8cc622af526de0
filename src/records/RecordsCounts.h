#pragma once

#include <QJsonObject>
#include <QString>

#include <array>

class RecordsFolder;

/// How many rows of each kind a person's records hold.
class RecordsCounts {
public:
    static constexpr size_t Kinds = 6;

    RecordsCounts() = default;
    static RecordsCounts Of(const RecordsFolder& folder); ///< nobody may write there
    static RecordsCounts FromJson(const QJsonObject& json);

    QJsonObject ToJson() const;
    QString Text() const; ///< "1 profile, 3 logged foods, ..."
    bool operator==(const RecordsCounts&) const = default;

private:
    std::array<qint64, Kinds> counts_{};
};
