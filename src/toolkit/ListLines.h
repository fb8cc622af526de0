#pragma once

#include "runtime/NameOrder.h"

#include <QAbstractListModel>

/// The lines of a list box, in the order in which they were added.
class ListLines : public QAbstractListModel {
    Q_OBJECT

public:
    using QAbstractListModel::QAbstractListModel;

    void Set(const QList<NamedKey>& lines); ///< in place of those that are there
    void Add(const QString& text, qint32 itemData);
    int Count() const { return static_cast<int>(lines_.size()); }
    const NamedKey* At(int index) const; ///< null if there is no such line

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

private:
    QList<NamedKey> lines_;
};
