#include "common/boxes.h"

#include <gmock/gmock.h>

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
    EXPECT_THAT(env.boxes.shown, testing::ElementsAre(Box{"a", BoxIcon::None, "TarnEmissao"},
                                                      Box{"b", BoxIcon::Information, "TArn"},
                                                      Box{"c", BoxIcon::Information, "Atenção"},
                                                      Box{"d", BoxIcon::Exclamation, "TarnEmissao"},
                                                      Box{"e", BoxIcon::Exclamation, "Aviso"}));
}

TEST(Boxes, AReportedErrorSaysWhatToDo) {
    TestEnvironment env;
    reportError(env.environment, RuntimeError(RuntimeErrorCode::TypeMismatch), "Tente de novo.");
    ASSERT_EQ(env.boxes.shown.size(), 1U);
    const Box& box = env.boxes.shown[0];
    EXPECT_EQ(box.icon, BoxIcon::Critical);
    EXPECT_EQ(box.title, "TarnEmissao");
    EXPECT_TRUE(box.text.starts_with("Erro em tempo de execução '13':\r\r")) << box.text;
    EXPECT_TRUE(box.text.ends_with("\r\rTente de novo.")) << box.text;
}

}  // namespace
}  // namespace tarn::test
