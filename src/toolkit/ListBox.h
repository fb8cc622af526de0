#pragma once

#include <QListView>

class ListLines;

/// A list of lines, one of which can be chosen. Each line carries a number, its item data. Choosing
/// a line raises Click: with the keyboard, with the mouse or by SetListIndex, with the latter two
/// also where it is the one chosen already. Clear and choosing none raise nothing. Only the lines
/// in sight are painted. A text that is cut stands in the tip.
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
    int ListCount() const;
    int ListIndex() const;        ///< counted from 0; -1 for none
    void SetListIndex(int index); ///< any number that is no line's chooses none
    QStringList List() const;
    Q_INVOKABLE QString Text(int index) const;    ///< empty where there is no such line
    Q_INVOKABLE qint32 ItemData(int index) const; ///< 0 where there is no such line
    int LineOf(qint32 itemData) const;            ///< the first line that carries it; -1 for none

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
    bool quiet_ = false; ///< a change of the choice does not raise Click by itself
};
