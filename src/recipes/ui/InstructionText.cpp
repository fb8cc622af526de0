#include "recipes/ui/InstructionText.h"

#include "drawing/DevicePixels.h"
#include "drawing/Style.h"
#include "toolkit/DrawnControl.h"
#include "toolkit/Face.h"
#include "toolkit/ucScroll.h"

#include <QApplication>
#include <QEvent>
#include <QPainter>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTextBlock>

namespace {

constexpr int TextLeft = 8;
constexpr int TextTop = 6; // as much is kept free below the last line
constexpr int Slack = 1;   // without it the last visible line would count as cut

/// This control paints the frame around the text, so the field has none.
const char* const BareField =
    "#txtInstructions { background: transparent; border: none; padding: 0; }";

} // namespace

InstructionText::InstructionText(QWidget* parent)
    : QWidget(parent) {
    setObjectName(QStringLiteral("picInstBox"));
    setMouseTracking(true);
    AddText();
    AddBar();
    setFocusProxy(text_);
    SetReadOnly(true);
}

void InstructionText::AddText() {
    text_ = new QPlainTextEdit(this);
    text_->setObjectName(QStringLiteral("txtInstructions"));
    text_->setAccessibleName(QStringLiteral("Preparation instructions"));
    text_->setStyleSheet(QLatin1String(BareField));
    text_->setFont(TheStyle().reading);
    text_->document()->setDocumentMargin(0);
    text_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    text_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    text_->setTabChangesFocus(true);
    text_->installEventFilter(this);
    text_->viewport()->installEventFilter(this);
    text_->viewport()->setMouseTracking(true);
    connect(text_, &QPlainTextEdit::textChanged, this, &InstructionText::OnTextChange);
}

void InstructionText::AddBar() {
    bar_ = new ucScroll(this);
    bar_->setObjectName(QStringLiteral("vsInstructions"));
    bar_->setAccessibleName(QStringLiteral("Scroll the preparation instructions"));
    bar_->installEventFilter(this);
    bar_->SetMin(0);
    bar_->SetValue(0);
    bar_->hide();
    connect(bar_, &ucScroll::Change, this, &InstructionText::OnBarChange);
}

/// The text as it was typed. QTextDocument::toPlainText would replace hard blanks by blanks.
QString InstructionText::Text() const {
    QString text = text_->document()->toRawText();
    for (const QChar end : {QChar(QChar::ParagraphSeparator), QChar(QChar::LineSeparator)})
        text.replace(end, u'\n');
    return text;
}

void InstructionText::SetText(const QString& text) {
    if (text == given_ && !text_->document()->isModified())
        return;
    given_ = text;
    text_->setPlainText(text);
}

/// A read-only text can still be selected and copied with the keyboard.
void InstructionText::SetReadOnly(bool readOnly) {
    text_->setTextInteractionFlags(readOnly
                                       ? Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard
                                       : Qt::TextEditorInteraction);
    update();
}

void InstructionText::ResetBar() {
    bar_->SetValue(0);
}

/// Lays out only the blocks that changed.
int InstructionText::LineCount() const {
    const QTextDocument* document = text_->document();
    for (QTextBlock block = document->begin(); block.isValid(); block = block.next())
        if (block.layout()->lineCount() == 0)
            document->documentLayout()->blockBoundingRect(block);
    return document->lineCount();
}

int InstructionText::CaretLine() const {
    const QTextCursor caret = text_->textCursor();
    const QTextLine line = caret.block().layout()->lineForTextPosition(caret.positionInBlock());
    return caret.block().firstLineNumber() + (line.isValid() ? line.lineNumber() : 0);
}

void InstructionText::OnTextChange() {
    const int lines = LineCount();
    if (lines <= LinesInSight)
        return bar_->hide();
    bar_->SetMin(0);
    bar_->SetMax(lines - LinesInSight);
    bar_->SetSmallChange(1);
    bar_->SetLargeChange(1);
    bar_->SetValue(CaretLine() + 1);
    bar_->show();
}

void InstructionText::OnBarChange(int value) {
    if (value > lastValue_)
        ScrollText(text_, 1);
    else if (value < lastValue_)
        ScrollText(text_, -1);
    lastValue_ = value;
}

void InstructionText::ScrollText(QPlainTextEdit* control, int lines) {
    QScrollBar* place = control->verticalScrollBar();
    place->setValue(place->value() + lines);
}

void InstructionText::Wheel(QEvent* event) {
    QScrollBar* place = text_->verticalScrollBar();
    QApplication::sendEvent(place, event);
    lastValue_ = qMin(place->value(), bar_->Max());
    bar_->SetValue(lastValue_);
}

bool InstructionText::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    case QEvent::Wheel:
        Wheel(event);
        return true;
    case QEvent::MouseMove:
        if (watched == text_->viewport())
            Q_EMIT MouseMove();
        break;
    case QEvent::FocusIn:
    case QEvent::FocusOut:
        update();
        break;
    default:
        break;
    }
    return QWidget::eventFilter(watched, event);
}

int InstructionText::LineHeight() const {
    return QFontMetrics(text_->font()).lineSpacing();
}

QSize InstructionText::sizeHint() const {
    return {QWidget::sizeHint().width(), LinesInSight * LineHeight() + Slack + 2 * TextTop};
}

/// The room of a hidden bar stays free, so that the line breaks are the same with and without it.
void InstructionText::resizeEvent(QResizeEvent*) {
    const int barWidth = TheStyle().scrollWidth;
    text_->setGeometry(TextLeft, TextTop, width() - 2 * TextLeft - barWidth,
                       height() - 2 * TextTop);
    bar_->setGeometry(width() - barWidth - 1, 1, barWidth, height() - 2);
}

void InstructionText::paintEvent(QPaintEvent*) {
    const Style& style = TheStyle();
    QPainter painter(this);
    const QColor& edge = text_->isReadOnly() ? style.rule : style.fieldEdge;
    PaintFace(painter, rect(), {{style.paper, style.paper}, edge, style.ink}, style.fieldRadius);
    const QRect text = text_->geometry();
    for (int line = 1; line <= LinesInSight; ++line)
        PaintEdge(painter, QRect(text.left(), text.top() + line * LineHeight(), text.width(), 1),
                  Qt::TopEdge, style.cardRuling);
    if (text_->hasFocus())
        PaintFocusRing(painter, rect(), style.fieldRadius);
}
