// A server that costs nothing: the answer is already there.
#pragma once

#include <string>

#include "platform/http_loader.h"
#include "tests/support/test_environment.h"

namespace tarn::bench {

class AnswerAtHand : public HttpLoader {
public:
    HttpAnswer get(const std::string& /*address*/) override { return {true, *answer_}; }
    // Must outlive the requests.
    void setAnswer(const std::string& answer) { answer_ = &answer; }

private:
    const std::string* answer_ = nullptr;
};

// The seams of the tests over that server.
inline Environment environmentOver(AnswerAtHand& server, test::TestEnvironment& seams) {
    return {.http = server,
            .spooler = seams.spooler,
            .printer = seams.printer,
            .boxes = seams.boxes,
            .clock = seams.clock,
            .machine = seams.machine,
            .baseUrl = "http://servidor/p.asp?"};
}

}  // namespace tarn::bench
