#include "records/fooddata/FoodTally.h"

#include "records/text/CsvText.h"

void FoodTally::Refuse(const QString& file, int line, const QString& food, const QString& reason) {
    refusals_.append({file + u':' + QString::number(line), food, reason});
}

QByteArray FoodTally::RefusalTable() const {
    QByteArray table = "place,food,reason\r\n";
    for (const Refusal& refusal : refusals_) {
        const QStringList cells{CsvText::ForeignCell(refusal.place),
                                CsvText::ForeignCell(refusal.food),
                                CsvText::ForeignCell(refusal.reason)};
        table += cells.join(u',').toUtf8() + "\r\n";
    }
    return table;
}

void FoodTally::Note(const QString& what, int times) {
    if (times > 0)
        notes_[what] += times;
}
