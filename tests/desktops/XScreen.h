#pragma once

#include <QImage>
#include <QPoint>
#include <QRect>

#include <memory>

struct xcb_connection_t;
struct xcb_screen_t;

/// A client of an X11 server that looks at its windows and moves its pointer. Each call returns
/// when the server has done it. Once the server has ended, it finds nothing.
class XScreen {
public:
    explicit XScreen(const QByteArray& display);

    /// The window of that title and size, if it is shown.
    QRect Window(const QByteArray& title, QSize size) const;
    QImage Picture() const; ///< all that the screen shows at one moment

    void MoveTo(QPoint place) const;
    void Press() const;
    void Release() const;

private:
    struct Disconnect {
        void operator()(xcb_connection_t* server) const;
    };
    QRect WindowBelow(quint32 parent, const QByteArray& title, QSize size) const;
    QRect ShownPlace(quint32 window) const;
    QByteArray Title(quint32 window) const;
    void Input(quint8 kind, quint8 detail, QPoint place) const;

    std::unique_ptr<xcb_connection_t, Disconnect> server_;
    const xcb_screen_t* screen_;
};
