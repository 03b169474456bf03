// What a test of each form is called by.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "tests/notes/form_facts.h"

namespace tarn::test {

inline std::string formName(const testing::TestParamInfo<FormFacts>& info) {
    return info.param.name;
}

}  // namespace tarn::test
