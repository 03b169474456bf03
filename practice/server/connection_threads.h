// A thread for each connection that is open at the same time, so that the silent ones
// keep nobody waiting. Made as they are needed and kept for the next connection.
#pragma once

#include <httplib.h>

#include <cstddef>
#include <functional>
#include <utility>

#include "practice/server/work_threads.h"

namespace tarn::practice {

class ConnectionThreads : public httplib::TaskQueue {
public:
    static constexpr std::size_t mostThreads = 512;  // more connections wait for one

    void enqueue(std::function<void()> task) override { threads_.post(std::move(task)); }
    void shutdown() override { threads_.end(); }

private:
    WorkThreads threads_{mostThreads};
};

}  // namespace tarn::practice
