// A request that holds the program until it is answered and still lets its
// windows repaint.
#pragma once

#include "platform/http_loader.h"
#include "platform/qt/input_gate.h"

namespace tarn {

// Runs the real loader on a thread of its own while the calling (GUI) thread turns
// its event loop behind a shut InputGate, hourglass on every window. What the real
// loader throws is thrown here.
class BlockingLoader : public HttpLoader {
public:
    explicit BlockingLoader(HttpLoader& loader) : loader_(loader) {}

    HttpAnswer get(const std::string& address) override;
    // A body may take a while to read: that is done on the thread too.
    bool load(const std::string& address, const BodyReader& read) override;

    // The program is ending: the request under way is given up, and nothing more is sent.
    void close() override;

private:
    // The result of `work`, done on a thread of its own; an empty one once closed.
    template <typename Work>
    auto awaited(const Work& work) -> decltype(work());

    HttpLoader& loader_;
    InputGate& gate_ = InputGate::ofApplication();
    bool underWay_ = false;
    bool closed_ = false;
};

}  // namespace tarn
