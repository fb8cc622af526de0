#pragma once

#include <QByteArray>
#include <QRect>
#include <QString>

/// What an X11 screen of 24 bits shows, read from the file that its server keeps.
class ScreenPicture {
public:
    explicit ScreenPicture(const QString& file);

    /// The program's frame in the light style, by the upper edge of its title.
    QRect Frame() const;

private:
    quint32 Number(int index) const; ///< of the file's header
    bool IsTitle(int x, int y) const;

    QByteArray bytes_;
    int width_ = 0;
    int height_ = 0;
};
