// Where a server may send a request on to.
#pragma once

#include <string>

namespace tarn {

// Whether `to` is an address of the server that was asked by `from`, or of its https door.
bool mayFollow(const std::string& from, const std::string& to);

// A page that has another address now.
class Moved {
public:
    // Notes that the page of `from` answered with `status` and sent to `to`. For good it has
    // moved only where the query stays the same, and the server says so or sends no
    // further than to the https door of the same page.
    void learn(const std::string& from, const std::string& to, long status);
    std::string addressNow(const std::string& address) const;

private:
    std::string from_;  // as far as the question mark
    std::string to_;
};

}  // namespace tarn
