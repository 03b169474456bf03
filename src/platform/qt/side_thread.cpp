#include "platform/qt/side_thread.h"

#include <QEventLoop>
#include <QScopedValueRollback>
#include <chrono>
#include <future>
#include <memory>

#include "platform/qt/wait_cursor.h"

namespace tarn {
namespace {

// So short a stop nobody sees.
constexpr std::chrono::milliseconds unseen{60};

}  // namespace

SideThread::SideThread() {
    pool_.setMaxThreadCount(1);
    pool_.setExpiryTimeout(-1);
}

void SideThread::run(const std::function<void()>& work) {
    const auto task = std::make_shared<std::packaged_task<void()>>(work);
    std::future<void> done = task->get_future();
    const int number = ++number_;
    pool_.start([this, task, number] {
        (*task)();
        QMetaObject::invokeMethod(
            &here_, [this, number] { end(number); }, Qt::QueuedConnection);
    });
    if (done.wait_for(unseen) != std::future_status::ready) {
        wait();
    }
    done.get();
}

void SideThread::wait() {
    const WaitCursor hourglass;
    const ShutGate shut(gate_);
    QEventLoop loop;
    const QScopedValueRollback<QEventLoop*> waiting(waiting_, &loop);
    loop.exec();
}

// Word of work that was over sooner comes too late for anybody.
void SideThread::end(int number) {
    if (waiting_ != nullptr && number == number_) {
        waiting_->quit();
    }
}

}  // namespace tarn
