// Printing from FrmPesqDupli, to a recording printer and to paper.
#include <QDir>
#include <QProcess>
#include <QProgressBar>
#include <QTemporaryDir>

#include "platform/qt/qt_printer.h"
#include "tests/bills/bill_screen_test.h"

namespace tarn {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

class ImpressaoNaTelaTest : public TelaDeDuplicatas {
protected:
    static constexpr char aceite[] =
        "text\t4.900\t12.100\tArial\t7\t1\tReconheço(cemos) a exatidão desta DUPLICATA DE VENDA "
        "MERCANTIL na importância acima, que pagarei(emos)";
    static constexpr char aceiteTriplicata[] =
        "text\t4.900\t12.100\tArial\t7\t1\tReconheço(cemos) a exatidão desta TRIPLICATA DE VENDA "
        "MERCANTIL na importância acima, que pagarei(emos)";

    void SetUp() override {
        TelaDeDuplicatas::SetUp();
        server = ScriptedLoader();
        server.on("sel_filiais", answers::rowset(""))
            .on("sel_dados_empresa",
                answers::rowset("<z:row NM_FIL='F' DC_RAZ_SOC_ETB='EMPRESA' NR_CGC_CPL='1'/>"));
    }
    static std::string linha(int numero, const char* tipo = "1") {
        return "<z:row NR_DOC='" + std::to_string(numero) + "' ID_TIP_DOC='" + tipo +
               "' VL_PRN_DOC='10.5' NM_CLI_ETB='JOSÉ' PES_JUR='1' NR_CGC_CPL='7'/>";
    }
    void acha(const std::string& linhas) { server.on("sel_duplicata", answers::rowset(linhas)); }
    void pesquisa(QWidget& tela, int tipo = duplicata) {
        escolhe(tela, "cboTpDocto", tipo);
        type(tela, "txtDtVncAte", "31122012");
        click(tela, "cmdPesquisar");
        server.addresses.clear();
    }
    std::size_t paginas() const {
        const std::vector<std::string> feitas = printer.lines();
        return static_cast<std::size_t>(std::ranges::count(feitas, "newpage"));
    }
    static std::string numeroNaPagina(int numero) {
        return "text\t10.900\t5.000\tArial\t9\t1\t" + std::to_string(numero);
    }
};

TEST_F(ImpressaoNaTelaTest, TheTickedRowsInTheGridsOrder) {
    acha(linha(1) + linha(2) + linha(3));
    comATela([&](QWidget& tela) {
        pesquisa(tela);
        clicaCelula(tela, 3, 1);
        clicaCelula(tela, 1, 1);
        click(tela, "cmdImprimir");
        EXPECT_THAT(server.queries(), ElementsAre(pedeDaMesa));
        EXPECT_TRUE(marcada(tela, 1) && !marcada(tela, 2) && marcada(tela, 3)) << "ticks stay";
        EXPECT_EQ(focused(tela), "cmdImprimir");
    });
    EXPECT_EQ(paginas(), 2U);
    const std::vector<std::string> feitas = printer.lines();
    EXPECT_LT(std::ranges::find(feitas, numeroNaPagina(1)),
              std::ranges::find(feitas, numeroNaPagina(3)));
    EXPECT_THAT(feitas, Not(Contains(numeroNaPagina(2))));
    EXPECT_THAT(feitas, Contains(aceite));
    EXPECT_THAT(boxes.shown, ElementsAre(informa("Duplicata(s)  impressa(s) com sucesso!     ")));
}

TEST_F(ImpressaoNaTelaTest, NothingTicked) {
    acha(linha(1));
    comATela([&](QWidget& tela) {
        server.addresses.clear();
        click(tela, "cmdImprimir");
        pesquisa(tela);
        click(tela, "cmdImprimir");
        EXPECT_THAT(server.queries(), ElementsAre(pedeDaMesa));
    });
    EXPECT_THAT(printer.operations, IsEmpty());
    EXPECT_THAT(boxes.shown, ElementsAre(informa("Selecione um documento.     "),
                                         informa("Selecione um documento.     ")));
}

TEST_F(ImpressaoNaTelaTest, TheOptionDecidesAlsoWhereItIsHidden) {
    acha(linha(1) + linha(2));
    comATela([&](QWidget& tela) {
        click(tela, "optTripl");
        pesquisa(tela, recibo);
        ASSERT_FALSE(named<QWidget>(tela, "optTripl").isVisible());
        clicaCabecalho(tela, 1);
        click(tela, "cmdImprimir");
    });
    EXPECT_THAT(printer.lines(), Contains(aceiteTriplicata).Times(2));
    EXPECT_THAT(boxes.shown, ElementsAre(informa("Triplicata(s)  impressa(s) com sucesso!     ")));
}

TEST_F(ImpressaoNaTelaTest, TypesThatTheSearchForBillsBringsToo) {
    acha(linha(1, "341") + linha(2, "342") + linha(3, "361"));
    comATela([&](QWidget& tela) {
        pesquisa(tela);
        clicaCabecalho(tela, 1);
        click(tela, "cmdImprimir");
    });
    EXPECT_THAT(printer.lines(), Contains("text\t9.300\t4.500\tArial\t16\t1\tRECIBO").Times(3));
    EXPECT_THAT(boxes.shown, ElementsAre(informa("Recibo(s) impresso(s) com sucesso!     ")));
}

TEST_F(ImpressaoNaTelaTest, ThePicturesAreThoseOfTheLastActivation) {
    const QTemporaryDir pasta;
    ambiente.pastaFiguras = pasta.path().toStdString();
    QImage figura(20, 20, QImage::Format_RGB32);
    figura.fill(Qt::red);
    ASSERT_TRUE(figura.save(pasta.filePath(QStringLiteral("LOGODUPL.jpg"))));
    acha(linha(1));
    comATela([&](QWidget& tela) {
        pesquisa(tela);
        clicaCelula(tela, 1, 1);
        ASSERT_TRUE(QFile::remove(pasta.filePath(QStringLiteral("LOGODUPL.jpg"))));
        click(tela, "cmdImprimir");
    });
    EXPECT_THAT(printer.lines(), Contains("picture\t1.600\t1.300\tpicLogo"));
    EXPECT_THAT(printer.lines(), Not(Contains(testing::HasSubstr("picAss"))));
}

TEST_F(ImpressaoNaTelaTest, APrinterThatRefusesIsToldAndTheScreenStays) {
    acha(linha(1));
    printer.failAt = 3;  // the first line
    comATela([&](QWidget& tela) {
        pesquisa(tela);
        clicaCelula(tela, 1, 1);
        click(tela, "cmdImprimir");
        EXPECT_TRUE(tela.isVisible());
        EXPECT_TRUE(marcada(tela, 1));
        click(tela, "cmdImprimir");
    });
    EXPECT_THAT(boxes.shown, ElementsAre(Box{"Descrição :impressora sem papel\r   Numero :482"},
                                         informa("Duplicata(s)  impressa(s) com sucesso!     ")));
}

TEST_F(ImpressaoNaTelaTest, WithoutTheCompanyTheProgramEndsWithTheReport) {
    acha(linha(1));
    comATela([&](QWidget& tela) {
        pesquisa(tela);
        server.failOn("sel_dados_empresa&Id_Etb_Tarn=9");
        click(tela, "cmdImprimir");
        ASSERT_EQ(boxes.shown.size(), 2U);
        EXPECT_EQ(boxes.shown[0], critica("ERRO Tarn0009 - Não foi possível obter os dados da "
                                          "Internet. Verifique a conexão com a Internet."));
        EXPECT_EQ(boxes.shown[1].text.rfind("Erro em tempo de execução '91':\r\r", 0), 0U);
    });
    EXPECT_EQ(fim.status(), 3);
    EXPECT_THAT(printer.operations, IsEmpty());
}

TEST_F(ImpressaoNaTelaTest, ARowWithoutAnAmountEndsTheProgramWithTheReport) {
    std::string semValor = linha(2);
    semValor.erase(semValor.find("VL_PRN_DOC"), 18);
    acha(linha(1) + semValor);
    comATela([&](QWidget& tela) {
        pesquisa(tela);
        ASSERT_EQ(celula(tela, 2, 8), "");
        clicaCabecalho(tela, 1);
        click(tela, "cmdImprimir");
        ASSERT_EQ(boxes.shown.size(), 1U);
        EXPECT_EQ(boxes.shown[0].text.rfind("Erro em tempo de execução '13':\r\r", 0), 0U);
    });
    EXPECT_EQ(fim.status(), 3);
    EXPECT_FALSE(printer.ended());
    EXPECT_EQ(paginas(), 1U);
}

std::string quinhentas() {
    std::string todas;
    for (int i = 1; i <= 500; ++i) {
        todas += "<z:row NR_DOC='" + std::to_string(i) +
                 "' ID_TIP_DOC='1' VL_PRN_DOC='10.5' NM_CLI_ETB='JOSÉ'/>";
    }
    return todas;
}

// Watches the progress window from its paint events: what a user sees.
class Espectador : public QObject {
public:
    explicit Espectador(QWidget& tela) : tela_(tela) { qApp->installEventFilter(this); }
    std::vector<int> vistos;
    int pinturasDaTela = 0;
    std::function<void()> aoVer = [] {};

protected:
    bool eventFilter(QObject* quem, QEvent* evento) override {
        if (evento->type() == QEvent::Paint && quem->objectName() == u"barAndamento") {
            vistos.push_back(static_cast<QProgressBar*>(quem)->value());
            tela_.update();
            aoVer();
        }
        if (evento->type() == QEvent::Paint && quem == &tela_ && !vistos.empty()) {
            ++pinturasDaTela;
        }
        return false;
    }

private:
    QWidget& tela_;
};

TEST_F(ImpressaoNaTelaTest, FiveHundredDocumentsOnPaperShowTheirProgress) {
    const QTemporaryDir pasta;
    QtPrinter papel(std::make_shared<JobFiles>(pasta.path().toStdString()));
    Environment noPapel{blocking, spooler, papel, boxes, clock, machine, ambiente.baseUrl};
    DeskContext mesa{noPapel, sessao, fim};
    MDIMenu outra{mesa};
    outra.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&outra));
    acha(quinhentas());
    modals.then("FrmPesqDupli", [&](QWidget& tela) {
        pesquisa(tela);
        clicaCabecalho(tela, 1);
        Espectador espectador(tela);
        // A second click while it prints must not print again.
        espectador.aoVer = [&tela] {
            QCoreApplication::postEvent(
                &named<QWidget>(tela, "cmdImprimir"),
                new QKeyEvent(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier));
        };
        boxes.onShow = [&tela](const Box&) {
            EXPECT_EQ(tela.findChild<QWidget*>("andamento"), nullptr) << "gone before the message";
        };
        click(tela, "cmdImprimir");
        QCoreApplication::processEvents();
        EXPECT_GE(espectador.vistos.size(), 2U);
        EXPECT_TRUE(std::ranges::is_sorted(espectador.vistos));
        EXPECT_GT(espectador.vistos.back(), espectador.vistos.front());
        EXPECT_GT(espectador.pinturasDaTela, 0) << "the screen repaints meanwhile";
        click(tela, "cmdVoltar");
    });
    choose(outra, "mnuDuplicata");
    EXPECT_THAT(boxes.shown, ElementsAre(informa("Duplicata(s)  impressa(s) com sucesso!     ")));
    EXPECT_EQ(QDir(pasta.path()).entryList(QDir::Files), QStringList{"job-001.pdf"});
    QProcess info;
    info.start(QStringLiteral("pdfinfo"), {pasta.filePath(QStringLiteral("job-001.pdf"))});
    ASSERT_TRUE(info.waitForFinished());
    EXPECT_TRUE(info.readAllStandardOutput().contains("Pages:           500\n"));
}

TEST_F(ImpressaoNaTelaTest, FiveHundredDocumentsAreTickedByOneClick) {
    acha(quinhentas());
    comATela([&](QWidget& tela) {
        pesquisa(tela);
        clicaCabecalho(tela, 1);
        EXPECT_TRUE(marcada(tela, 1) && marcada(tela, 500));
        click(tela, "cmdImprimir");
    });
    EXPECT_EQ(paginas(), 500U);
}

}  // namespace
}  // namespace tarn
