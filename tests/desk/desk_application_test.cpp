#include "desk/desk_application.h"

#include <QPushButton>

#include "tests/support/screen_test.h"
#include "tests/support/texts.h"

namespace tarn::test {
namespace {

class DeskApplicationTest : public ScreenTest {
protected:
    // A click whose handler lets this out.
    template <typename Error>
    void clickRaising(const Error& error) {
        QPushButton button;
        QObject::connect(&button, &QPushButton::clicked, [&] { throw error; });
        const QPointF place = QRectF(button.rect()).center();
        for (const auto& [type, held] : {std::pair(QEvent::MouseButtonPress, Qt::LeftButton),
                                         std::pair(QEvent::MouseButtonRelease, Qt::NoButton)}) {
            QMouseEvent event(type, place, place, Qt::LeftButton, held, Qt::NoModifier);
            QCoreApplication::sendEvent(&button, &event);
        }
    }
};

TEST_F(DeskApplicationTest, ReportsTheRunTimesErrorOnceAndEndsWithThree) {
    clickRaising(RuntimeError(RuntimeErrorCode::TypeMismatch));
    clickRaising(RuntimeError(RuntimeErrorCode::Overflow));
    EXPECT_EQ(
        boxes.shown,
        (Boxes{Box{reportText(RuntimeError(RuntimeErrorCode::TypeMismatch)), BoxIcon::Critical}}));
    EXPECT_EQ(end.status(), 3);
}

TEST_F(DeskApplicationTest, ReportsANoteThatMayExist) {
    const RuntimeError error(RuntimeErrorCode::ObjectVariable);
    clickRaising(ErrorAfterNote(error));
    EXPECT_EQ(boxes.texts(), (Texts{reportText(ErrorAfterNote(error))}));
}

TEST_F(DeskApplicationTest, ReportsAnyOtherExceptionWithoutItsOwnWords) {
    const std::out_of_range error("basic_string::substr");
    testing::internal::CaptureStderr();
    clickRaising(error);
    EXPECT_EQ(boxes.shown, (Boxes{Box{reportText(error), BoxIcon::Critical, "TarnEmissao"}}));
    EXPECT_EQ(end.status(), 3);
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "tarnemissao: Erro em tempo de execução: O programa encontrou um erro que não "
              "esperava. (basic_string::substr)\n");
}

TEST_F(DeskApplicationTest, TheReportIsALineOnTheErrorOutput) {
    testing::internal::CaptureStderr();
    clickRaising(RuntimeError(RuntimeErrorCode::TypeMismatch));
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "tarnemissao: Erro em tempo de execução '13': Há um texto onde era esperado um "
              "número.\n");
}

TEST_F(DeskApplicationTest, WhatFailsUnderTheReportIsNotReportedToo) {
    boxes.onShow = [this](const Box&) { clickRaising(RuntimeError(RuntimeErrorCode::Overflow)); };
    clickRaising(RuntimeError(RuntimeErrorCode::TypeMismatch));
    EXPECT_EQ(boxes.shown.size(), 1U);
    EXPECT_EQ(end.status(), 3);
}

TEST_F(DeskApplicationTest, ClosedUnderTheReportTheProgramStillEndsWithThree) {
    boxes.onShow = [this](const Box&) { end.endProgram(); };
    clickRaising(RuntimeError(RuntimeErrorCode::TypeMismatch));
    EXPECT_EQ(end.status(), 3);
}

TEST_F(DeskApplicationTest, ARoutineThatTheEndCameOverIsLeftWithoutAWord) {
    end.endProgram();
    clickRaising(ProgramEnded{});
    EXPECT_TRUE(boxes.shown.empty());
    EXPECT_EQ(end.status(), 0);
}

TEST_F(DeskApplicationTest, AfterTheEndNothingIsSent) {
    end.endProgram();
    EXPECT_FALSE(blocking.get("http://servidor/?x").loaded);
    EXPECT_TRUE(server.addresses.empty());
}

TEST_F(DeskApplicationTest, TheFirstEndCounts) {
    end.endProgram(3);
    end.endProgram(0);
    EXPECT_EQ(end.status(), 3);
}

}  // namespace
}  // namespace tarn::test
