#pragma once

#include <QAbstractListModel>

#include <vector>

/// The lines of a list box, in the order in which they were added.
class ListLines : public QAbstractListModel {
    Q_OBJECT

public:
    using QAbstractListModel::QAbstractListModel;

    struct Line {
        QString text;
        qint32 itemData;
    };

    void Clear();
    void Add(const QString& text, qint32 itemData);
    int Count() const { return static_cast<int>(lines_.size()); }
    const Line* At(int index) const; ///< null if there is no such line

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

private:
    std::vector<Line> lines_;
};
