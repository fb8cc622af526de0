#pragma once

#include <QList>
#include <QWidget>

/// The figures over a grid. The caption is one text; each of its words is centred over a mark of
/// its own.
class ScaleCaption : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QString Caption READ Caption WRITE SetCaption)

public:
    explicit ScaleCaption(QWidget* parent = nullptr);

    QString Caption() const { return caption_; }
    void SetCaption(const QString& caption);
    void SetMarks(const QList<int>& marks); ///< pixels from the left edge

protected:
    void paintEvent(QPaintEvent*) override;

private:
    QString caption_;
    QList<int> marks_;
};
