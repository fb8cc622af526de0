#include "toolkit/ListBox.h"

#include "drawing/DevicePixels.h"
#include "drawing/SmoothedPrint.h"
#include "drawing/Style.h"
#include "toolkit/ListLines.h"
#include "toolkit/PlainTip.h"

#include <QFontMetricsF>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QStyledItemDelegate>

namespace {

constexpr int TextMargin = 10;

int RoomForText(const QRect& row) {
    return row.width() - 2 * TextMargin;
}

/// A line: text on paper with a rule below, or white on slate if it is chosen. The chosen line of a
/// disabled list has only a frame, so that its grey text stays on the ground that it is made for.
class LinePainter : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const override {
        return {0, TheStyle().rowHeight};
    }

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        const Style& style = TheStyle();
        const bool usable = option.state.testFlag(QStyle::State_Enabled);
        const bool chosen = option.state.testFlag(QStyle::State_Selected);
        const QRect row = option.rect;
        if (chosen && usable)
            painter->fillRect(row, style.chosenRow);
        PaintEdge(*painter, row, Qt::BottomEdge, style.rule);
        if (chosen && !usable)
            PaintFrame(*painter, row, style.disabledInk);
        painter->setPen(!usable ? style.disabledInk : chosen ? style.chosenRowText : style.ink);
        const double height = QFontMetricsF(SmoothedFont(style.text)).height();
        SmoothedPrint(
            *painter, QPointF(row.left() + TextMargin, row.top() + (row.height() - height) / 2),
            FittingText(index.data().toString(), style.text, RoomForText(row)), style.text);
    }
};

} // namespace

ListBox::ListBox(QWidget* parent)
    : QListView(parent)
    , lines_(new ListLines(this)) {
    setModel(lines_);
    setItemDelegate(new LinePainter(this));
    setUniformItemSizes(true);
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollMode(ScrollPerPixel);
    verticalScrollBar()->setAccessibleName(QStringLiteral("Scroll"));
    verticalScrollBar()->setSingleStep(TheStyle().rowHeight);
    setTabKeyNavigation(false);
    setMouseTracking(true);
}

void ListBox::Clear() {
    lines_->Set({});
}

void ListBox::AddItem(const QString& text, qint32 itemData) {
    lines_->Add(text, itemData);
}

void ListBox::SetLines(const QList<NamedKey>& lines) {
    lines_->Set(lines);
}

int ListBox::ListCount() const {
    return lines_->Count();
}

int ListBox::ListIndex() const {
    const QModelIndexList chosen = selectionModel()->selectedIndexes();
    return chosen.isEmpty() ? -1 : chosen.first().row();
}

void ListBox::SetListIndex(int index) {
    {
        const QScopedValueRollback<bool> own(quiet_, true);
        selectionModel()->setCurrentIndex(lines_->index(index),
                                          QItemSelectionModel::ClearAndSelect);
    }
    if (ListIndex() >= 0)
        Q_EMIT Click();
}

QStringList ListBox::List() const {
    QStringList texts;
    for (int i = 0; i < ListCount(); ++i)
        texts << Text(i);
    return texts;
}

QString ListBox::Text(int index) const {
    const NamedKey* line = lines_->At(index);
    return line ? line->name : QString();
}

qint32 ListBox::ItemData(int index) const {
    const NamedKey* line = lines_->At(index);
    return line ? line->key : 0;
}

int ListBox::LineOf(qint32 itemData) const {
    for (int line = 0; line < ListCount(); ++line)
        if (ItemData(line) == itemData)
            return line;
    return -1;
}

void ListBox::selectionChanged(const QItemSelection& chosen, const QItemSelection& left) {
    QListView::selectionChanged(chosen, left);
    if (!quiet_ && !chosen.isEmpty())
        Q_EMIT Click();
}

/// A chosen line stays chosen until another is: a modifier key held at the press does not clear it.
QItemSelectionModel::SelectionFlags ListBox::selectionCommand(const QModelIndex& index,
                                                              const QEvent*) const {
    return index.isValid() ? QItemSelectionModel::ClearAndSelect : QItemSelectionModel::NoUpdate;
}

/// Click comes last: its receiver may refill the list.
void ListBox::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton)
        return event->ignore();
    const bool onLine = indexAt(event->position().toPoint()).isValid();
    {
        const QScopedValueRollback<bool> own(quiet_, true);
        QListView::mousePressEvent(event);
    }
    if (onLine)
        Q_EMIT Click();
}

void ListBox::mouseMoveEvent(QMouseEvent* event) {
    const int before = ListIndex();
    {
        const QScopedValueRollback<bool> own(quiet_, true);
        QListView::mouseMoveEvent(event);
    }
    if (ListIndex() != before)
        Q_EMIT Click();
    Q_EMIT MouseMove();
}

bool ListBox::viewportEvent(QEvent* event) {
    if (event->type() == QEvent::ToolTip) {
        const auto& help = static_cast<const QHelpEvent&>(*event);
        if (ShowsTipOf(indexAt(help.pos()), help.globalPos()))
            return true;
    }
    return QListView::viewportEvent(event);
}

bool ListBox::ShowsTipOf(const QModelIndex& line, QPoint globalPlace) {
    const QString text = Text(line.row());
    const QFont& font = TheStyle().text;
    if (FittingText(text, font, RoomForText(visualRect(line))) == text)
        return false;
    ShowPlainTip(globalPlace, text, this);
    return true;
}
