#include "platform/qt/blocking_loader.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QScopedValueRollback>
#include <future>
#include <stdexcept>
#include <thread>

#include "platform/qt/wait_cursor.h"

namespace tarn {

template <typename Work>
auto BlockingLoader::awaited(const Work& work) -> decltype(work()) {
    if (closed_) {
        return {};
    }
    if (underWay_) {
        throw std::logic_error("a second request while one is under way");
    }
    const QScopedValueRollback<bool> underWay(underWay_, true);
    const WaitCursor hourglass;
    const ShutGate shut(gate_);
    QEventLoop loop;
    std::packaged_task<decltype(work())()> request(work);
    auto answer = request.get_future();
    std::jthread worker([&request, &loop] {
        request();
        QMetaObject::invokeMethod(&loop, &QEventLoop::quit, Qt::QueuedConnection);
    });
    loop.exec();
    worker.join();
    QCoreApplication::processEvents();  // what came in with the answer came in time
    return answer.get();
}

HttpAnswer BlockingLoader::get(const std::string& address) {
    return awaited([&] { return loader_.get(address); });
}

bool BlockingLoader::load(const std::string& address, const BodyReader& read) {
    return awaited([&] { return loader_.load(address, read); });
}

void BlockingLoader::close() {
    closed_ = true;
    loader_.close();
}

}  // namespace tarn
