#include "desktops/XScreen.h"

#include <xcb/xtest.h>

#include <cstdlib>

namespace {

constexpr quint8 LeftButton = 1;
constexpr quint32 LongestTitle = 64; ///< in units of four bytes
constexpr quint32 AllPlanes = ~0u;

struct Free {
    void operator()(void* reply) const { std::free(reply); }
};

/// What the server replies; null if there is no such window any more.
template <class Reply, class Cookie>
std::unique_ptr<Reply, Free> Ask(Reply* (*read)(xcb_connection_t*, Cookie, xcb_generic_error_t**),
                                 xcb_connection_t* server, Cookie asked) {
    xcb_generic_error_t* error = nullptr;
    std::unique_ptr<Reply, Free> reply(read(server, asked, &error));
    std::free(error);
    return reply;
}

} // namespace

void XScreen::Disconnect::operator()(xcb_connection_t* server) const {
    xcb_disconnect(server);
}

XScreen::XScreen(const QByteArray& display)
    : server_(xcb_connect(display.constData(), nullptr))
    , screen_(xcb_connection_has_error(server_.get())
                  ? nullptr
                  : xcb_setup_roots_iterator(xcb_get_setup(server_.get())).data) {}

QRect XScreen::Window(const QByteArray& title, QSize size) const {
    return screen_ ? WindowBelow(screen_->root, title, size) : QRect();
}

/// A manager puts a window into one of its own.
QRect XScreen::WindowBelow(quint32 parent, const QByteArray& title, QSize size) const {
    const auto tree =
        Ask(xcb_query_tree_reply, server_.get(), xcb_query_tree(server_.get(), parent));
    if (!tree)
        return {};
    const xcb_window_t* windows = xcb_query_tree_children(tree.get());
    for (int i = 0; i < xcb_query_tree_children_length(tree.get()); ++i) {
        const QRect place = ShownPlace(windows[i]);
        if (place.size() == size && Title(windows[i]) == title)
            return place;
        if (const QRect below = WindowBelow(windows[i], title, size); !below.isNull())
            return below;
    }
    return {};
}

QRect XScreen::ShownPlace(quint32 window) const {
    xcb_connection_t* server = server_.get();
    const auto state =
        Ask(xcb_get_window_attributes_reply, server, xcb_get_window_attributes(server, window));
    const auto size = Ask(xcb_get_geometry_reply, server, xcb_get_geometry(server, window));
    const auto corner = Ask(xcb_translate_coordinates_reply, server,
                            xcb_translate_coordinates(server, window, screen_->root, 0, 0));
    if (!state || !size || !corner || state->map_state != XCB_MAP_STATE_VIEWABLE)
        return {};
    return {corner->dst_x, corner->dst_y, size->width, size->height};
}

QByteArray XScreen::Title(quint32 window) const {
    const auto title = Ask(xcb_get_property_reply, server_.get(),
                           xcb_get_property(server_.get(), 0, window, XCB_ATOM_WM_NAME,
                                            XCB_GET_PROPERTY_TYPE_ANY, 0, LongestTitle));
    if (!title)
        return {};
    return {static_cast<const char*>(xcb_get_property_value(title.get())),
            xcb_get_property_value_length(title.get())};
}

QImage XScreen::Picture() const {
    if (!screen_)
        return {};
    const quint16 width = screen_->width_in_pixels;
    const quint16 height = screen_->height_in_pixels;
    const auto image = Ask(xcb_get_image_reply, server_.get(),
                           xcb_get_image(server_.get(), XCB_IMAGE_FORMAT_Z_PIXMAP, screen_->root, 0,
                                         0, width, height, AllPlanes));
    if (!image)
        return {};
    return QImage(xcb_get_image_data(image.get()), width, height, QImage::Format_RGB32).copy();
}

void XScreen::MoveTo(QPoint place) const {
    Input(XCB_MOTION_NOTIFY, 0, place);
}

void XScreen::Press() const {
    Input(XCB_BUTTON_PRESS, LeftButton, {});
}

void XScreen::Release() const {
    Input(XCB_BUTTON_RELEASE, LeftButton, {});
}

/// The server works in order: when it has answered the question at the end, the input is done.
void XScreen::Input(quint8 kind, quint8 detail, QPoint place) const {
    if (!screen_)
        return;
    xcb_connection_t* server = server_.get();
    xcb_test_fake_input(server, kind, detail, XCB_CURRENT_TIME, screen_->root, qint16(place.x()),
                        qint16(place.y()), 0);
    Ask(xcb_get_input_focus_reply, server, xcb_get_input_focus(server));
}
