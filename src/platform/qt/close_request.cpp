#include "platform/qt/close_request.h"

#include <QApplication>

#ifdef Q_OS_WIN
#include <windows.h>
#elif defined(TARN_WITH_XCB)
#include <xcb/xcb.h>

#include <cstdlib>
#include <memory>
#include <string_view>
#endif

namespace tarn {
namespace {

#ifdef Q_OS_WIN

bool isCloseOf(WId window, const QByteArray& type, const void* message) {
    const auto* event = static_cast<const MSG*>(message);
    return type == "windows_generic_MSG" && event->message == WM_CLOSE &&
           event->hwnd == reinterpret_cast<HWND>(window);
}

#elif defined(TARN_WITH_XCB)

struct FreeReply {
    void operator()(xcb_intern_atom_reply_t* reply) const { std::free(reply); }
};

xcb_atom_t atom(xcb_connection_t* connection, std::string_view name) {
    const auto asked =
        xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(name.size()), name.data());
    const std::unique_ptr<xcb_intern_atom_reply_t, FreeReply> reply(
        xcb_intern_atom_reply(connection, asked, nullptr));
    return reply == nullptr ? xcb_atom_t(XCB_ATOM_NONE) : reply->atom;
}

struct Atoms {
    xcb_atom_t protocols;
    xcb_atom_t deleteWindow;
};

const Atoms& atoms() {
    static const Atoms known = [] {
        const auto* display = qApp->nativeInterface<QNativeInterface::QX11Application>();
        xcb_connection_t* connection = display->connection();
        return Atoms{atom(connection, "WM_PROTOCOLS"), atom(connection, "WM_DELETE_WINDOW")};
    }();
    return known;
}

bool isCloseOf(WId window, const QByteArray& type, const void* message) {
    if (type != "xcb_generic_event_t") {
        return false;
    }
    constexpr unsigned sentFlag = 0x80;
    constexpr unsigned longs = 32;
    const auto* event = static_cast<const xcb_client_message_event_t*>(message);
    return (event->response_type & ~sentFlag) == XCB_CLIENT_MESSAGE && event->format == longs &&
           event->window == window && event->type == atoms().protocols &&
           event->data.data32[0] == atoms().deleteWindow;
}

#else

bool isCloseOf(WId /*window*/, const QByteArray& /*type*/, const void* /*message*/) {
    return false;
}

#endif

}  // namespace

CloseRequest::CloseRequest(QWidget& window) : window_(&window) {
    qApp->installNativeEventFilter(this);
}

CloseRequest::~CloseRequest() {
    if (qApp != nullptr) {
        qApp->removeNativeEventFilter(this);
    }
}

// A window that hasn't been shown has no native one yet, and asking for it would make one.
bool CloseRequest::asksToClose(const QByteArray& type, const void* message) const {
    return window_ != nullptr && window_->testAttribute(Qt::WA_WState_Created) &&
           isCloseOf(window_->internalWinId(), type, message);
}

// From the event loop, as Qt itself would have it.
bool CloseRequest::nativeEventFilter(const QByteArray& type, void* message, qintptr* /*result*/) {
    const QWidget* modal = QApplication::activeModalWidget();
    if (modal != nullptr && modal != window_ && asksToClose(type, message)) {
        QMetaObject::invokeMethod(window_, &QWidget::close, Qt::QueuedConnection);
    }
    return false;
}

}  // namespace tarn
