#include "notes/layout.h"

#include <gtest/gtest.h>

#include "tests/notes/small_form.h"

namespace tarn::test {
namespace {

using namespace notes;
using enum notes::Source;

TEST(Layout, AnEstablishmentMayHaveAFormOfItsOwn) {
    static constexpr Form first;
    static constexpr Form second;
    constexpr Layout layout{"X", &first, 3621, &second};
    EXPECT_EQ(&layout.formFor(3621), &first);
    EXPECT_EQ(&layout.formFor(3622), &second);
    constexpr Layout plain{.name = "Y", .form = &first};
    EXPECT_EQ(&plain.formFor(3621), &first);
}

}  // namespace
}  // namespace tarn::test
