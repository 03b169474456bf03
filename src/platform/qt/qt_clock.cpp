#include "platform/qt/qt_clock.h"

#include <QDate>
#include <QTime>

namespace tarn {

Date QtClock::today() {
    const QDate now = QDate::currentDate();
    return {now.day(), now.month(), now.year()};
}

TimeOfDay QtClock::timeOfDay() {
    const QTime now = QTime::currentTime();
    return {.hour = now.hour(), .minute = now.minute()};
}

}  // namespace tarn
