#include "records/fooddata/FoodTally.h"

#include "records/text/CsvText.h"

void FoodTally::Refuse(const QString& file, int line, const QString& food, const QString& reason) {
    refusals_.append({file + u':' + QString::number(line), food, reason});
}

std::string FoodTally::RefusalTable() const {
    std::string table = "place,food,reason\r\n";
    for (const Refusal& refusal : refusals_)
        table += CsvText::ForeignLine({refusal.place, refusal.food, refusal.reason});
    return table;
}

void FoodTally::Note(const QString& what, int times) {
    if (times > 0)
        notes_[what] += times;
}
