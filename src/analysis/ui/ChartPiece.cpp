#include "analysis/ui/ChartPiece.h"

#include "analysis/ui/SpokenTable.h"
#include "toolkit/Accessible.h"
#include "toolkit/PlainTip.h"

#include <QAccessibleWidget>
#include <QHelpEvent>

namespace {

class ChartPieceAccessible : public QAccessibleWidget {
public:
    explicit ChartPieceAccessible(ChartPiece* piece)
        : QAccessibleWidget(piece, piece->SpokenRole()) {}

    QString text(QAccessible::Text kind) const override {
        const auto* piece = static_cast<const ChartPiece*>(object());
        switch (kind) {
        case QAccessible::Name:
            return piece->SpokenName();
        case QAccessible::Value:
            return piece->SpokenValue();
        case QAccessible::Description:
            return piece->SpokenValue();
        default:
            return QAccessibleWidget::text(kind);
        }
    }
};

QAccessibleInterface* MakeAccessible(const QString&, QObject* object) {
    auto* piece = qobject_cast<ChartPiece*>(object);
    if (!piece)
        return nullptr;
    return new WithSpokenTable<ChartPieceAccessible>(piece, [piece] { return piece->Figures(); });
}

} // namespace

ChartPiece::ChartPiece(QWidget* parent)
    : QWidget(parent) {
    static const bool installed = (QAccessible::installFactory(MakeAccessible), true);
    Q_UNUSED(installed)
}

void ChartPiece::TellValueChanged() {
    TellDescriptionChanged(this);
}

bool ChartPiece::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    auto& asked = static_cast<QHelpEvent&>(*event);
    ShowPlainTip(asked, TipAt(asked.pos()), this);
    return true;
}
