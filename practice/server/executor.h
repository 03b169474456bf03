// One thread that does tasks one after the other: a database connection may be
// used only by the thread that made it.
#pragma once

#include <condition_variable>
#include <deque>
#include <functional>
#include <future>
#include <memory>
#include <mutex>
#include <thread>
#include <type_traits>
#include <utility>

namespace tarn::practice {

class Executor {
public:
    Executor();
    ~Executor();  // after the tasks already taken
    Executor(const Executor&) = delete;
    Executor& operator=(const Executor&) = delete;

    // Blocks until the task is done; what it throws is thrown here.
    template <class Task>
    std::invoke_result_t<Task&> run(Task task) {
        using Packaged = std::packaged_task<std::invoke_result_t<Task&>()>;
        auto packaged = std::make_shared<Packaged>(std::move(task));
        auto result = packaged->get_future();
        post([packaged] { (*packaged)(); });
        return result.get();
    }

private:
    void post(std::function<void()> task);
    void work();

    std::mutex mutex_;
    std::condition_variable wakeUp_;
    std::deque<std::function<void()>> tasks_;
    bool ending_ = false;
    std::thread thread_;
};

}  // namespace tarn::practice
