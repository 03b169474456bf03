// What a screen shows of a window.
#pragma once

#include <QPixmap>
#include <QWidget>

namespace tarn {

// The window over its desk, where there is one, as the clerk sees both. Under an X server
// it is the screen itself, so that titles and frames are on it, once nothing on it moves
// any more: the event loop turns meanwhile. Elsewhere it is put together from the windows.
QPixmap photoOf(QWidget& window, QWidget* desk = nullptr);

}  // namespace tarn
