#include "drawing/StyleTable.h"

#include <array>

namespace {

constexpr int Kinds = 3;

/// In each table: light, dark, high contrast.
struct ColourRow {
    QColor Style::*role;
    QRgb of[Kinds];
};

constexpr ColourRow Colours[] = {
    {&Style::canvas, {0xf7f2e9, 0x1f1b17, 0x000000}},
    {&Style::paper, {0xfffdf9, 0x2a2520, 0x000000}},
    {&Style::frame, {0xb4690c, 0xc88735, 0xffd700}},
    {&Style::heading, {0x7d4808, 0xf0b45c, 0xffff00}},
    {&Style::ink, {0x2b2620, 0xece4d6, 0xffffff}},
    {&Style::quietInk, {0x6a6155, 0xb8ac9a, 0xe6e6e6}},
    {&Style::disabledInk, {0x706a62, 0x9c9183, 0x969696}},
    {&Style::rule, {0xe9d9ba, 0x463d32, 0x808080}},
    {&Style::headerInk, {0x5c3608, 0xf3d9ab, 0xffff00}},
    {&Style::headerEdge, {0xc49958, 0x7a5c30, 0xffd700}},
    {&Style::mealStrip, {0xfdf7ec, 0x352c22, 0x1f1f1f}},
    {&Style::mealText, {0xb4690c, 0xe8a653, 0xffff00}},
    {&Style::mealStripLit, {0xa35c06, 0x633a05, 0x1aebff}},
    {&Style::navigation, {0x33455a, 0x1b252f, 0x00003c}},
    {&Style::navigationInk, {0xd0d9e3, 0xc6d0da, 0xffffff}},
    {&Style::windowInk, {0xffffff, 0xffffff, 0xffffff}},
    {&Style::windowPressedInk, {0xe9d9ba, 0xe9d9ba, 0xffff00}},
    {&Style::navigationLit, {0x455b73, 0x33475b, 0x3838e0}},
    {&Style::navigationPressed, {0x263547, 0x121a22, 0x2020a0}},
    {&Style::navigationDisabledInk, {0xa8b3c0, 0x8797a8, 0xa0a0a0}},
    {&Style::disabledPicture, {0xbeb6aa, 0x6e655a, 0x969696}},
    {&Style::chosenRow, {0x33455a, 0x436a93, 0x1aebff}},
    {&Style::chosenRowText, {0xffffff, 0xffffff, 0x000000}},
    {&Style::listItem, {0xffffff, 0x2a2520, 0x000000}},
    {&Style::listItemText, {0x000000, 0xece4d6, 0xffffff}},
    {&Style::listItemLit, {0x839297, 0x59696f, 0x1aebff}},
    {&Style::listItemLitText, {0xffffff, 0xffffff, 0x000000}},
    {&Style::scrollSlot, {0xf4ede0, 0x241f1a, 0x1a1a1a}},
    {&Style::fieldEdge, {0xa87e42, 0x9c7a49, 0xffffff}},
    {&Style::error, {0xa52014, 0xff9585, 0xff9a9a}},
    {&Style::raisedShadow, {0x0a4baf, 0x0a4baf, 0x0000a0}},
    {&Style::raisedText, {0xffffff, 0xffffff, 0xffffff}},

    {&Style::gridLight, {0xdedede, 0x463e35, 0x4d4d4d}},
    {&Style::gridDark, {0x6f6f6f, 0x8c8378, 0xbfbfbf}},
    {&Style::barRowText, {0x000000, 0xece4d6, 0xffffff}},
    {&Style::barRowHover, {0xb58058, 0xf0b98d, 0xffff00}},
    {&Style::pieFat, {0xff1e1e, 0xff8074, 0xff6464}},
    {&Style::pieProtein, {0xff8500, 0xffae3c, 0xffb43c}},
    {&Style::pieCarbs, {0x38fa3b, 0x7af07c, 0xa0ffff}},
    {&Style::pieEdge, {0x6f6f6f, 0x14110e, 0xffffff}},
    {&Style::lineMean, {0x33455a, 0x96b4d7, 0x1aebff}},
    {&Style::lineAxis, {0x000000, 0xece4d6, 0xffffff}},
    {&Style::lineDotEdge, {0xffaaaa, 0xffc8be, 0xffffff}},
    {&Style::lineDotCore, {0xffc8c8, 0xffe1dc, 0xffffff}},
    {&Style::chartNoticeInk, {0xff0000, 0xff8070, 0xff9a9a}},

    {&Style::cardLine, {0xd66258, 0xc45a50, 0xffd700}},
    {&Style::cardRuling, {0xf7efde, 0x352f27, 0x4d4d4d}},
    {&Style::factsRule, {0xc8c8c8, 0x504a42, 0x808080}},

    {&Style::checkLit, {0xfff8ea, 0x3a3128, 0x333333}},
    {&Style::checkOn, {0xa8620a, 0xd9933a, 0xffd700}},
    {&Style::checkOnEdge, {0x8e5005, 0xf0b45c, 0xffffff}},
    {&Style::checkMark, {0xffffff, 0x1f1b17, 0x000000}},
    {&Style::checkDisabledOn, {0xe9e2d6, 0x3a342c, 0x000000}},
    {&Style::checkDisabledEdge, {0xcec6ba, 0x5a5248, 0x969696}},
    {&Style::cellFoot, {0xfdf8ee, 0x272219, 0x000000}},
    {&Style::foodMark, {0x3f9a2c, 0x55ad40, 0x40ff40}},
    {&Style::foodMarkEdge, {0x2b7420, 0x8fd67e, 0xffffff}},
    {&Style::foodMarkStem, {0x5d4426, 0xb08a5c, 0xffffff}},
    {&Style::scaleMark, {0x45607d, 0x86a5c6, 0x1aebff}},
    {&Style::scaleMarkDial, {0xffffff, 0x1f2a36, 0x000000}},
    {&Style::scaleMarkNeedle, {0x33455a, 0xffffff, 0xffffff}},
    {&Style::plate, {0xfbf5e9, 0x332d26, 0x0d0d0d}},
    {&Style::plateEdge, {0xf6ecda, 0x3a332b, 0x1a1a1a}},
    {&Style::plateRim, {0xe6cfa3, 0x5c4d38, 0x808080}},
    {&Style::plateShine, {0xffffff, 0x4a4138, 0x1a1a1a}},
};

struct SignRow {
    bool Style::*role;
    bool of[Kinds];
};

/// In high contrast an edge tells what a shadow or a hue tells in the others.
constexpr SignRow Signs[] = {
    {&Style::framesWindow, {false, false, true}},
    {&Style::facesLitPictures, {false, false, true}},
};

struct Ends {
    QRgb from, to;
};

struct GradientRow {
    Style::Gradient Style::*role;
    Ends of[Kinds];
};

constexpr GradientRow Gradients[] = {
    {&Style::header, {{0xf3e4c9, 0xe6cfa3}, {0x43382b, 0x392f23}, {0x1f1f1f, 0x1f1f1f}}},
    {&Style::window, {{0x41566b, 0x33455a}, {0x31414f, 0x253240}, {0x00003c, 0x00003c}}},
    {&Style::chosenDay, {{0xfff1d6, 0xfbdca6}, {0x46371f, 0x523f22}, {0x5c4d00, 0x5c4d00}}},
};

struct FaceColours {
    QRgb from, to, edge, text;
};

using ButtonStates = std::array<FaceColours, 4>;

constexpr ButtonStates Buttons[Kinds] = {
    {{{0xfffaf0, 0xf0dfc0, 0xa87e42, 0x3d2b12},
      {0xfffefa, 0xf8ebd2, 0xb4690c, 0x3d2b12},
      {0xe5d0aa, 0xeeddbd, 0x965608, 0x3d2b12},
      {0xf8f4ed, 0xf3eee6, 0xcec6ba, 0x706a62}}},
    {{{0x453a2d, 0x372e23, 0x9c7a49, 0xf3e6cf},
      {0x4f4335, 0x3f3428, 0xd9933a, 0xf3e6cf},
      {0x2c241b, 0x352b20, 0xb98136, 0xf3e6cf},
      {0x2b2620, 0x26211d, 0x4a433a, 0x9c9183}}},
    {{{0x000000, 0x000000, 0xffffff, 0xffffff},
      {0x333333, 0x333333, 0xffd700, 0xffffff},
      {0x4d4d00, 0x4d4d00, 0xffff00, 0xffffff},
      {0x000000, 0x000000, 0x969696, 0x969696}}},
};

constexpr ButtonStates MainActions[Kinds] = {
    {{{0xad620a, 0x965304, 0x7e4604, 0xffffff},
      {0xa8600c, 0x864a04, 0x623602, 0xffffff},
      {0x754003, 0x864b05, 0x5e3302, 0xffffff},
      Buttons[0][3]}},
    {{{0xd08a30, 0xb8761f, 0xf0b45c, 0x14100c},
      {0xe09a3e, 0xc88228, 0xf0b45c, 0x14100c},
      {0xb47422, 0xc07d2a, 0xf0b45c, 0x14100c},
      Buttons[1][3]}},
    {{{0xffd700, 0xffd700, 0xffffff, 0x000000},
      {0xffffff, 0xffffff, 0xffd700, 0x000000},
      {0xc8a900, 0xc8a900, 0xffffff, 0x000000},
      Buttons[2][3]}},
};

constexpr std::array<FaceColours, 3> DayButtons[Kinds] = {
    {{{0xfff1d6, 0xfbdca6, 0xb4690c, 0x2b2620},
      {0xfff9ec, 0xfeeac4, 0xb4690c, 0x7d4808},
      {0xf3d6a0, 0xf8e0b4, 0xb4690c, 0x2b2620}}},
    {{{0x46371f, 0x523f22, 0xd9933a, 0xece4d6},
      {0x504127, 0x5c4a2a, 0xd9933a, 0xf0b45c},
      {0x3e311c, 0x4a3b22, 0xd9933a, 0xece4d6}}},
    {{{0x5c4d00, 0x5c4d00, 0xffd700, 0xffffff},
      {0x3d3300, 0x3d3300, 0xffffff, 0xffff00},
      {0x141100, 0x141100, 0xffffff, 0xffffff}}},
};

using BarRows = std::array<QRgb, 8>;

constexpr BarRows NormalBars[Kinds] = {
    {0x787c85, 0xa7b4df, 0x9cabea, 0x879beb, 0x5b70c0, 0x5669b5, 0x455696, 0x5e6068},
    {0xb9bfcc, 0xa3b2ea, 0x93a5ec, 0x8499e8, 0x6b80d0, 0x6277c4, 0x566ab2, 0x9aa0ae},
    {0xffffff, 0x1aebff, 0x1aebff, 0x1aebff, 0x1aebff, 0x1aebff, 0x1aebff, 0xffffff},
};

/// In high contrast a lit bar has stripes: its hue alone would not tell it.
constexpr BarRows LitBars[Kinds] = {
    {0x7c8089, 0xe6c3af, 0xf1c5a4, 0xefb98d, 0xc0825b, 0xb47d55, 0x956743, 0x5d6067},
    {0xcfc4b8, 0xf0cdb4, 0xf1c5a4, 0xefb98d, 0xd0946c, 0xc48b62, 0xb07c54, 0xb5aa9e},
    {0xffd700, 0xffd700, 0x000000, 0xffd700, 0xffd700, 0x000000, 0xffd700, 0xffd700},
};

constexpr std::array<QRgb, 5> LinePens[Kinds] = {
    {0xedcdcd, 0xd09e9f, 0x800000, 0xc00000, 0xff8080},
    {0x4a3532, 0x7a4e48, 0xb8483c, 0xe0604f, 0xffb0a4},
    {0x4d4d4d, 0x808080, 0xff8080, 0xff8080, 0xffffff},
};
constexpr int LineWidths[] = {10, 8, 6, 4, 2};

Style::ButtonFace FaceOf(const FaceColours& colours) {
    return {{QColor(colours.from), QColor(colours.to)}, QColor(colours.edge), QColor(colours.text)};
}

template <size_t States>
void SetFaces(Style::ButtonFace (&faces)[States], const std::array<FaceColours, States>& colours) {
    for (size_t state = 0; state < States; ++state)
        faces[state] = FaceOf(colours[state]);
}

void SetBars(QColor (&rows)[8], const BarRows& colours) {
    for (size_t row = 0; row < colours.size(); ++row)
        rows[row] = QColor(colours[row]);
}

} // namespace

void StyleTable::Colour(Style& style, StyleKind kind) {
    const auto at = static_cast<size_t>(kind);
    style.kind = kind;
    for (const ColourRow& row : Colours)
        style.*row.role = QColor(row.of[at]);
    for (const SignRow& row : Signs)
        style.*row.role = row.of[at];
    for (const GradientRow& row : Gradients)
        style.*row.role = {QColor(row.of[at].from), QColor(row.of[at].to)};
    SetFaces(style.button, Buttons[at]);
    SetFaces(style.mainAction, MainActions[at]);
    SetFaces(style.dayButton, DayButtons[at]);
    SetBars(style.barNormal, NormalBars[at]);
    SetBars(style.barHover, LitBars[at]);
    for (size_t pen = 0; pen < std::size(LineWidths); ++pen)
        style.ln[pen] = {QColor(LinePens[at][pen]), LineWidths[pen]};
}
