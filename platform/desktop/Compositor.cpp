#include "platform/desktop/Compositor.h"

#include <QByteArray>
#include <QGuiApplication>

#include <xcb/xcb.h>

#include <cstdlib>
#include <memory>

namespace Quorbel::Compositor {

namespace {

// A compositing manager owns this selection of its screen.
bool hasOwner(xcb_connection_t* connection, const QByteArray& selection)
{
    const auto named = xcb_intern_atom(connection, 0, uint16_t(selection.size()), selection.constData());
    const std::unique_ptr<xcb_intern_atom_reply_t, decltype(&std::free)> atom(
        xcb_intern_atom_reply(connection, named, nullptr), &std::free);
    if (!atom)
        return false;
    const auto asked = xcb_get_selection_owner(connection, atom->atom);
    const std::unique_ptr<xcb_get_selection_owner_reply_t, decltype(&std::free)> owner(
        xcb_get_selection_owner_reply(connection, asked, nullptr), &std::free);
    return owner && owner->owner != XCB_NONE;
}

}  // namespace

bool isRunning()
{
    const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return !x11 || hasOwner(x11->connection(), "_NET_WM_CM_S0");
}

}  // namespace Quorbel::Compositor
