#include "desk/report.h"

#include <gtest/gtest.h>

#include <QPlainTextEdit>
#include <stdexcept>

#include "runtime/runtime_error.h"
#include "tests/support/modal_steps.h"
#include "tests/support/user.h"

namespace tarn::test {
namespace {

constexpr char unexpected[] =
    "Erro em tempo de execução:\n\nO programa encontrou um erro que não esperava.";

class ReportTest : public testing::Test {
protected:
    // The box of the report, read and closed.
    void expectReport(const char* text) {
        modals.then("MessageBox", [text](QWidget& box) {
            EXPECT_EQ(box.windowTitle(), QStringLiteral("TarnEmissao"));
            EXPECT_EQ(named<QPlainTextEdit>(box, "text").toPlainText(), QString::fromUtf8(text));
            key(box, Qt::Key_Return);
        });
    }

    ModalSteps modals;
};

TEST_F(ReportTest, AProgramWithoutAnErrorReturnsItsStatus) {
    EXPECT_EQ(reportingErrors([] { return 7; }), 7);
    EXPECT_EQ(modals.taken(), 0);
}

TEST_F(ReportTest, AnErrorBeforeTheEventLoopIsReportedLikeAnyOther) {
    expectReport("Erro em tempo de execução '91':\n\nFalta um dado na resposta do servidor.");
    EXPECT_EQ(
        reportingErrors([]() -> int { throw RuntimeError(RuntimeErrorCode::ObjectVariable); }), 3);
    expectReport(unexpected);
    EXPECT_EQ(reportingErrors([]() -> int { throw std::runtime_error("curl"); }), 3);
    expectReport(unexpected);
    EXPECT_EQ(reportingErrors([]() -> int { throw 5; }), 3);
}

struct FailingEnd {
    ~FailingEnd() noexcept(false) { throw RuntimeError(RuntimeErrorCode::TypeMismatch); }
};
struct Screen {
    FailingEnd part;
    ~Screen() noexcept {}  // as every destructor whose members can't throw
};

TEST_F(ReportTest, AnErrorInADestructorIsReportedLikeAnyOther) {
    const auto fail = [this] {
        reportUncaughtErrors();
        expectReport("Erro em tempo de execução '13':\n\nHá um texto onde era esperado um número.");
        const Screen screen;
    };
    EXPECT_EXIT(fail(), testing::ExitedWithCode(3),
                "^tarnemissao: Erro em tempo de execução '13': Há um texto");
}

}  // namespace
}  // namespace tarn::test
