#include "app/WindowActivation.h"

#include "app/ActivationToken.h"

#include <QGuiApplication>
#include <QWidget>
#include <QWindow>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <iterator>
#include <memory>
#include <string_view>
#include <xcb/xcb.h>

namespace {

/// Answers of the X server are allocated with malloc.
template <typename Reply>
using Answer = std::unique_ptr<Reply, decltype(&std::free)>;

template <typename Reply>
Answer<Reply> answer(Reply* reply)
{
    return {reply, &std::free};
}

/// An X11 window, spoken to in the terms of its window manager.
class X11Window
{
public:
    X11Window(xcb_connection_t* connection, xcb_window_t window)
        : m_connection(connection)
        , m_window(window)
        , m_root(rootOf(connection, window))
    {}

    /// Asks for the focus. `time` is the server's when the person asked; 0 when that is not known.
    void activate(xcb_timestamp_t time) const
    {
        auto message = clientMessage("_NET_ACTIVE_WINDOW", 32);
        constexpr std::uint32_t fromApplication = 1;
        message.data.data32[0] = fromApplication;
        message.data.data32[1] = time;
        xcb_send_event(m_connection, 0, m_root,
                       XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                       reinterpret_cast<const char*>(&message));
    }

    /// Says to all that the launch is over, so that the pointer need show it no longer.
    void endStartup(const QByteArray& startupID) const
    {
        auto id = startupID;
        id.replace('\\', "\\\\").replace('"', "\\\"").replace(' ', "\\ ");
        const QByteArray text = "remove: ID=" + id;
        auto message = clientMessage("_NET_STARTUP_INFO_BEGIN", 8);
        const auto next = clientMessage("_NET_STARTUP_INFO", 8);
        constexpr qsizetype pieceLength = sizeof message.data.data8;
        // The zero at the end of the text is part of it.
        for (qsizetype start = 0; start <= text.size(); start += pieceLength) {
            const auto length = std::min(pieceLength, text.size() + 1 - start);
            std::fill(std::begin(message.data.data8), std::end(message.data.data8), 0);
            std::copy_n(text.constData() + start, length, std::begin(message.data.data8));
            xcb_send_event(m_connection, 0, m_root, XCB_EVENT_MASK_PROPERTY_CHANGE,
                           reinterpret_cast<const char*>(&message));
            message.type = next.type;
        }
    }

private:
    static xcb_window_t rootOf(xcb_connection_t* connection, xcb_window_t window)
    {
        const auto geometry = answer(
            xcb_get_geometry_reply(connection, xcb_get_geometry(connection, window), nullptr));
        return geometry ? geometry->root : xcb_window_t{XCB_WINDOW_NONE};
    }

    xcb_client_message_event_t clientMessage(std::string_view type, std::uint8_t format) const
    {
        const auto atom = answer(xcb_intern_atom_reply(
            m_connection,
            xcb_intern_atom(m_connection, 0, static_cast<std::uint16_t>(type.size()), type.data()),
            nullptr));
        xcb_client_message_event_t message = {};
        message.response_type = XCB_CLIENT_MESSAGE;
        message.format = format;
        message.window = m_window;
        message.type = atom ? atom->atom : xcb_atom_t{XCB_ATOM_NONE};
        return message;
    }

    xcb_connection_t* m_connection;
    xcb_window_t m_window;
    xcb_window_t m_root;
};

/// The time of the X server that a startup id ends with; 0 when it has none.
xcb_timestamp_t timeOf(const QString& startupID)
{
    constexpr QStringView mark = u"_TIME";
    const auto place = startupID.lastIndexOf(mark);
    return place < 0 ? 0 : QStringView(startupID).mid(place + mark.size()).toUInt();
}

} // namespace

void WindowActivation::bringForward(QWidget& window, const ActivationToken& token)
{
    window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    window.show();
    window.raise();
    const auto* const x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    // The off-screen platform has the interface, too, but no X server behind it.
    if (auto* const connection = x11 ? x11->connection() : nullptr) {
        // Qt would name the time of the last event it saw, which is older than the launch.
        const X11Window native(connection, static_cast<xcb_window_t>(window.winId()));
        native.activate(timeOf(token.startupID));
        if (!token.startupID.isEmpty()) {
            native.endStartup(token.startupID.toUtf8());
        }
        xcb_flush(connection);
        return;
    }
    if (!token.activationToken.isEmpty()) {
        // Where Qt looks for it.
        qputenv("XDG_ACTIVATION_TOKEN", token.activationToken.toUtf8());
    }
    window.activateWindow();
}
