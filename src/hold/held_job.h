// A raw job that is kept on the disk until somebody says what becomes of it.
#pragma once

#include <cstdint>
#include <string>

#include "platform/job_kind.h"

namespace tarn::hold {

enum class State : std::uint8_t {
    Held,
    HandingOver,  // the queue may or may not have it
    PassedOn,     // the queue has it
    Refused       // kept, and goes nowhere by itself
};

struct Job {
    int number = 0;  // in the order of arrival, from 1
    State state = State::Held;
    std::string name{};        // UTF-8, of the document or of its sender
    std::string source{};      // the file it was read from, empty for none
    std::string remark{};      // UTF-8, Portuguese; why it is as it is
    std::int64_t arrived = 0;  // milliseconds since 1970, UTC
    std::uintmax_t size = 0;   // bytes
    std::string queue{};       // that it was last handed to
    JobKind kind{};            // what it prints, as its sender told it
    int queueJob = 0;          // its number there, 0 while it has none
};

}  // namespace tarn::hold
