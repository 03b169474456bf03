// The practice server's network side: the one page, GET only.
#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "practice/server/page.h"

namespace tarn::practice {

inline constexpr std::string_view pagePath = "/Kestomain/TarnEmissao.asp";

class HttpFront {
public:
    // Gives the page for a query text, and throws where it can't.
    using Answer = std::function<Page(std::string_view rawQuery)>;

    // A connection that hasn't sent its whole request after this time is closed, be it the first
    // one or the next.
    static constexpr std::chrono::seconds usualRequestTime{10};

    HttpFront(Answer answer, std::string contentType,
              std::chrono::milliseconds requestTime = usualRequestTime);
    ~HttpFront();
    HttpFront(const HttpFront&) = delete;
    HttpFront& operator=(const HttpFront&) = delete;

    // The port bound; 0 asks for any free one. Throws std::runtime_error, with a
    // text for the user, for a bad address or a port that can't be had.
    int bind(const std::string& address, int port);
    void serve();  // blocks until stop()
    // From any other thread; waits for a serve() that is about to begin. Ends the
    // waiting of pages that are to be late, and of requests that aren't there yet.
    void stop();

private:
    struct State;
    std::unique_ptr<State> state_;
};

}  // namespace tarn::practice
