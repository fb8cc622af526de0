#pragma once

#include <QWidget>

/// Tells that the files of an older version are kept and updated. With a large catalogue that takes
/// seconds, in which nothing is painted. So it is painted when the constructor returns. Its end
/// closes it.
class UpdateNotice : public QWidget {
    Q_OBJECT

public:
    UpdateNotice();

Q_SIGNALS:
    void Painted();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void LayTexts();
    void WaitUntilPainted();
};
