#include "tour/Guide.h"

#include "network/Connections.h"
#include "store/Connection.h"

#include <QApplication>
#include <QLineEdit>
#include <QPainter>
#include <QTest>
#include <QTimer>

#include <SQLiteCpp/SQLiteCpp.h>

#include <cstdio>

Guide::Guide(const QString& pictures)
    : pictures_(pictures) {
    QDir().mkpath(pictures);
    taken_ = int(pictures_.entryList({QStringLiteral("*.png")}).size());
    qApp->installEventFilter(this);
    QApplication::setCursorFlashTime(0);
    Connections::Watch([this](const std::string& to) {
        Check(Connections::AreAskedFor(), "somebody asked for " + QString::fromStdString(to));
    });
}

Guide::~Guide() {
    Connections::Watch({});
}

void Guide::Foresee(const QString& window, std::function<void(QWidget*)> visit) {
    foreseen_.enqueue({window, std::move(visit)});
}

void Guide::ForeseeNext(const QString& window, std::function<void(QWidget*)> visit) {
    foreseen_.prepend({window, std::move(visit)});
}

bool Guide::eventFilter(QObject* watched, QEvent* event) {
    auto* shown = event->type() == QEvent::Show ? qobject_cast<QWidget*>(watched) : nullptr;
    if (shown)
        KeepHoverLooks(shown);
    if (shown && shown->isWindow() && shown->isModal())
        QTimer::singleShot(0, shown, [this, shown] { Visit(shown); });
    return QObject::eventFilter(watched, event);
}

/// The timer takes hover looks off when the real pointer is elsewhere. The pictures must not depend
/// on when it fires.
void Guide::KeepHoverLooks(QWidget* form) {
    if (auto* cleanUp = form->findChild<QTimer*>("cleanUp", Qt::FindDirectChildrenOnly))
        cleanUp->stop();
}

void Guide::Visit(QWidget* modal) {
    if (foreseen_.isEmpty() || foreseen_.head().window != modal->objectName()) {
        Check(false, QStringLiteral("this window was not foreseen: ") + modal->objectName());
        modal->close();
        return;
    }
    foreseen_.dequeue().work(modal);
}

QWidget* Guide::Window(const QString& name) {
    for (QWidget* widget : QApplication::allWidgets())
        if (widget->objectName() == name && widget->isVisible())
            return widget;
    Check(false, QStringLiteral("a window named ") + name);
    return nullptr;
}

void Guide::Press(QWidget* root, const QString& button) {
    if (QWidget* found = root ? Find(root, button) : nullptr)
        QTest::mouseClick(found, Qt::LeftButton);
    Settle();
}

void Guide::Type(QWidget* root, const QString& field, const QString& text) {
    QWidget* found = Find(root, field);
    if (!found)
        return;
    TakeInput(found);
    found->setFocus(Qt::TabFocusReason);
    QTest::keyClick(found, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(found, Qt::Key_Delete);
    const QStringList lines = text.split(u'\n');
    QTest::keyClicks(found, lines.first());
    for (const QString& line : lines.mid(1)) {
        QTest::keyClick(found, Qt::Key_Return);
        QTest::keyClicks(found, line);
    }
}

/// Without a screen there is no window manager that activates a window.
void Guide::TakeInput(QWidget* control) {
    control->window()->activateWindow();
    Check(QTest::qWaitForWindowActive(control->window()), QStringLiteral("the window takes input"));
}

void Guide::HoverOver(QWidget* root, const QString& control) {
    if (QWidget* found = Find(root, control)) {
        const QPointF middle = found->rect().center();
        QMouseEvent move(QEvent::MouseMove, middle, found->mapToGlobal(middle), Qt::NoButton,
                         Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(found, &move);
    }
    Settle();
}

void Guide::Picture(QWidget* window, const QString& name) {
    Settle();
    Save(window->grab(), name);
}

void Guide::PictureWithPopups(QWidget* window, const QString& name) {
    Settle();
    QPixmap picture = window->grab();
    QPainter painter(&picture);
    for (QWidget* over : QApplication::topLevelWidgets()) {
        const bool isPopup = over->windowType() == Qt::Popup || over->windowType() == Qt::ToolTip;
        if (isPopup && over->isVisible())
            painter.drawPixmap(over->pos() - window->mapToGlobal(QPoint()), over->grab());
    }
    painter.end();
    Save(picture, name);
}

void Guide::Save(const QPixmap& picture, const QString& name) {
    const QString file =
        QStringLiteral("%1-%2.png").arg(++taken_, 2, 10, QLatin1Char('0')).arg(name);
    Check(picture.save(pictures_.filePath(file)), QStringLiteral("the picture ") + file);
}

void Guide::Settle() {
    QApplication::processEvents();
    QApplication::sendPostedEvents();
    QApplication::processEvents();
}

void Guide::Check(bool holds, const QString& what) {
    std::printf("%s %s\n", holds ? "ok  " : "FAIL", qPrintable(what));
    failures_ += holds ? 0 : 1;
}

void Guide::CheckValue(Connection& connection, const QString& sql, const QVariant& expected) {
    SQLite::Statement statement(connection.Raw(), sql.toStdString());
    const QString found = statement.executeStep()
                              ? QString::fromStdString(statement.getColumn(0).getString())
                              : QStringLiteral("(no row)");
    Check(found == expected.toString(), sql + QStringLiteral(" gives ") + expected.toString() +
                                            QStringLiteral(", found ") + found);
}
