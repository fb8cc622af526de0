#pragma once

#include "toolkit/print/PrintJob.h"

#include <optional>

class QAction;
class QMenu;
class QWidget;

/// Prints what a screen or a dialog shows. Its pages are painted, and Qt Print Support is used,
/// only when the person asks for it.
namespace Printing {
/// Null where there is nothing to print.
using Source = std::function<std::optional<PrintJob>()>;

/// Ctrl+P on that screen, and nothing else: for a screen with a context menu of its own.
void AddKey(QWidget* screen, const Source& source);
QAction* AddItem(QMenu& menu, QWidget* screen, const Source& source); ///< "Print..."
/// Both, in a context menu of that name that holds nothing else.
void AddTo(QWidget* screen, const QString& name, const Source& source);
} // namespace Printing
