#include "toolkit/ListLines.h"

void ListLines::Set(const QList<NamedKey>& lines) {
    beginResetModel();
    lines_ = lines;
    endResetModel();
}

void ListLines::Add(const QString& text, qint32 itemData) {
    beginInsertRows({}, Count(), Count());
    lines_.append({text, itemData});
    endInsertRows();
}

const NamedKey* ListLines::At(int index) const {
    return index >= 0 && index < Count() ? &lines_[index] : nullptr;
}

int ListLines::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : Count();
}

QVariant ListLines::data(const QModelIndex& index, int role) const {
    const NamedKey* line = At(index.row());
    return line && role == Qt::DisplayRole ? QVariant(line->name) : QVariant();
}
