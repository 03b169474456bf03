// Opening, fields, search and grid of FrmPesqDupli.
#include <QShortcut>

#include "bills/tela_de_duplicatas.h"

namespace tarn {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class FrmPesqDupliTest : public TelaDeDuplicatas {};

TEST_F(FrmPesqDupliTest, OpensWithItsLists) {
    comATela([&](QWidget& tela) {
        EXPECT_THAT(server.queries(), ElementsAre(pedeFiliais));
        EXPECT_TRUE(tela.isModal());
    });
    EXPECT_THAT(server.queries(), ElementsAre(pedeFiliais, pedeDaMesa));
    EXPECT_THAT(boxes.shown, IsEmpty());
}

}  // namespace
}  // namespace tarn
