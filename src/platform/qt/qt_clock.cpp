#include "platform/qt/qt_clock.h"

#include <QDate>

namespace tarn {

Date QtClock::today() {
    const QDate now = QDate::currentDate();
    return {now.day(), now.month(), now.year()};
}

}  // namespace tarn
