// Threads that do tasks in the order in which these come.
#pragma once

#include <condition_variable>
#include <cstddef>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>
#include <vector>

namespace tarn::practice {

class WorkThreads {
public:
    // A thread is made when a task finds none idle, up to so many; then tasks wait.
    explicit WorkThreads(std::size_t most) : most_(most) {}
    ~WorkThreads() { end(); }
    WorkThreads(const WorkThreads&) = delete;
    WorkThreads& operator=(const WorkThreads&) = delete;

    // Throws std::system_error, and leaves the task, where the machine gives not one thread.
    void post(std::function<void()> task);
    void end();  // after the tasks already taken

private:
    void makeThread();
    void work();

    std::size_t most_;
    std::mutex mutex_;
    std::condition_variable wakeUp_;
    std::deque<std::function<void()>> tasks_;
    std::size_t idle_ = 0;
    bool ending_ = false;
    std::vector<std::thread> threads_;
};

}  // namespace tarn::practice
