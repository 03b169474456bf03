#include "desk/desk_application.h"

#include <QPushButton>

#include "tests/support/screen_test.h"

namespace tarn::test {
namespace {

class DeskApplicationTest : public ScreenTest {
protected:
    // A click whose handler lets this out.
    template <typename Error>
    void clickRaising(const Error& error) {
        QPushButton button;
        QObject::connect(&button, &QPushButton::clicked, [&] { throw error; });
        QTest::mouseClick(&button, Qt::LeftButton);
    }
};

TEST_F(DeskApplicationTest, ReportsTheRunTimesErrorOnceAndEndsWithThree) {
    clickRaising(RuntimeError(RuntimeErrorCode::TypeMismatch));
    clickRaising(RuntimeError(RuntimeErrorCode::Overflow));
    EXPECT_THAT(boxes.shown, testing::ElementsAre(Box{
                                 reportText(RuntimeError(RuntimeErrorCode::TypeMismatch), false),
                                 BoxIcon::Critical}));
    EXPECT_EQ(end.status(), 3);
}

TEST_F(DeskApplicationTest, ReportsANoteThatMayExist) {
    const RuntimeError error(RuntimeErrorCode::ObjectVariable);
    clickRaising(ErrorAfterNote(error));
    EXPECT_THAT(boxes.texts(), testing::ElementsAre(reportText(error, true)));
}

TEST_F(DeskApplicationTest, ReportsAnyOtherException) {
    clickRaising(std::runtime_error("sem memória"));
    ASSERT_EQ(boxes.shown.size(), 1U);
    EXPECT_EQ(boxes.shown[0].icon, BoxIcon::Critical);
    EXPECT_NE(boxes.shown[0].text.find("sem memória"), std::string::npos);
    EXPECT_EQ(end.status(), 3);
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
