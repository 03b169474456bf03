#include "tests/support/test_environment.h"

namespace tarn::test {

TestEnvironment::TestEnvironment() = default;
TestEnvironment::~TestEnvironment() = default;

}  // namespace tarn::test
