#include "toolkit/ListLines.h"

void ListLines::Clear() {
    beginResetModel();
    lines_.clear();
    endResetModel();
}

void ListLines::Add(const QString& text, qint32 itemData) {
    beginInsertRows({}, Count(), Count());
    lines_.push_back({text, itemData});
    endInsertRows();
}

const ListLines::Line* ListLines::At(int index) const {
    return index >= 0 && index < Count() ? &lines_[static_cast<size_t>(index)] : nullptr;
}

int ListLines::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : Count();
}

QVariant ListLines::data(const QModelIndex& index, int role) const {
    const Line* line = At(index.row());
    return line && role == Qt::DisplayRole ? QVariant(line->text) : QVariant();
}
