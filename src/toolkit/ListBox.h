#pragma once

#include "runtime/NameOrder.h"

#include <QListView>

class ListLines;

/// A list of lines, one of which can be chosen. Each line carries a number, its item data. Choosing
/// a line by keyboard, by mouse or with SetListIndex raises Click. Mouse and SetListIndex raise it
/// even if the line was chosen before. Clear and an index of -1 raise nothing. Only visible lines
/// are painted. The tip shows a text that does not fit.
class ListBox : public QListView {
    Q_OBJECT
    Q_PROPERTY(int ListIndex READ ListIndex WRITE SetListIndex)
    Q_PROPERTY(int ListCount READ ListCount)
    Q_PROPERTY(QStringList List READ List)
    Q_PROPERTY(bool Enabled READ isEnabled WRITE setEnabled)

public:
    explicit ListBox(QWidget* parent = nullptr);

    void Clear();
    void AddItem(const QString& text, qint32 itemData);
    void SetLines(const QList<NamedKey>& lines); ///< in place of those that are there
    int ListCount() const;
    int ListIndex() const;        ///< counted from 0; -1 for none
    void SetListIndex(int index); ///< a number without a line chooses none
    QStringList List() const;
    Q_INVOKABLE QString Text(int index) const;    ///< empty if there is no such line
    Q_INVOKABLE qint32 ItemData(int index) const; ///< 0 if there is no such line
    int LineOf(qint32 itemData) const;            ///< the first line with it; -1 if none has it

Q_SIGNALS:
    void Click();
    void MouseMove(); ///< the pointer moved over the list

protected:
    void selectionChanged(const QItemSelection& chosen, const QItemSelection& left) override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                         const QEvent* event) const override;
    void mousePressEvent(QMouseEvent*) override;
    void mouseMoveEvent(QMouseEvent*) override;
    bool viewportEvent(QEvent*) override;

private:
    bool ShowsTipOf(const QModelIndex& line, QPoint globalPlace);

    ListLines* lines_;
    bool quiet_ = false; ///< changing the choice raises no Click
};
