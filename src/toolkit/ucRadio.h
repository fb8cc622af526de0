#pragma once

#include <QWidget>

/// A two-state picture with a text beside it. A click turns it on and never off; where one of a set
/// is clicked, the using screen turns the others off. Space works it from the keyboard.
class ucRadio : public QWidget {
    Q_OBJECT
    Q_PROPERTY(bool Value READ Value WRITE SetValue)
    Q_PROPERTY(QString Caption READ Caption WRITE SetCaption)

public:
    explicit ucRadio(QWidget* parent = nullptr);
    explicit ucRadio(const QString& caption, QWidget* parent = nullptr);

    bool Value() const { return value_; }
    void SetValue(bool value);
    QString Caption() const { return caption_; }
    void SetCaption(const QString& caption);
    QSize sizeHint() const override;

Q_SIGNALS:
    void Click();

protected:
    /// Names of the pictures: on `imgN`, off `imgD`.
    ucRadio(const QString& imgN, const QString& imgD, const QString& caption, QWidget* parent);
    bool event(QEvent*) override;
    void paintEvent(QPaintEvent*) override;
    void mousePressEvent(QMouseEvent*) override;
    void mouseReleaseEvent(QMouseEvent*) override;
    void keyPressEvent(QKeyEvent*) override;

private:
    void Press();

    QString imgN_, imgD_, caption_;
    bool value_ = false;
};

/// The same control with other pictures: a switch instead of a dot.
class ucRadioB : public ucRadio {
    Q_OBJECT

public:
    explicit ucRadioB(const QString& caption = {}, QWidget* parent = nullptr);
};
