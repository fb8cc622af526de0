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

/// Moves a control to the left end of a line of the card, in the middle of its height.
void PlaceOnLine(const QRect& line, QWidget* control);

/// A field of a recipe on its card: a label that shows it and an entry in the same place in which
/// it is typed. It may have a caption before it and a unit after it. The card owns the controls.
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
    void Focus(); ///< selects the whole entry and scrolls to its beginning

    int CaptionWidth() const;
    /// The caption begins at the left of `line`, and the field `captionWidth` further right.
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
