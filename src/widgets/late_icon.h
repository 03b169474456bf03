// Icons that are made when they are first drawn, and not before: what draws one loads the
// toolkit's readers of pictures.
#pragma once

#include <QIcon>
#include <functional>

namespace tarn {

QIcon lateIcon(std::function<QIcon()> make);

}  // namespace tarn
