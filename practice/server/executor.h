// One thread that does tasks one after the other: a database connection may be
// used only by the thread that made it.
#pragma once

#include <future>
#include <memory>
#include <type_traits>
#include <utility>

#include "practice/server/work_threads.h"

namespace tarn::practice {

class Executor {
public:
    // The thread is made here: run() can't fail for want of one.
    Executor() {
        run([] {});
    }

    // Blocks until the task is done; what it throws is thrown here.
    template <class Task>
    std::invoke_result_t<Task&> run(Task task) {
        using Packaged = std::packaged_task<std::invoke_result_t<Task&>()>;
        auto packaged = std::make_shared<Packaged>(std::move(task));
        auto result = packaged->get_future();
        thread_.post([packaged] { (*packaged)(); });
        return result.get();
    }

private:
    WorkThreads thread_{1};
};

}  // namespace tarn::practice
