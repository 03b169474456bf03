// The window manager's wish to close a window that stands behind a modal one. Qt drops it;
// the main window's ends the program whatever stands in front (decision D115).
#pragma once

#include <QAbstractNativeEventFilter>
#include <QPointer>
#include <QWidget>

namespace tarn {

// Closes the window then. Where the window system gives no such message (Wayland) a modal
// window keeps its main window open.
class CloseRequest : public QAbstractNativeEventFilter {
public:
    explicit CloseRequest(QWidget& window);
    ~CloseRequest() override;
    CloseRequest(const CloseRequest&) = delete;
    CloseRequest& operator=(const CloseRequest&) = delete;

    bool nativeEventFilter(const QByteArray& type, void* message, qintptr* result) override;

private:
    bool asksToClose(const QByteArray& type, const void* message) const;

    QPointer<QWidget> window_;
};

}  // namespace tarn
