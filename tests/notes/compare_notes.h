// Printed jobs against expected ones.
#pragma once

#include <string>
#include <vector>

#include "tests/notes/expected_note.h"

namespace tarn::test {

// Fatal failure at the first call that differs, with the field it differs in.
void compareJob(const std::vector<ExpectedCall>& expected, const std::vector<std::string>& writes);

}  // namespace tarn::test
