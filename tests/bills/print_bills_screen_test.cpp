// Printing from FrmPesqDupli, to a recording printer and to paper.
#include <gmock/gmock.h>

#include <QDir>
#include <QProcess>
#include <QProgressBar>
#include <QTemporaryDir>

#include "platform/qt/qt_printer.h"
#include "tests/bills/bill_screen_test.h"
#include "tests/support/texts.h"

namespace tarn::test {
namespace {

using testing::Contains;
using testing::Not;

class PrintBillsScreenTest : public BillScreenTest {
protected:
    static constexpr char acceptance[] =
        "text\t4.900\t12.100\tArial\t7\t1\tReconheço(cemos) a exatidão desta DUPLICATA DE VENDA "
        "MERCANTIL na importância acima, que pagarei(emos)";
    static constexpr char triplicateAcceptance[] =
        "text\t4.900\t12.100\tArial\t7\t1\tReconheço(cemos) a exatidão desta TRIPLICATA DE VENDA "
        "MERCANTIL na importância acima, que pagarei(emos)";

    void SetUp() override {
        BillScreenTest::SetUp();
        server = ScriptedLoader();
        server.on("sel_filiais", answers::rowset(""))
            .on("sel_dados_empresa",
                answers::rowset("<z:row NM_FIL='F' DC_RAZ_SOC_ETB='EMPRESA' NR_CGC_CPL='1'/>"));
    }
    static std::string line(int number, const char* kind = "1") {
        return "<z:row NR_DOC='" + std::to_string(number) + "' ID_TIP_DOC='" + kind +
               "' VL_PRN_DOC='10.5' NM_CLI_ETB='JOSÉ' PES_JUR='1' NR_CGC_CPL='7'/>";
    }
    void findBill(const std::string& lines) { server.on("sel_duplicata", answers::rowset(lines)); }
    void search(QWidget& screen, int kind = bill) {
        pickFrom(screen, "cboTpDocto", kind);
        type(screen, "txtDtVncAte", "31122012");
        click(screen, "cmdPesquisar");
        server.addresses.clear();
    }
    std::size_t pages() const {
        const std::vector<std::string> done = printer.lines();
        return static_cast<std::size_t>(std::ranges::count(done, "newpage"));
    }
    static std::string numberOnPage(int number) {
        return "text\t10.900\t5.000\tArial\t9\t1\t" + std::to_string(number);
    }
};

TEST_F(PrintBillsScreenTest, TheTickedRowsInTheGridsOrder) {
    findBill(line(1) + line(2) + line(3));
    withScreen([&](QWidget& screen) {
        search(screen);
        clickCell(screen, 3, 1);
        clickCell(screen, 1, 1);
        click(screen, "cmdImprimir");
        EXPECT_EQ(server.queries(), (Texts{deskQuery}));
        EXPECT_TRUE(ticked(screen, 1) && !ticked(screen, 2) && ticked(screen, 3)) << "ticks stay";
        EXPECT_EQ(focused(screen), "cmdImprimir");
    });
    EXPECT_EQ(pages(), 2U);
    const std::vector<std::string> done = printer.lines();
    EXPECT_LT(std::ranges::find(done, numberOnPage(1)), std::ranges::find(done, numberOnPage(3)));
    EXPECT_THAT(done, Not(Contains(numberOnPage(2))));
    EXPECT_THAT(done, Contains(acceptance));
    EXPECT_EQ(boxes.shown, (Boxes{information("Duplicata(s)  impressa(s) com sucesso!     ")}));
}

TEST_F(PrintBillsScreenTest, NothingTicked) {
    findBill(line(1));
    withScreen([&](QWidget& screen) {
        server.addresses.clear();
        click(screen, "cmdImprimir");
        search(screen);
        click(screen, "cmdImprimir");
        EXPECT_EQ(server.queries(), (Texts{deskQuery}));
    });
    EXPECT_THAT(printer.operations, testing::IsEmpty());
    EXPECT_EQ(boxes.shown, (Boxes{information("Selecione um documento.     "),
                                  information("Selecione um documento.     ")}));
}

TEST_F(PrintBillsScreenTest, TheOptionDecidesAlsoWhereItIsHidden) {
    findBill(line(1) + line(2));
    withScreen([&](QWidget& screen) {
        click(screen, "optTripl");
        search(screen, receipt);
        ASSERT_FALSE(named<QWidget>(screen, "optTripl").isVisible());
        clickHeading(screen, 1);
        click(screen, "cmdImprimir");
    });
    EXPECT_THAT(printer.lines(), Contains(triplicateAcceptance).Times(2));
    EXPECT_EQ(boxes.shown, (Boxes{information("Triplicata(s)  impressa(s) com sucesso!     ")}));
}

TEST_F(PrintBillsScreenTest, TypesThatTheSearchForBillsBringsToo) {
    findBill(line(1, "341") + line(2, "342") + line(3, "361"));
    withScreen([&](QWidget& screen) {
        search(screen);
        clickHeading(screen, 1);
        click(screen, "cmdImprimir");
    });
    EXPECT_THAT(printer.lines(), Contains("text\t9.300\t4.500\tArial\t16\t1\tRECIBO").Times(3));
    EXPECT_EQ(boxes.shown, (Boxes{information("Recibo(s) impresso(s) com sucesso!     ")}));
}

TEST_F(PrintBillsScreenTest, ThePicturesAreThoseOfTheLastActivation) {
    const QTemporaryDir folder;
    environment.pictureFolder = folder.path().toStdString();
    QImage picture(20, 20, QImage::Format_RGB32);
    picture.fill(Qt::red);
    ASSERT_TRUE(picture.save(folder.filePath(QStringLiteral("LOGODUPL.jpg"))));
    findBill(line(1));
    withScreen([&](QWidget& screen) {
        search(screen);
        clickCell(screen, 1, 1);
        ASSERT_TRUE(QFile::remove(folder.filePath(QStringLiteral("LOGODUPL.jpg"))));
        click(screen, "cmdImprimir");
    });
    EXPECT_THAT(printer.lines(), Contains("picture\t1.600\t1.300\tpicLogo"));
    EXPECT_THAT(printer.lines(), Not(Contains(testing::HasSubstr("picAss"))));
}

TEST_F(PrintBillsScreenTest, APrinterThatRefusesIsToldAndTheScreenStays) {
    findBill(line(1));
    printer.failAt = 3;  // the first line
    withScreen([&](QWidget& screen) {
        search(screen);
        clickCell(screen, 1, 1);
        click(screen, "cmdImprimir");
        EXPECT_TRUE(screen.isVisible());
        EXPECT_TRUE(ticked(screen, 1));
        click(screen, "cmdImprimir");
    });
    EXPECT_EQ(boxes.shown,
              (Boxes{printerRefused, information("Duplicata(s)  impressa(s) com sucesso!     ")}));
}

TEST_F(PrintBillsScreenTest, WithoutTheCompanyTheProgramEndsWithTheReport) {
    findBill(line(1));
    withScreen([&](QWidget& screen) {
        search(screen);
        server.failOn("sel_dados_empresa&Id_Etb_Tarn=9");
        click(screen, "cmdImprimir");
        ASSERT_EQ(boxes.shown.size(), 2U);
        EXPECT_EQ(boxes.shown[0], noInternet9);
        EXPECT_EQ(boxes.shown[1].text.rfind("Erro em tempo de execução '91':\r\r", 0), 0U);
    });
    EXPECT_EQ(end.status(), 3);
    EXPECT_THAT(printer.operations, testing::IsEmpty());
}

TEST_F(PrintBillsScreenTest, ARowWithoutAnAmountEndsTheProgramWithTheReport) {
    std::string noValue = line(2);
    noValue.erase(noValue.find("VL_PRN_DOC"), 18);
    findBill(line(1) + noValue);
    withScreen([&](QWidget& screen) {
        search(screen);
        ASSERT_EQ(cell(screen, 2, 8), "");
        clickHeading(screen, 1);
        click(screen, "cmdImprimir");
        ASSERT_EQ(boxes.shown.size(), 1U);
        EXPECT_EQ(boxes.shown[0].text.rfind("Erro em tempo de execução '13':\r\r", 0), 0U);
    });
    EXPECT_EQ(end.status(), 3);
    EXPECT_FALSE(printer.ended());
    EXPECT_EQ(pages(), 1U);
}

std::string fiveHundred() {
    std::string all;
    for (int i = 1; i <= 500; ++i) {
        all += "<z:row NR_DOC='" + std::to_string(i) +
               "' ID_TIP_DOC='1' VL_PRN_DOC='10.5' NM_CLI_ETB='JOSÉ'/>";
    }
    return all;
}

// Watches the progress window from its paint events: what a user sees.
class Onlooker : public QObject {
public:
    explicit Onlooker(QWidget& screen) : screen_(screen) { qApp->installEventFilter(this); }
    std::vector<int> seen;
    int screenPaintings = 0;
    std::function<void()> onSeen = [] {};

protected:
    bool eventFilter(QObject* who, QEvent* event) override {
        if (event->type() == QEvent::Paint && who->objectName() == u"barProgress") {
            seen.push_back(static_cast<QProgressBar*>(who)->value());
            screen_.update();
            onSeen();
        }
        if (event->type() == QEvent::Paint && who == &screen_ && !seen.empty()) {
            ++screenPaintings;
        }
        return false;
    }

private:
    QWidget& screen_;
};

TEST_F(PrintBillsScreenTest, FiveHundredDocumentsOnPaperShowTheirProgress) {
    const QTemporaryDir folder;
    QtPrinter paper(std::make_shared<JobFiles>(folder.path().toStdString()));
    Environment onPaper{blocking, spooler, paper, boxes, clock, machine, environment.baseUrl};
    DeskContext paperDesk{onPaper, session, end};
    MDIMenu other{paperDesk};
    other.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
    findBill(fiveHundred());
    modals.then("FrmPesqDupli", [&](QWidget& screen) {
        search(screen);
        clickHeading(screen, 1);
        Onlooker onlooker(screen);
        // A second click while it prints must not print again.
        onlooker.onSeen = [&screen] {
            QCoreApplication::postEvent(
                &named<QWidget>(screen, "cmdImprimir"),
                new QKeyEvent(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier));
        };
        boxes.onShow = [&screen](const Box&) {
            EXPECT_EQ(screen.findChild<QWidget*>("progress"), nullptr) << "gone before the message";
        };
        click(screen, "cmdImprimir");
        QCoreApplication::processEvents();
        EXPECT_GE(onlooker.seen.size(), 2U);
        EXPECT_TRUE(std::ranges::is_sorted(onlooker.seen));
        EXPECT_GT(onlooker.seen.back(), onlooker.seen.front());
        EXPECT_GT(onlooker.screenPaintings, 0) << "the screen repaints meanwhile";
        click(screen, "cmdVoltar");
    });
    choose(other, "mnuDuplicata");
    EXPECT_EQ(boxes.shown, (Boxes{information("Duplicata(s)  impressa(s) com sucesso!     ")}));
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList{"job-001.pdf"});
    QProcess info;
    info.start(QStringLiteral("pdfinfo"), {folder.filePath(QStringLiteral("job-001.pdf"))});
    ASSERT_TRUE(info.waitForFinished());
    EXPECT_TRUE(info.readAllStandardOutput().contains("Pages:           500\n"));
}

TEST_F(PrintBillsScreenTest, FiveHundredDocumentsAreTickedByOneClick) {
    findBill(fiveHundred());
    withScreen([&](QWidget& screen) {
        search(screen);
        clickHeading(screen, 1);
        EXPECT_TRUE(ticked(screen, 1) && ticked(screen, 500));
        click(screen, "cmdImprimir");
    });
    EXPECT_EQ(pages(), 500U);
}

}  // namespace
}  // namespace tarn::test
