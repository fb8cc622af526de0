#pragma once

#include <QColor>
#include <QFont>

class QString;

enum class StyleKind { Light, Dark, HighContrast };

/// Every colour, font and measure of the program, by role. Controls hold no literals of their own.
struct Style {
    StyleKind kind;

    struct Gradient {
        QColor from;
        QColor to; ///< downward
    };
    struct ButtonFace {
        Gradient ground;
        QColor edge;
        QColor text;
    };
    struct LinePen {
        QColor colour;
        int width; ///< pixels
    };

    QColor canvas;   ///< behind everything in the nest
    QColor paper;    ///< boxes, lists, cards
    QColor frame;    ///< box frames, focus ring, chosen day
    QColor heading;  ///< screen titles, card titles
    QColor ink;      ///< text
    QColor quietInk; ///< servings, notes, captions beside values
    QColor disabledInk;
    QColor rule;             ///< grid lines and row separators
    Gradient header;         ///< box headers
    QColor headerInk;        ///< their captions
    QColor headerEdge;       ///< the line below them
    QColor mealStrip;        ///< meal headings of the day list, at rest
    QColor mealText;         ///< their text at rest; white under the pointer
    QColor mealStripLit;     ///< the strip under the pointer, dark enough for the white text
    Gradient window;         ///< title bars
    QColor navigation;       ///< navigation column, weekday heads
    QColor navigationInk;    ///< captions in the navigation column
    QColor windowInk;        ///< captions and pictures on title bars
    QColor windowPressedInk; ///< pictures of pressed buttons there
    QColor navigationLit;    ///< ground of a navigation button under the pointer
    QColor navigationPressed;
    QColor navigationDisabledInk;
    QColor disabledPicture; ///< pictures of disabled buttons on canvas and paper
    QColor chosenRow, chosenRowText;
    QColor listItem, listItemText;       ///< items of an open list
    QColor listItemLit, listItemLitText; ///< the one under the pointer
    Gradient chosenDay;
    QColor scrollSlot;        ///< track of the scroll bar
    QColor fieldEdge;         ///< edge of text fields at rest
    QColor error;             ///< text of a refusal
    ButtonFace button[4];     ///< by state less one: at rest, under the pointer, pressed, disabled
    ButtonFace mainAction[4]; ///< the one main action of a screen
    ButtonFace dayButton[3];  ///< the chosen day of the month
    QColor raisedShadow, raisedText; ///< ucTextRaised

    // The chart colours.
    QColor gridLight, gridDark, barRowText, barRowHover;
    QColor pieFat, pieProtein, pieCarbs;
    QColor pieEdge;                   ///< the lines between the sectors
    QColor barNormal[8], barHover[8]; ///< rows of the bar pictures, top to bottom
    LinePen ln[5];                    ///< pens of the weight line; it is drawn with the last two
    QColor lineMean;                  ///< the mean over the weight line
    QColor lineAxis, lineDotEdge, lineDotCore;
    QColor chartNoticeInk; ///< the notice on a chart without data

    QColor cardLine;   ///< the line below a recipe's name
    QColor cardRuling; ///< the faint lines of the card
    QColor factsRule;  ///< thin lines of the nutrition facts

    // Colours of pictures; a picture names them, as "@checkMark".
    QColor checkLit, checkOn, checkOnEdge, checkMark, checkDisabledOn, checkDisabledEdge;
    QColor cellFoot; ///< the lower end of a day in the calendar
    QColor foodMark, foodMarkEdge, foodMarkStem;
    QColor scaleMark, scaleMarkDial, scaleMarkNeedle;
    QColor plate, plateEdge, plateRim, plateShine; ///< below the pie of the glance

    // Measures, in pixels.
    int boxGap = 8, nestEdge = 14, groupGap = 4, rowHeight = 26, tallRowHeight = 39,
        buttonHeight = 26, buttonRadius = 4, fieldHeight = 24, headerHeight = 24, titleHeight = 34,
        fieldRadius = 3, boxRadius = 1, navigationWidth = 84, navigationTile = 66, scrollWidth = 16;

    bool framesWindow;     ///< the main window has an edge
    bool facesLitPictures; ///< a picture button without an edge has a face while it is lit

    QFont text;        ///< 9 points, tabular figures
    QFont small;       ///< 8 points, dense charts
    QFont smallStrong; ///< 8 points semi-bold, the chosen navigation button
    QFont strong;      ///< 9 points semi-bold
    QFont screenTitle; ///< 13 points semi-bold
    QFont cardTitle;   ///< 15 points semi-bold
    QFont control;     ///< 10 points medium, captions of buttons
    QFont title;       ///< 10 points semi-bold, title bars, headers and strips
    QFont reading;     ///< 10 points, instructions to cook from
    QFont chartNotice; ///< 12 points bold
    QFont raised;      ///< 14 points semi-bold, ucTextRaised
};

const Style& TheStyle();

/// Colours of that style. Applies to controls created afterwards: call it before the first.
void UseStyle(StyleKind kind);

/// Applies to controls created afterwards. Only tests set another family than the delivered one.
void SetFontFamily(const QString& family);

/// For pages: the light style on white, letters not fitted to the pixels of a screen, sectors of a
/// pie that differ in lightness. A process with windows uses StyleOnPaper.
void UseStyleOnPaper();
