#pragma once

#include <QFont>
#include <QList>
#include <QRect>
#include <QString>

class ElidedLabel;
class QColor;
class QLabel;
class QLineEdit;
class QWidget;

/// Puts a control in the middle of a line of the card, at its left end, with the size it has.
void PlaceOnLine(const QRect& line, QWidget* control);

/// A field of a recipe on its card: a label that shows it and, in the same place, an entry that
/// takes what is typed. It may have a caption before it and a unit behind it. The controls belong
/// to the card.
class CardField {
public:
    struct Names {
        const char* label;
        const char* entry;
        const char* spoken; ///< for assistive tools
    };
    CardField(QWidget* card, const Names& names);
    void AddCaption(const char* name, const char* text);
    void AddUnit(const char* name, const char* text);
    void SetLook(const QList<QFont>& shown, const QColor& ink, const QFont& typed);

    void Show(const QString& text);
    QString Shown() const;
    void SetEntry(const QString& text);
    QString Entry() const;
    void SetEditing(bool editing);
    void Focus(); ///< the entry, with all of it chosen and its beginning in sight

    int CaptionWidth() const;
    /// From the caption's left end on; what follows the caption begins behind `captionWidth`.
    void Place(const QRect& line, int captionWidth);

private:
    void PlaceParts();
    int ShownWidth() const;

    ElidedLabel* label_;
    QLineEdit* entry_;
    QLabel* caption_ = nullptr;
    QLabel* unit_ = nullptr;
    QRect place_; ///< of the field with its unit
    bool editing_ = false;
};
