// Bills and receipts as draw operations.
#include "bills/print_bills.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "bills/bill_search.h"
#include "gateway/sessao.h"
#include "gateway/xml_document.h"
#include "runtime/runtime_error.h"
#include "tests/bills/expected_pages.h"
#include "tests/support/answers.h"
#include "tests/support/test_environment.h"

namespace tarn {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;
using testing::Not;

constexpr char empresaCompleta[] =
    "<z:row DC_LG='AV. BRASIL' SG_UF='SP' NM_BRR='CENTRO' NM_MUN='SÃO PAULO' NM_UF='São Paulo' "
    "NR_LG='999' CD_CEP='01234-567' CD_ICR_EST='111.222.333' DC_RAZ_SOC_ETB='PEÇAS SÃO JOÃO LTDA' "
    "TELEFONE='(11)5555-0101' FAX='(11)5555-0102' EMAIL='a@b.example' PES_JUR='1' "
    "NR_CGC_CPL='1234567000189'/>";

constexpr char linhaDuplicata[] =
    "<z:row SG_FIL='MATRIZ' DT_VNC_DOC_FMA='15/04/2012' DT_EMS_DOC='2012-03-15' NR_DOC='4567/A' "
    "NM_CLI_ETB='JOSÉ &amp; &lt;b>FILHOS' DC_LG_CPL='RUA DAS FLORES, 10' VL_PRN_DOC='1234.5' "
    "CD_CEP='13000-000' NM_MUN='CAMPINAS' SG_UF='SP' NR_CGC_CPL='98765432000110' "
    "CD_ICR_EST='ISENTO' PES_JUR='1' TIPO_DOCTO='DOCTO_COBRANCA' ID_TIP_DOC='1' "
    "DC_REF_REC='nota 4567' NR_DOC_NF='NF 88' EG_COB='RUA DO PORTO, 3' MUN_COB='SANTOS' "
    "ES_COB='RJ' CD_CEP_COB='11000-000'/>";

constexpr char linhaRecibo[] =
    "<z:row DT_VNC_DOC_FMA='15/04/2012' DT_EMS_DOC='15/03/2012' NR_DOC='77' NM_CLI_ETB='MARIA' "
    "DC_LG_CPL='RUA B, 2' VL_PRN_DOC='1' CD_CEP='13000-001' NM_MUN='ITU' SG_UF='SP' "
    "NR_CGC_CPL='12345678901' CD_ICR_EST='' PES_JUR='0' TIPO_DOCTO='DOCTO_COBRANCA' "
    "ID_TIP_DOC='12' DC_REF_REC='serviços de março' NR_DOC_NF='' EG_COB='RUA B, 2'/>";

// The line "UM MIL, ..." behind which the filler begins.
constexpr char palavras[] = "UM MIL, DUZENTOS E TRINTA E QUATRO REAIS E CINQUENTA CENTAVOS";

Operacoes cabecalho(const std::string& rotulo, const std::string& localidade,
                    const std::string& emissao) {
    return {risco(1.1, 0.9, 20.3, 0.9, 15),
            figura(1.6, 1.3, "picLogo"),
            arial(11, 1.6, 9, "PEÇAS SÃO JOÃO LTDA"),
            arial(11, 2.0, 6, "AV. BRASIL -  - CENTRO"),
            arial(11, 2.4, 6, localidade),
            arial(11, 2.8, 6, "Inscrição CNPJ nº 01.234.567/0001-89"),
            arial(11, 3.2, 6, "Inscrição Estadual - 111.222.333"),
            arial(11, 3.6, 6, "TEL.:(11)5555-0101 - FAX.:(11)5555-0102 - E-MAIL:a@b.example"),
            arial(11, 4.0, 8, rotulo),
            arial(14.3, 4.0, 8, emissao)};
}

Operacoes paginaDuplicata(const std::string& especie = "DUPLICATA",
                          const std::string& favorecido = "PEÇAS SÃO JOÃO LTDA") {
    Operacoes pagina =
        cabecalho("DATA DE EMISSÃO:", "CEP: 01234-567 - SÃO PAULO - SP", "2012-03-15");
    const Operacoes resto = {
        risco(1.1, 4.05, 20.3, 4.05, 10), risco(3.0, 4.3, 3.0, 13.5, 3), figura(3.2, 7.0, "picAss"),
        figura(1.1, 4.6, "picVert"), arial(6, 5, 9, "Fatura/NF"), arial(6.2, 5.5, 9, "NF 88"),
        arial(8.8, 4.8, 8, "Fatura/NF"), arial(8.8, 5.1, 8, "Valor R$"),
        arial(8.3, 5.5, 9, "R$ 1.234,50"), arial(11, 5, 8, " Duplicata Nº "),
        arial(11.4, 5.5, 9, "4567/A"), arial(14.1, 5, 8, "Vencimento"),
        arial(14.2, 5.5, 9, "15/04/2012"), fino(5.3, 6.2, 7, "Desconto de"),
        fino(5.3, 6.5, 7, "Condições Especiais"), fino(13, 6.2, 7, "Até"),
        risco(4.8, 6.55, 20.3, 6.55, 10), arial(5.4, 7.5, 8, "Nome do Sacado"),
        arial(9, 7.5, 8, "JOSÉ & <b>FILHOS"), arial(5.4, 7.9, 8, "Endereço"),
        arial(9, 7.9, 8, "RUA DAS FLORES, 10"), arial(5.4, 8.3, 8, "Município"),
        arial(9, 8.3, 8, "CAMPINAS"), arial(13, 8.3, 8, "Estado"), arial(14.3, 8.3, 8, "SP"),
        arial(16.5, 8.3, 8, "CEP"), arial(18, 8.3, 8, "13000-000"),
        arial(5.4, 8.7, 8, "C.N.P.J. (M.F.) Nº"), arial(9, 8.7, 8, "98.765.432/0001-10"),
        arial(15, 8.7, 8, "I.E. Nº"), arial(16, 8.7, 8, "ISENTO"),
        arial(5.4, 9.5, 8, "Endereço de Cobrança"), arial(9, 9.5, 8, "RUA DO PORTO, 3"),
        arial(5.4, 9.9, 8, "Município"), arial(9, 9.9, 8, "SANTOS"), arial(13, 9.9, 8, "Estado"),
        arial(14.3, 9.9, 8, "RJ"), arial(16.5, 9.9, 8, "CEP"), arial(18, 9.9, 8, "11000-000"),
        arial(6, 11.2, 8, "VALOR"), arial(6.2, 11.6, 8, "POR"), arial(5.9, 12, 8, "EXTENSO"),
        // 61 characters of words, a blank, then the pairs.
        courier(9, 11.2, 10, "UM MIL, DUZENTOS E TRINTA E QUATRO REAIS E CINQUENTA "),
        courier(9, 11.6, 10, "CENTAVOS .X.X.X.X.X.X.X.X.X.X.X.X.X.X.X.X.X.X.X.X.X.X"),
        courier(9, 12, 10, ".X.X.X.X.X.X.X.X.X.X.X.X.X.X.X.X.X.X.X.X.X.X.X.X.X.X."),
        arial(5.4, 12.6, 7,
              "Reconheço(cemos) a exatidão desta " + especie +
                  " DE VENDA MERCANTIL na importância acima, que pagarei(emos)"),
        arial(5.4, 12.9, 7,
              "à " + favorecido + ", ou à sua ordem na praça e vencimento acima indicado."),
        risco(4.8, 13.2, 9, 13.2, 2), arial(6.2, 13.3, 10, " /          /"),
        arial(6.2, 13.7, 8, "DATA DE ACEITE"), risco(14, 13.2, 19, 13.2, 2),
        arial(15.2, 13.7, 8, "ASSINATURA DO SACADO"), risco(1.1, 13.8, 20.3, 13.8, 10), "newpage"};
    pagina.insert(pagina.end(), resto.begin(), resto.end());
    return pagina;
}

Operacoes paginaRecibo() {
    Operacoes pagina =
        cabecalho("DATA DE EMISSAO:", "CEP: 01234-567 - Estado de São Paulo", "15/03/2012");
    const std::string brancos60(60, ' ');
    const std::string hifens60(60, '-');
    const Operacoes resto = {
        risco(1.1, 4.05, 20.3, 4.05, 6),
        arial(2, 5, 14, "Nº 77"),
        arial(9.8, 5, 16, "RECIBO"),
        arial(16, 5, 14, "R$ 1,00"),
        risco(1.1, 5.5, 20.3, 5.5, 6),
        arial(2, 6.5, 10, "Nome do Sacado"),
        arial(5, 6.5, 10, "MARIA"),
        arial(2, 7.2, 10, "Endereço"),
        arial(5, 7.2, 10, "RUA B, 2"),
        arial(2, 7.9, 10, "Município"),
        arial(5, 7.9, 10, "ITU"),
        arial(10, 7.9, 10, "Estado"),
        arial(11.5, 7.9, 10, "SP"),
        arial(16.5, 7.9, 10, "CEP"),
        arial(18, 7.9, 10, "13000-001"),
        arial(2, 8.6, 10, "CPF Nº"),
        arial(5, 8.6, 10, "123.456.789-01"),
        arial(14.5, 8.6, 10, "I.E. Nº"),
        arial(16, 8.6, 10, ""),
        arial(2, 9.3, 10, " VALOR "),
        arial(2, 9.7, 10, "  POR  "),
        arial(2, 10.1, 10, "EXTENSO"),
        courier(5, 9.3, 11, "UM REAL ----------------------------------------------------"),
        courier(5, 9.7, 11, hifens60),
        courier(5, 10.1, 11, hifens60),
        arial(2, 10.8, 10, "Referente a "),
        courier(5, 10.8, 11, "serviços de março" + std::string(43, ' ')),
        courier(5, 11.2, 11, brancos60),
        courier(5, 11.6, 11, brancos60),
        courier(5, 12, 11, brancos60),
        courier(5, 12.4, 11, brancos60),
        risco(2.8, 13.2, 7, 13.2, 2),
        arial(4.2, 13.3, 10, " /          /"),
        arial(3.7, 13.7, 10, "DATA RECEBIMENTO"),
        risco(13, 13.2, 19, 13.2, 3),
        arial(14.7, 13.7, 10, "ASSINATURA EMPRESA"),
        risco(1.1, 13.8, 20.3, 13.8, 10),
        "newpage"};
    pagina.insert(pagina.end(), resto.begin(), resto.end());
    return pagina;
}

Operacoes trabalho(std::initializer_list<Operacoes> paginas) {
    Operacoes tudo{"scale\t7", "orientation\t1"};
    for (const Operacoes& pagina : paginas) {
        tudo.insert(tudo.end(), pagina.begin(), pagina.end());
    }
    tudo.emplace_back("enddoc");
    return tudo;
}

std::string com(std::string linha, const std::string& campo, const std::string& valor) {
    const std::size_t inicio = linha.find(" " + campo + "='") + campo.size() + 3;
    return linha.replace(inicio, linha.find('\'', inicio) - inicio, valor);
}
std::string sem(std::string linha, const std::string& campo) {
    const std::size_t inicio = linha.find(" " + campo + "='");
    const std::size_t fim = linha.find('\'', inicio + campo.size() + 3);
    return linha.erase(inicio, fim + 1 - inicio);
}

class ImprimeDuplicataTest : public testing::Test {
protected:
    ImprimeDuplicataTest() {
        sessao_.NCOMPANYCODE = 1361;
        sessao_.ID_ETB_TARN = 9;
        sessao_.SERVERNAME = "SRV1";
        seams_.loader.on("sel_dados_empresa", answers::rowset(empresaCompleta));
    }
    // The rows of the grid, all of them ticked.
    void acha(const std::string& linhas) {
        XmlDocument resposta;
        ASSERT_TRUE(resposta.loadXML(answers::rowset(linhas)));
        linhas_ = linhasDeDuplicatas(resposta);
        for (LinhaGrade& linha : linhas_) {
            linha.marcada = true;
        }
    }
    void empresa(const std::string& linha) {
        ScriptedLoader outro;
        seams_.loader = outro.on("sel_dados_empresa", answers::rowset(linha));
    }
    void imprime() {
        imprimeSelecionados(seams_.environment, sessao_,
                            {.linhas = linhas_, .triplicata = triplicata_, .figuras = figuras_},
                            progresso_);
    }
    Operacoes desenhado() const { return seams_.printer.lines(); }
    void esquece() {
        seams_.printer.operations.clear();
        seams_.boxes.shown.clear();
    }
    static Box mensagem(const std::string& texto) { return {texto, BoxIcon::Information, "TArn"}; }
    static Box sucesso(const std::string& especie) {
        return mensagem(especie + " com sucesso!     ");
    }

    TestEnvironment seams_;
    Sessao sessao_;
    std::vector<LinhaGrade> linhas_;
    bool triplicata_ = false;
    FigurasDuplicata figuras_{Picture("picLogo", "l"), Picture("picVert", "v"),
                              Picture("picAss", "a")};
    Progress progresso_;
};

TEST_F(ImprimeDuplicataTest, DrawsABill) {
    acha(linhaDuplicata);
    imprime();
    EXPECT_THAT(seams_.loader.queries(),
                ElementsAre("comando=sel_dados_empresa&Id_Etb_Tarn=9&ServerName=SRV1"));
    EXPECT_THAT(desenhado(), ElementsAreArray(trabalho({paginaDuplicata()})));
    EXPECT_THAT(seams_.boxes.shown, ElementsAre(sucesso("Duplicata(s)  impressa(s)")));
}

TEST_F(ImprimeDuplicataTest, OneCopyIsSetAfterTheOrientation) {
    acha(linhaDuplicata);
    imprime();
    ASSERT_GE(seams_.printer.operations.size(), 3U);
    EXPECT_EQ(seams_.printer.operations[2], PrintOperation(Copies{1}));
}

// The same lines as bytes, not by way of this test's own arithmetic.
TEST_F(ImprimeDuplicataTest, WhereThingsLand) {
    acha(linhaDuplicata);
    imprime();
    EXPECT_THAT(desenhado(),
                testing::IsSupersetOf({"text\t5.500\t4.500\tArial\t9\t1\tFatura/NF",
                                       "text\t4.800\t6.000\tArial\t7\t0\tCondições Especiais",
                                       "line\t4.800\t6.550\t20.300\t6.550\t10",
                                       "picture\t3.200\t7.000\tpicAss",
                                       "text\t8.500\t11.500\tCourier New\t10\t1\t.X.X.X.X.X.X.X.X."
                                       "X.X.X.X.X.X.X.X.X.X.X.X.X.X.X.X.X.X."}));
}

TEST_F(ImprimeDuplicataTest, DrawsATriplicata) {
    acha(linhaDuplicata);
    triplicata_ = true;
    imprime();
    EXPECT_THAT(desenhado(), ElementsAreArray(trabalho({paginaDuplicata("TRIPLICATA")})));
    EXPECT_THAT(seams_.boxes.shown, ElementsAre(sucesso("Triplicata(s)  impressa(s)")));
}

TEST_F(ImprimeDuplicataTest, DrawsAReceipt) {
    acha(linhaRecibo);
    triplicata_ = true;  // has no say here
    imprime();
    EXPECT_THAT(desenhado(), ElementsAreArray(trabalho({paginaRecibo()})));
    EXPECT_THAT(seams_.boxes.shown, ElementsAre(sucesso("Recibo(s) impresso(s)")));
}

TEST_F(ImprimeDuplicataTest, TwoCompaniesHaveAPayeeOfTheirOwn) {
    acha(linhaDuplicata);
    sessao_.NCOMPANYCODE = 1521;
    imprime();
    EXPECT_THAT(desenhado(),
                ElementsAreArray(trabalho({paginaDuplicata("DUPLICATA", "ORVALHO MÓVEIS LTDA.")})));
    esquece();
    sessao_.NCOMPANYCODE = 2801;
    imprime();
    EXPECT_THAT(desenhado(),
                ElementsAreArray(trabalho({paginaDuplicata(
                    "DUPLICATA", "ZENTRA COM. E REPRES. DE PEÇAS HIDRÁULICAS LTDA.")})));
}

TEST_F(ImprimeDuplicataTest, NothingTickedStillAsksForTheCompany) {
    acha(linhaDuplicata);
    linhas_[0].marcada = false;
    imprime();
    linhas_.clear();
    imprime();
    EXPECT_EQ(seams_.loader.addresses.size(), 2U);
    EXPECT_THAT(seams_.printer.operations, IsEmpty());
    EXPECT_THAT(seams_.boxes.shown, ElementsAre(mensagem("Selecione um documento.     "),
                                                mensagem("Selecione um documento.     ")));
}

TEST_F(ImprimeDuplicataTest, EachRowHasItsPageAndTheLastRowTheMessage) {
    acha(std::string(linhaDuplicata) + linhaRecibo + linhaDuplicata);
    linhas_[2].marcada = false;
    imprime();
    EXPECT_THAT(desenhado(), ElementsAreArray(trabalho({paginaDuplicata(), paginaRecibo()})));
    EXPECT_THAT(seams_.boxes.shown, ElementsAre(sucesso("Duplicata(s)  impressa(s)")));
    esquece();
    acha(std::string(linhaRecibo) + linhaDuplicata + linhaRecibo);
    linhas_[0].marcada = linhas_[2].marcada = false;
    imprime();
    EXPECT_THAT(desenhado(), ElementsAreArray(trabalho({paginaDuplicata()})));
    EXPECT_THAT(seams_.boxes.shown, ElementsAre(sucesso("Recibo(s) impresso(s)")));
    EXPECT_TRUE(linhas_[1].marcada) << "ticks stay";
}

TEST_F(ImprimeDuplicataTest, TypesAreNumbers) {
    const struct {
        const char* tipo;
        bool duplicata;
        const char* mensagem;
    } casos[] = {
        {"1", true, "Duplicata(s)  impressa(s)"},     {"001", true, "Duplicata(s)  impressa(s)"},
        {" 1,0 ", true, "Duplicata(s)  impressa(s)"}, {"201", true, "Duplicata(s)  impressa(s)"},
        {"202", true, "Duplicata(s)  impressa(s)"},   {"203", true, "Duplicata(s)  impressa(s)"},
        {"262", true, "Recibo(s) impresso(s)"},       {"341", false, "Recibo(s) impresso(s)"},
        {"342", false, "Recibo(s) impresso(s)"},      {"361", false, "Recibo(s) impresso(s)"},
        {"12", false, "Recibo(s) impresso(s)"},       {"", false, "Recibo(s) impresso(s)"},
        {"1A", false, "Recibo(s) impresso(s)"}};
    for (const auto& caso : casos) {
        acha(com(linhaDuplicata, "ID_TIP_DOC", caso.tipo));
        imprime();
        EXPECT_EQ(testing::Value(desenhado(), Contains(arial(9.8, 5, 16, "RECIBO"))),
                  !caso.duplicata)
            << caso.tipo;
        EXPECT_THAT(seams_.boxes.shown, ElementsAre(sucesso(caso.mensagem))) << caso.tipo;
        esquece();
    }
}

TEST_F(ImprimeDuplicataTest, ABillToAPerson) {
    acha(com(com(linhaDuplicata, "PES_JUR", "0"), "NR_CGC_CPL", "12345678901"));
    imprime();
    EXPECT_THAT(desenhado(), Contains(arial(5.4, 8.7, 8, "CPF Nº")));
    EXPECT_THAT(desenhado(), Contains(arial(9, 8.7, 8, "123.456.789-01")));
}

TEST_F(ImprimeDuplicataTest, AReceiptToACompany) {
    acha(com(linhaRecibo, "PES_JUR", "1"));
    imprime();
    EXPECT_THAT(desenhado(), Contains(arial(2, 8.6, 10, "CNPJ Nº")));
    EXPECT_THAT(desenhado(), Contains(arial(5, 8.6, 10, "00.012.345/6789-01")));
}

TEST_F(ImprimeDuplicataTest, TheBillingAddress) {
    const auto municipios = [this] {
        return std::ranges::count(desenhado(), arial(5.4, 9.9, 8, "Município"));
    };
    acha(com(linhaDuplicata, "EG_COB", "RUA DAS FLORES, 10"));
    imprime();
    EXPECT_THAT(desenhado(), Contains(arial(9, 9.5, 8, "O MESMO")));
    EXPECT_EQ(municipios(), 0);
    esquece();
    acha(com(com(linhaDuplicata, "EG_COB", ""), "DC_LG_CPL", ""));
    imprime();
    EXPECT_THAT(desenhado(), Contains(arial(9, 9.5, 8, "O MESMO"))) << "both empty";
    esquece();
    acha(com(linhaDuplicata, "EG_COB", ""));
    imprime();
    EXPECT_THAT(desenhado(), Contains(arial(9, 9.5, 8, "")));
    EXPECT_EQ(municipios(), 1);
    esquece();
    acha(com(linhaDuplicata, "EG_COB", "RUA DAS FLORES, 10 "));
    imprime();
    EXPECT_EQ(municipios(), 1) << "a blank makes another address";
}

TEST_F(ImprimeDuplicataTest, AReceivableHasNoReference) {
    acha(com(linhaRecibo, "TIPO_DOCTO", "DOCTO_RECEBER"));
    imprime();
    const std::string brancos60(60, ' ');
    EXPECT_THAT(desenhado(), Contains(arial(2, 10.8, 10, "Referente a ")));
    EXPECT_THAT(desenhado(), Contains(courier(5, 10.8, 11, brancos60)));
}

TEST_F(ImprimeDuplicataTest, ALongReferenceTakesFiveLines) {
    const std::string referencia = std::string(59, 'a') + "çb" + std::string(238, 'c') + "dE" + "F";
    acha(com(linhaRecibo, "DC_REF_REC", referencia));  // 302 characters
    imprime();
    EXPECT_THAT(desenhado(),
                testing::IsSupersetOf({courier(5, 10.8, 11, std::string(59, 'a') + "ç"),
                                       courier(5, 11.2, 11, "b" + std::string(59, 'c')),
                                       courier(5, 12.4, 11, std::string(59, 'c') + "d")}));
}

TEST_F(ImprimeDuplicataTest, WordsThatAreTooLongAreCut) {
    constexpr char valor[] = "777777777777.77";
    acha(com(linhaDuplicata, "VL_PRN_DOC", valor));
    imprime();
    std::string tira;
    for (const double y : {11.2, 11.6, 12.0}) {
        for (const std::string& linha : desenhado()) {
            const std::string inicio = courier(9, y, 10, "");
            if (linha.rfind(inicio, 0) == 0) {
                tira += linha.substr(inicio.size());
            }
        }
    }
    EXPECT_EQ(tira.size(), 159U);
    EXPECT_EQ(tira.rfind("SETECENTOS E SETENTA E SETE BILHOES, SETECENTOS E SETENTA E SETE ", 0),
              0U);
    EXPECT_EQ(tira.find(".X"), std::string::npos) << "no room for the filler";
    EXPECT_THAT(desenhado(), Not(Contains(testing::HasSubstr("CENTAVOS"))));
}

TEST_F(ImprimeDuplicataTest, ZeroHasNoWords) {
    acha(com(linhaDuplicata, "VL_PRN_DOC", "0") + com(linhaRecibo, "VL_PRN_DOC", ""));
    imprime();
    EXPECT_THAT(desenhado(), Contains(courier(9, 11.2, 10,
                                              " .X.X.X.X.X.X.X.X.X.X.X.X.X.X.X.X.X.X.X.X.X.X.X.X."
                                              "X.X")));
    EXPECT_THAT(desenhado(), Contains(courier(5, 9.3, 11, " " + std::string(59, '-'))));
    EXPECT_THAT(desenhado(), Contains(arial(16, 5, 14, "R$ 0,00"))) << "present but empty";
}

TEST_F(ImprimeDuplicataTest, ARowWithoutAnAmountStopsBeforeItsPage) {
    acha(std::string(linhaDuplicata) + sem(linhaDuplicata, "VL_PRN_DOC"));
    try {
        imprime();
        FAIL() << "no failure";
    } catch (const ErroExecucao& erro) {
        EXPECT_EQ(erro.numero(), ErroNumero::TipoIncompativel);
        EXPECT_NE(erro.descricao().find("4567/A"), std::string::npos) << erro.descricao();
    }
    Operacoes primeira = trabalho({paginaDuplicata()});
    primeira.pop_back();
    EXPECT_THAT(desenhado(), ElementsAreArray(primeira)) << "not ended";
    EXPECT_THAT(seams_.boxes.shown, IsEmpty());
    esquece();
    linhas_[1].marcada = false;
    imprime();
    EXPECT_THAT(desenhado(), ElementsAreArray(trabalho({paginaDuplicata()})));
}

TEST_F(ImprimeDuplicataTest, EmptyFieldsOfTheCompanyKeepTheirLabels) {
    empresa("<z:row/>");
    acha(linhaDuplicata);
    imprime();
    const Operacoes tudo = desenhado();
    const Operacoes inicio(tudo.begin() + 4, tudo.begin() + 10);
    EXPECT_THAT(inicio, ElementsAre(arial(11, 1.6, 9, ""), arial(11, 2.0, 6, " -  - "),
                                    arial(11, 2.4, 6, "CEP:  -  - "),
                                    arial(11, 2.8, 6, "Inscrição CNPJ nº 00.000.000/0000-00"),
                                    arial(11, 3.2, 6, "Inscrição Estadual - "),
                                    arial(11, 3.6, 6, "TEL.: - FAX.: - E-MAIL:")));
}

TEST_F(ImprimeDuplicataTest, ACompanyThatIsAPerson) {
    empresa("<z:row PES_JUR='0' NR_CGC_CPL='54321'/><z:row PES_JUR='1'/>");
    acha(linhaDuplicata);
    imprime();
    EXPECT_THAT(desenhado(), Contains(arial(11, 2.8, 6, "Inscrição CPF nº 000.000.543-21")));
}

TEST_F(ImprimeDuplicataTest, WithoutTheCompanyTheRunFailsBeforeTheTicksAreLookedAt) {
    ScriptedLoader fora;
    ScriptedLoader vazia;
    fora.failOn("sel_dados_empresa");
    vazia.on("sel_dados_empresa", answers::rowset(""));
    for (const ScriptedLoader& servidor : {fora, vazia}) {
        seams_.loader = servidor;
        try {
            imprime();
            FAIL() << "no failure";
        } catch (const ErroExecucao& erro) {
            EXPECT_EQ(erro.numero(), ErroNumero::VariavelObjeto);
        }
        EXPECT_THAT(seams_.printer.operations, IsEmpty());
    }
    EXPECT_THAT(seams_.boxes.shown,
                ElementsAre(Box{"ERRO Tarn0009 - Não foi possível obter os dados da Internet. "
                                "Verifique a conexão com a Internet.",
                                BoxIcon::Critical, "TarnEMISSAO - ERRO INESPERADO"}));
}

TEST_F(ImprimeDuplicataTest, AFieldOfTheCompanyInAnotherCaseFails) {
    empresa("<z:row dc_lg='x'/>");
    acha(linhaDuplicata);
    EXPECT_THROW(imprime(), ErroExecucao);
    EXPECT_THAT(seams_.printer.operations, IsEmpty());
}

TEST_F(ImprimeDuplicataTest, PicturesThatAreMissingLeaveTheRestInPlace) {
    figuras_ = {};
    acha(std::string(linhaDuplicata) + linhaRecibo);
    imprime();
    Operacoes esperado = trabalho({paginaDuplicata(), paginaRecibo()});
    std::erase_if(esperado, [](const std::string& linha) { return linha.starts_with("picture"); });
    EXPECT_THAT(desenhado(), ElementsAreArray(esperado));
}

TEST_F(ImprimeDuplicataTest, ControlCharactersMoveNothing) {
    acha(com(com(linhaDuplicata, "NM_CLI_ETB", "A&#10;B&#9;C"), "EG_COB", "RUA&#13;X"));
    imprime();
    EXPECT_THAT(desenhado(), Contains(arial(9, 7.5, 8, "A B C")));
    EXPECT_THAT(desenhado(), Contains(arial(9, 9.5, 8, "RUA X")));
}

TEST_F(ImprimeDuplicataTest, ATextThatFailsIsDroppedInSilence) {
    acha(linhaDuplicata);
    seams_.printer.failAt = 5;  // the company's name: unit, orientation, copies, line, logo
    ASSERT_EQ(trabalho({paginaDuplicata()})[4], arial(11, 1.6, 9, "PEÇAS SÃO JOÃO LTDA"));
    imprime();
    EXPECT_THAT(desenhado(), ElementsAreArray(trabalho({paginaDuplicata()})));
    EXPECT_THAT(seams_.boxes.shown, ElementsAre(sucesso("Duplicata(s)  impressa(s)")));
}

TEST_F(ImprimeDuplicataTest, WhatElseThePrinterRefusesIsToldOnceInsteadOfTheSuccess) {
    const std::size_t fim = trabalho({paginaDuplicata()}).size();  // one more with the copies
    for (const std::size_t onde : {std::size_t{3}, std::size_t{4}, fim - 1, fim}) {
        acha(linhaDuplicata);
        seams_.printer.failAt = onde;
        imprime();
        EXPECT_THAT(desenhado(), ElementsAreArray(trabalho({paginaDuplicata()}))) << onde;
        EXPECT_THAT(seams_.boxes.shown,
                    ElementsAre(Box{"Descrição :impressora sem papel\r   Numero :482"}))
            << onde;
        esquece();
    }
}

TEST_F(ImprimeDuplicataTest, TellsItsProgress) {
    std::string muitas;
    for (int i = 0; i < 3; ++i) {
        muitas += linhaRecibo;
    }
    acha(muitas);
    linhas_[1].marcada = false;
    std::vector<std::pair<std::size_t, std::size_t>> avisos;
    progresso_ = [&](std::size_t feitos, std::size_t total) { avisos.emplace_back(feitos, total); };
    imprime();
    EXPECT_THAT(avisos, ElementsAre(std::pair(0U, 2U), std::pair(2U, 2U)));
    EXPECT_FALSE(seams_.printer.progress) << "no longer told";
}

}  // namespace
}  // namespace tarn
