#include "analysis/ui/ChartPiece.h"

#include <QAccessibleWidget>

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
        default:
            return QAccessibleWidget::text(kind);
        }
    }
};

QAccessibleInterface* MakeAccessible(const QString&, QObject* object) {
    auto* piece = qobject_cast<ChartPiece*>(object);
    return piece ? new ChartPieceAccessible(piece) : nullptr;
}

} // namespace

ChartPiece::ChartPiece(QWidget* parent)
    : QWidget(parent) {
    static const bool installed = (QAccessible::installFactory(MakeAccessible), true);
    Q_UNUSED(installed)
}

void ChartPiece::TellValueChanged() {
    if (!QAccessible::isActive())
        return;
    QAccessibleValueChangeEvent change(this, SpokenValue());
    QAccessible::updateAccessibility(&change);
}
