#include "common/boxes.h"

#include <gtest/gtest.h>

#include "runtime/runtime_error.h"
#include "tests/support/test_environment.h"

namespace tarn::test {
namespace {

TEST(Boxes, EachHasItsIconAndUsualTitle) {
    TestEnvironment env;
    tell(env.environment, "a");
    inform(env.environment, "b");
    inform(env.environment, "c", box_title::attention);
    warn(env.environment, "d");
    warn(env.environment, "e", box_title::notice);
    EXPECT_EQ(env.boxes.shown,
              (Boxes{Box{"a", BoxIcon::None, "TarnEmissao"}, Box{"b", BoxIcon::Information, "TArn"},
                     Box{"c", BoxIcon::Information, "Atenção"},
                     Box{"d", BoxIcon::Exclamation, "TarnEmissao"},
                     Box{"e", BoxIcon::Exclamation, "Aviso"}}));
}

TEST(Boxes, AnErrorThatEndsOnlyTheActionIsReportedAsAnyOther) {
    TestEnvironment env;
    reportError(env.environment, RuntimeError(RuntimeErrorCode::TypeMismatch, "\"1a\""));
    EXPECT_EQ(env.boxes.shown, (Boxes{Box{"Erro em tempo de execução '13':\r\r"
                                          "Há um texto onde era esperado um número: \"1a\".",
                                          BoxIcon::Critical, "TarnEmissao"}}));
}

}  // namespace
}  // namespace tarn::test
