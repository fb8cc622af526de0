#include "toolkit/print/Printing.h"

#include "toolkit/ContextMenu.h"
#include "toolkit/print/PrintPreview.h"

#include <QMenu>
#include <QShortcut>

namespace {

void PreviewIfAny(QWidget* screen, const Printing::Source& source) {
    if (const std::optional<PrintJob> job = source())
        PrintPreview(*job, screen->window()).ShowModal();
}

} // namespace

void Printing::AddKey(QWidget* screen, const Source& source) {
    QObject::connect(new QShortcut(QKeySequence::Print, screen), &QShortcut::activated, screen,
                     [screen, source] { PreviewIfAny(screen, source); });
}

QAction* Printing::AddItem(QMenu& menu, QWidget* screen, const Source& source) {
    QAction* item = menu.addAction(QStringLiteral("&Print..."), screen,
                                   [screen, source] { PreviewIfAny(screen, source); });
    item->setObjectName(QStringLiteral("print"));
    item->setShortcut(QKeySequence::Print);
    return item;
}

void Printing::AddTo(QWidget* screen, const QString& name, const Source& source) {
    AddKey(screen, source);
    new ContextMenu(screen, [screen, name, source](QMenu& menu, QWidget*) {
        menu.setAccessibleName(name);
        AddItem(menu, screen, source)->setEnabled(source().has_value());
    });
}
