// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/widgets/Composition.h"

#include "toolbar/Latin1.h"

#include <QGuiApplication>

#ifdef MRTOOLBAR_HAS_XCB
#include <xcb/xcb.h>

#include <cstdlib>
#include <memory>
#endif

namespace {

constexpr QLatin1String xcbPlatform = latin1("xcb");

#ifdef MRTOOLBAR_HAS_XCB

template <typename Reply>
using ReplyPointer = std::unique_ptr<Reply, decltype(&std::free)>;

xcb_atom_t existingAtom(xcb_connection_t *connection, const QByteArray &name)
{
    constexpr bool onlyIfExists = true;
    const auto cookie = xcb_intern_atom(connection, onlyIfExists,
                                        static_cast<std::uint16_t>(name.size()), name.constData());
    const ReplyPointer<xcb_intern_atom_reply_t> reply(
        xcb_intern_atom_reply(connection, cookie, nullptr), &std::free);
    return reply ? reply->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
}

bool hasOwner(xcb_connection_t *connection, xcb_atom_t selection)
{
    const ReplyPointer<xcb_get_selection_owner_reply_t> reply(
        xcb_get_selection_owner_reply(connection, xcb_get_selection_owner(connection, selection),
                                      nullptr),
        &std::free);
    return reply && reply->owner != XCB_WINDOW_NONE;
}

/** A compositing manager owns the selection that is named after its screen. */
bool isServerComposed()
{
    int screen = 0;
    // Qt's own connection is not to be had in the same way from both of its versions.
    const std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)> connection(
        xcb_connect(nullptr, &screen), &xcb_disconnect);
    if (xcb_connection_has_error(connection.get()))
        return false;

    const xcb_atom_t selection =
        existingAtom(connection.get(), "_NET_WM_CM_S" + QByteArray::number(screen));
    return selection != XCB_ATOM_NONE && hasOwner(connection.get(), selection);
}

#else

bool isServerComposed()
{
    return false;
}

#endif

} // namespace

bool Composition::isActive()
{
    const QString platform = QGuiApplication::platformName();
    if (platform == xcbPlatform)
        return isServerComposed();
    return platform.startsWith(QLatin1String("wayland")) || platform == QLatin1String("windows")
           || platform == QLatin1String("cocoa");
}

bool Composition::lacksShadows()
{
    // Windows and macOS draw them; on Wayland no window can be put around another one.
    return QGuiApplication::platformName() == xcbPlatform;
}
