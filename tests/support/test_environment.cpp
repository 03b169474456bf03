#include "tests/support/test_environment.h"

namespace tarn::test {

TestEnvironment::TestEnvironment() = default;
TestEnvironment::~TestEnvironment() = default;

Environment TestEnvironment::withSeams(HttpLoader& server, Spooler& paper, Printer& pages) {
    return {.http = server,
            .spooler = paper,
            .printer = pages,
            .boxes = boxes,
            .clock = clock,
            .machine = machine,
            .baseUrl = environment.baseUrl,
            .acts = &acts};
}

}  // namespace tarn::test
