#include "platform/early_loader.h"

#include <utility>

namespace tarn {

EarlyLoader::EarlyLoader(HttpLoader& real, std::string firstAddress)
    : real_(real),
      firstAddress_(std::move(firstAddress)),
      first_(std::async(std::launch::async, [this] { return real_.get(firstAddress_); })) {}

EarlyLoader::~EarlyLoader() {
    if (first_.valid()) {
        real_.close();
        first_.wait();
    }
}

// The real loader takes one request at a time.
HttpAnswer EarlyLoader::get(const std::string& address) {
    if (first_.valid()) {
        if (address == firstAddress_) {
            return first_.get();
        }
        first_.wait();
        first_ = {};
    }
    return real_.get(address);
}

}  // namespace tarn
