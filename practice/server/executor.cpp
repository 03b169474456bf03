#include "practice/server/executor.h"

namespace tarn::practice {

Executor::Executor() : thread_([this] { work(); }) {}

Executor::~Executor() {
    {
        const std::lock_guard lock(mutex_);
        ending_ = true;
    }
    wakeUp_.notify_one();
    thread_.join();
}

void Executor::post(std::function<void()> task) {
    {
        const std::lock_guard lock(mutex_);
        tasks_.push_back(std::move(task));
    }
    wakeUp_.notify_one();
}

void Executor::work() {
    for (;;) {
        std::unique_lock lock(mutex_);
        wakeUp_.wait(lock, [this] { return ending_ || !tasks_.empty(); });
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
