#include "practice/server/work_threads.h"

#include <system_error>
#include <utility>

namespace tarn::practice {

void WorkThreads::post(std::function<void()> task) {
    const std::lock_guard lock(mutex_);
    tasks_.push_back(std::move(task));
    if (tasks_.size() > idle_ && threads_.size() < most_) {
        makeThread();
    }
    wakeUp_.notify_one();
}

// With the mutex held.
void WorkThreads::makeThread() {
    try {
        threads_.emplace_back([this] { work(); });
    } catch (const std::system_error&) {
        // The machine gives no more threads: those that are there take it in turn.
        if (threads_.empty()) {
            tasks_.pop_back();
            throw;
        }
    }
}

void WorkThreads::end() {
    {
        const std::lock_guard lock(mutex_);
        ending_ = true;
    }
    wakeUp_.notify_all();
    for (std::thread& thread : threads_) {
        thread.join();
    }
    threads_.clear();
}

void WorkThreads::work() {
    for (;;) {
        std::unique_lock lock(mutex_);
        ++idle_;
        wakeUp_.wait(lock, [this] { return ending_ || !tasks_.empty(); });
        --idle_;
        if (tasks_.empty()) {
            return;
        }
        const std::function<void()> task = std::move(tasks_.front());
        tasks_.pop_front();
        lock.unlock();
        task();
    }
}

}  // namespace tarn::practice
