// A thread for each connection that is open at the same time, so that the silent ones
// keep nobody waiting. Made as they are needed and kept for the next connection.
#pragma once

#include <httplib.h>

#include <condition_variable>
#include <cstddef>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>
#include <vector>

namespace tarn::practice {

class ConnectionThreads : public httplib::TaskQueue {
public:
    static constexpr std::size_t mostThreads = 512;  // more connections wait for one

    void enqueue(std::function<void()> task) override;
    void shutdown() override;  // after the tasks already taken

private:
    void work();

    std::mutex mutex_;
    std::condition_variable wakeUp_;
    std::deque<std::function<void()>> tasks_;
    std::size_t idle_ = 0;
    bool ending_ = false;
    std::vector<std::thread> threads_;
};

}  // namespace tarn::practice
