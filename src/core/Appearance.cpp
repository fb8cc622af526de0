#include "core/Appearance.h"

#include "core/StyleChoice.h"
#include "drawing/Fonts.h"
#include "drawing/Pictures.h"
#include "toolkit/ApplyStyle.h"

#include <QApplication>
#include <QIcon>
#include <QPalette>

namespace {

constexpr QSize IconSize(64, 64);

bool taken = false;

} // namespace

void Appearance::ReadAhead() {
    Fonts::ReadAhead();
}

void Appearance::Take() {
    if (taken)
        return;
    taken = true;
    QGuiApplication::setWindowIcon(QIcon(Pictures::Get(QStringLiteral("logo"), IconSize)));
    UseStyle(StyleChoice::Wanted(QGuiApplication::palette()));
    ApplyStyle(*qApp);
}
