// Seam: one blocking HTTP GET, and the reading of what it brought.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

namespace tarn {

inline constexpr std::size_t largestAnswer = std::size_t{16} * 1024 * 1024;  // bytes

struct HttpAnswer {
    bool loaded = false;  // false: unreachable, refused, HTTP error, body cut or too large
    std::string body;     // bytes as they came, content encoding undone
};

// Takes the body of an answer; false for one that is none.
using BodyReader = std::function<bool(std::string_view body)>;

class HttpLoader {
public:
    virtual ~HttpLoader() = default;
    // `address` is the plain text of the whole URL (UTF-8). The loader percent-encodes
    // what may not be in a request line. The result says whether it failed; an
    // exception means that something unexpected went wrong.
    virtual HttpAnswer get(const std::string& address) = 0;

    // The same, and the body read: false also when `read` takes no such body. Both happen
    // on one thread, which needn't be the caller's; the caller waits. What `read` throws
    // is thrown.
    virtual bool load(const std::string& address, const BodyReader& read) {
        const HttpAnswer answer = get(address);
        return answer.loaded && read(answer.body);
    }

    // From any thread, for good: the request under way, if it can be given up, and all
    // later ones are failed loads at once.
    virtual void close() {}
};

}  // namespace tarn
