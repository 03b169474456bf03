// Seam: one blocking HTTP GET.
#pragma once

#include <cstddef>
#include <string>

namespace tarn {

inline constexpr std::size_t largestAnswer = std::size_t{16} * 1024 * 1024;  // bytes

struct HttpAnswer {
    bool loaded = false;  // false: unreachable, refused, HTTP error, body cut or too large
    std::string body;     // bytes as they came, content encoding undone
};

class HttpLoader {
public:
    virtual ~HttpLoader() = default;
    // `address` is the plain text of the whole URL (UTF-8). The loader percent-encodes
    // what may not be in a request line. The result says whether it failed; an
    // exception means that something unexpected went wrong.
    virtual HttpAnswer get(const std::string& address) = 0;

    // From any thread, for good: the request under way, if it can be given up, and all
    // later ones are failed loads at once.
    virtual void close() {}
};

}  // namespace tarn
