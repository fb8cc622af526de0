#include "records/peers/MappedTable.h"

#include "records/peers/PeerFile.h"
#include "records/peers/PeerTable.h"
#include "records/peers/PeerValues.h"
#include "records/peers/TableMap.h"

namespace {
using Kind = TableMap::Kind;
using Basis = TableMap::Basis;

class Reader {
public:
    Reader(PeerTable& table, const TableMap& map, const AmountRules& rules, Imported& into)
        : table_(table)
        , map_(map)
        , amounts_(table, map.amounts, rules)
        , into_(into) {
        for (const std::string* column : {&map.date, &map.meal, &map.name, &map.serving,
                                          &map.quantity, &map.grams, &map.weight})
            RequireColumn(column->c_str());
        for (const AmountColumn& column : map.amounts)
            RequireColumn(column.name);
    }

    void Read() {
        table_.ForEachRow(into_, [this] {
            table_.RequireWholeRow();
            if (map_.kind == Kind::Log)
                into_.entries.push_back({table_.Here(), Day(), Text(map_.meal), Food()});
            else if (map_.kind == Kind::Weights)
                TakeWeight();
            else
                TakeOwnFood();
        });
    }

private:
    void RequireColumn(const char* column) const {
        if (*column && !table_.Has(column))
            throw RuntimeError(ErrorNumber::TypeMismatch, table_.File() + " has no column \"" +
                                                              QString::fromUtf8(column) +
                                                              "\", which the map names.");
    }

    QString Text(const std::string& column) const {
        return column.empty() ? QString() : PeerValues::Line(table_.Text(column.c_str()));
    }

    QDate Day() const {
        const QString text = Text(map_.date);
        const QDate day = QDate::fromString(text, map_.dateFormat);
        return PeerValues::SoundDay(day, text);
    }

    std::optional<double> Number(const std::string& column) const {
        return column.empty() ? std::nullopt : table_.Number(column.c_str());
    }

    ImportedFood Food() const {
        ImportedFood food{PeerValues::Name(Text(map_.name)), Text(map_.serving), 1, Eaten()};
        if (const auto grams = Number(map_.grams); grams && food.serving.isEmpty())
            PeerValues::SetPortion(food, *grams, QStringLiteral("g"));
        else if (const auto quantity = Number(map_.quantity))
            PeerValues::SetPortion(
                food, *quantity, food.serving.isEmpty() ? QStringLiteral("serving") : food.serving);
        return food;
    }

    NutrientAmounts Eaten() const {
        const NutrientAmounts amounts = amounts_.Of(table_);
        if (map_.basis == Basis::Entry)
            return amounts;
        const bool isQuantity = map_.basis == Basis::Quantity;
        const auto eaten = Number(isQuantity ? map_.quantity : map_.grams);
        if (!eaten || !(*eaten > 0))
            throw RuntimeError(ErrorNumber::TypeMismatch,
                               QStringLiteral("It does not say how much was eaten."));
        return PeerAmounts::Scaled(amounts, isQuantity ? 1 : 100, *eaten);
    }

    void TakeOwnFood() {
        into_.foods.push_back(
            {table_.Here(), {PeerValues::Name(Text(map_.name)), Text(map_.serving), Eaten()}});
    }

    void TakeWeight() {
        const auto weight = Number(map_.weight);
        if (!weight)
            return into_.LeaveOut(table_.Here(), QStringLiteral("It gives no weight."));
        into_.weights.push_back(
            {table_.Here(), Day(), PeerValues::Pounds(weight, *map_.weightUnit)});
    }

    PeerTable& table_;
    const TableMap& map_;
    AmountColumns amounts_;
    Imported& into_;
};
} // namespace

void MappedTable::Read(const std::vector<PeerFile>& files, const TableMap& map,
                       const PeerChoices& choices, Imported& into) {
    const AmountRules rules(choices, into);
    for (const PeerFile& file : files) {
        PeerTable table(file, map.numbers, map.separator);
        Reader(table, map, rules, into).Read();
    }
}
