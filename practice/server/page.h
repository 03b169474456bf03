// What the page sends for one request: its body, and how it may go wrong.
#pragma once

#include <chrono>
#include <cstddef>
#include <string>

namespace tarn::practice {

enum class Ending {
    Whole,
    Within,           // the connection closes after half the body
    Before,           // the connection closes without a byte
    ResetBefore,      // the connection is reset without a byte,
    ResetWithinHead,  // after some of the head,
    ResetWithinBody   // after half the body
};

inline constexpr int notFound = 404;
inline constexpr int serverError = 500;

struct Page {
    Page(std::string text) : body(std::move(text)) {}  // NOLINT(google-explicit-constructor)

    std::string body;
    std::string contentType = {};  // empty: that of every answer
    int status = 200;
    Ending ending = Ending::Whole;
    std::chrono::milliseconds wait{0};  // before anything is sent
    std::size_t blanksBehind = 0;       // sent after the body
};

}  // namespace tarn::practice
