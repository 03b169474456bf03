// A request that is under way before it is asked for.
#pragma once

#include <future>
#include <string>

#include "platform/http_loader.h"

namespace tarn {

// Sends the program's first request at once, on a thread of its own; whoever asks for it later
// waits for what is left of it. Any other request goes on to the real loader.
class EarlyLoader : public HttpLoader {
public:
    EarlyLoader(HttpLoader& real, std::string firstAddress);
    // Gives the first request up if it is under way still.
    ~EarlyLoader() override;
    EarlyLoader(const EarlyLoader&) = delete;
    EarlyLoader& operator=(const EarlyLoader&) = delete;

    HttpAnswer get(const std::string& address) override;
    void close() override { real_.close(); }

private:
    HttpLoader& real_;
    std::string firstAddress_;
    std::future<HttpAnswer> first_;
};

}  // namespace tarn
