#include "recipes/ui/CardField.h"

#include "drawing/SmoothedPrint.h"
#include "drawing/Style.h"
#include "foods/ui/ElidedLabel.h"
#include "toolkit/Labels.h"
#include "toolkit/LineField.h"

#include <QFontMetricsF>
#include <QtMath>

namespace {

// Measures in pixels.
constexpr int CaptionGap = 8;
constexpr int UnitGap = 4;
constexpr int BlankWidth = 8; // before a unit if there is no number
constexpr int NumberWidth = 56;

} // namespace

void PlaceOnLine(const QRect& line, QWidget* control) {
    control->move(line.left(), line.top() + (line.height() - control->height()) / 2);
}

CardField::CardField(QWidget* card, const Names& names) {
    label_ = new ElidedLabel(card, QLatin1String(names.label));
    label_->SetLook({TheStyle().strong}, TheStyle().ink);
    entry_ = new LineField(card);
    entry_->setObjectName(QLatin1String(names.entry));
    entry_->setAccessibleName(QLatin1String(names.spoken));
}

void CardField::AddCaption(const char* name, const char* text) {
    caption_ = MakeLabel(label_->parentWidget(), QLatin1String(name), QLatin1String(text),
                         TextRole::Quiet);
    caption_->setBuddy(entry_);
}

void CardField::AddUnit(const char* name, const char* text) {
    unit_ = MakeLabel(label_->parentWidget(), QLatin1String(name), QLatin1String(text));
}

void CardField::SetLook(const QList<QFont>& shown, const QColor& ink, const QFont& typed) {
    label_->SetLook(shown, ink);
    entry_->setFont(typed);
}

void CardField::Show(const QString& text) {
    label_->SetCaption(text);
    PlaceParts();
}

QString CardField::Shown() const {
    return label_->text();
}

void CardField::SetEntry(const QString& text) {
    entry_->setText(text);
    entry_->setCursorPosition(0);
}

QString CardField::Entry() const {
    return entry_->text();
}

void CardField::SetEditing(bool editing) {
    editing_ = editing;
    label_->setVisible(!editing);
    entry_->setVisible(editing);
    PlaceParts();
}

void CardField::Focus() {
    entry_->setFocus(Qt::OtherFocusReason);
    entry_->end(false);
    entry_->home(true);
}

int CardField::CaptionWidth() const {
    return caption_->width() + CaptionGap;
}

void CardField::Place(const QRect& line, int captionWidth) {
    if (caption_)
        PlaceOnLine(line, caption_);
    place_ = line.adjusted(captionWidth, 0, 0, 0);
    PlaceParts();
}

/// The unit follows directly after the number on the label, or after the entry.
void CardField::PlaceParts() {
    const int taken = unit_ ? UnitGap + unit_->width() : 0;
    const int room = qMax(0, place_.width() - taken);
    const int shown = unit_ ? qMin(room, qMax(BlankWidth, ShownWidth())) : room;
    label_->setGeometry(place_.left(), place_.top(), shown, place_.height());
    entry_->resize(unit_ ? NumberWidth : room, TheStyle().fieldHeight);
    PlaceOnLine(place_, entry_);
    if (unit_)
        PlaceOnLine(place_.translated((editing_ ? NumberWidth : shown) + UnitGap, 0), unit_);
}

int CardField::ShownWidth() const {
    const QFontMetricsF metrics(SmoothedFont(TheStyle().strong));
    return qCeil(metrics.horizontalAdvance(label_->text()));
}
