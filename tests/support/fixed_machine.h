// A clock that stands still and a machine that counts what is asked of it.
#pragma once

#include <string>
#include <vector>

#include "platform/clock.h"
#include "platform/machine.h"

namespace tarn::test {

class FixedClock : public Clock {
public:
    explicit FixedClock(Date date = {15, 3, 2012}) : date_(date) {}

    Date today() override { return date_; }
    TimeOfDay timeOfDay() override { return {.hour = 10, .minute = 32}; }
    void set(const Date& date) { date_ = date; }

private:
    Date date_;
};

class FixedMachine : public Machine {
public:
    bool refusesDateFormat = false;
    std::string directory = "/sistema";

    int beeps = 0;
    std::vector<std::string> dateFormats;  // every format asked for, refused ones included

    bool setShortDateFormat(const std::string& format) override {
        dateFormats.push_back(format);
        return !refusesDateFormat;
    }

    std::string systemDirectory() override { return directory; }
    void beep() override { ++beeps; }
};

}  // namespace tarn::test
