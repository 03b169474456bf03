// How often, and when, a program under load is killed. TARN_KILLS tells how often, a few
// times where it is left out; TARN_KILL_SEED chooses other moments.
#pragma once

#include <QByteArray>
#include <chrono>
#include <cstdint>
#include <functional>
#include <random>
#include <thread>

namespace tarn::test {

inline int killsWanted(int usual = 4) {
    const QByteArray count = qgetenv("TARN_KILLS");
    return count.isEmpty() ? usual : count.toInt();
}

class KillMoments {
public:
    // From 0 to `most`.
    std::int64_t upTo(std::int64_t most) {
        return std::uniform_int_distribution<std::int64_t>(0, most)(random_);
    }
    // Between nothing and so long after the call; any moment will do.
    void await(std::chrono::microseconds most) {
        std::this_thread::sleep_for(std::chrono::microseconds(upTo(most.count())));
    }
    // Until `done` has come to any number up to `most` and a moment beyond: on a slow machine
    // as much is done as on a quick one.
    void await(const std::function<std::int64_t()>& done, std::int64_t most,
               std::chrono::microseconds beyond) {
        const std::int64_t wanted = upTo(most);
        while (done() < wanted) {
            std::this_thread::sleep_for(std::chrono::microseconds(200));
        }
        await(beyond);
    }

private:
    std::mt19937_64 random_{qgetenv("TARN_KILL_SEED").toULongLong() + 1};
};

}  // namespace tarn::test
