#include "gateway/pega_valor.h"

#include <gtest/gtest.h>

#include <array>

#include "runtime/runtime_error.h"

namespace tarn {
namespace {

class PegaValorTest : public testing::Test {
protected:
    const XmlNode& carrega(std::string_view linhas) {
        EXPECT_TRUE(documento_.loadXML("<?xml version='1.0'?><PRINCIPAL c='' s='OK'>" +
                                       std::string(linhas) + "</PRINCIPAL>"));
        principal_ = documento_.selectSingleNode("PRINCIPAL");
        return principal_;
    }

    XmlDocument documento_;
    XmlNode principal_;
};

void esperaErroDeObjeto(const auto& acao) {
    try {
        acao();
        ADD_FAILURE() << "no error";
    } catch (const ErroExecucao& erro) {
        EXPECT_EQ(erro.numero(), ErroNumero::VariavelObjeto);
    }
}

TEST_F(PegaValorTest, AbsentGivesThePadraoAsPassed) {
    const XmlNode& no = carrega("<L A='1'/>");
    EXPECT_EQ(PegaValor(no, 0, "B", 0.0), Valor(0.0));
    EXPECT_EQ(PegaValor(no, 0, "B", 7.5), Valor(7.5));
    EXPECT_EQ(PegaValor(no, 0, "B", std::string()), Valor(std::string()));
    EXPECT_EQ(PegaValor(no, 0, "B", std::string("0")), Valor(std::string("0")));
    EXPECT_EQ(pegaTexto(no, 0, "B"), "");
    EXPECT_EQ(pegaNumero(no, 0, "B"), "0");
}

TEST_F(PegaValorTest, ANumericReadTurnsEveryPointIntoAComma) {
    const XmlNode& no = carrega("<L A='1.234.5' B='12' C=''/>");
    EXPECT_EQ(PegaValor(no, 0, "A", 0.0), Valor(std::string("1,234,5")));
    EXPECT_EQ(PegaValor(no, 0, "B", 0.0), Valor(std::string("12")));
    EXPECT_EQ(PegaValor(no, 0, "C", 0.0), Valor(std::string()));
    EXPECT_EQ(pegaNumero(no, 0, "A"), "1,234,5");
}

TEST_F(PegaValorTest, ATextReadLeavesTheTextAsItIs) {
    const XmlNode& no = carrega("<L A='12.50' B='  x  '/>");
    EXPECT_EQ(PegaValor(no, 0, "A", std::string()), Valor(std::string("12.50")));
    EXPECT_EQ(PegaValor(no, 0, "A", std::string("0")), Valor(std::string("12.50")));
    EXPECT_EQ(PegaValor(no, 0, "A", 1.0), Valor(std::string("12.50")));
    EXPECT_EQ(pegaTexto(no, 0, "B"), "  x  ");
}

TEST_F(PegaValorTest, PresenceIgnoresCaseAndTheLookupDoesNot) {
    const XmlNode& no = carrega("<L NCOMPANYCODE='2161' Ent_Sai='E' usercode='u'/>");
    EXPECT_EQ(pegaNumero(no, 0, "ncompanycode"), "2161");
    esperaErroDeObjeto([&] { pegaTexto(no, 0, "ncompanycode"); });
    EXPECT_EQ(pegaTexto(no, 0, "Ent_Sai"), "E");
    esperaErroDeObjeto([&] { pegaNumero(no, 0, "Ent_Sai"); });
    esperaErroDeObjeto([&] { pegaTexto(no, 0, "ENT_SAI"); });
    esperaErroDeObjeto([&] { pegaNumero(no, 0, "UserCode"); });
    esperaErroDeObjeto([&] { PegaValor(no, 0, "UserCode", std::string()); });
}

TEST_F(PegaValorTest, TheLookupTakesItsOwnSpellingWhereverItStands) {
    const XmlNode& no = carrega("<L razao='lower' RAZAO='UPPER'/>");
    EXPECT_EQ(pegaTexto(no, 0, "RAZAO"), "UPPER");
    EXPECT_EQ(pegaTexto(no, 0, "razao"), "lower");
    EXPECT_EQ(pegaNumero(no, 0, "razao"), "UPPER");
}

TEST_F(PegaValorTest, APrefixedAttributeIsPresentAndFailsOnTheLookup) {
    const XmlNode& no =
        carrega("<L xmlns:p='u' p:A='1'/><L xmlns:p='u' p:A='1' A='2'/><L q:A='1'/>");
    esperaErroDeObjeto([&] { pegaTexto(no, 0, "A"); });
    esperaErroDeObjeto([&] { pegaNumero(no, 0, "A"); });
    EXPECT_EQ(pegaTexto(no, 1, "A"), "2");
    esperaErroDeObjeto([&] { pegaTexto(no, 2, "A"); });
}

TEST_F(PegaValorTest, ARowThatDoesNotExist) {
    const XmlNode& no = carrega("<L A='1'/>");
    esperaErroDeObjeto([&] { pegaTexto(no, 1, "A"); });
    esperaErroDeObjeto([&] { PegaValor(no, 1, "A", 0.0); });
    esperaErroDeObjeto([&] { pegaTexto(XmlNode(), 0, "A"); });
}

TEST_F(PegaValorTest, RowsAreCountedByElements) {
    const XmlNode& no = carrega("\n <!-- c --> <L A='1'/>\n text <L A='2'/>");
    EXPECT_EQ(pegaTexto(no, 0, "A"), "1");
    EXPECT_EQ(pegaTexto(no, 1, "A"), "2");
}

TEST(StatusOf, TheSecondAttributeOfTheSecondChild) {
    XmlDocument documento;
    ASSERT_TRUE(documento.loadXML("<?xml version='1.0'?><R x='1' y='ok' z='3'/>"));
    EXPECT_EQ(statusOf(documento), "ok");
    ASSERT_TRUE(
        documento.loadXML("<?xml version='1.0'?><R x='1' y='&lt;b&gt;n&#227;o&lt;/b&gt;'/>"));
    EXPECT_EQ(statusOf(documento), "<b>não</b>");
}

TEST(StatusOf, CannotBeRead) {
    XmlDocument documento;
    esperaErroDeObjeto([&] { statusOf(documento); });
    ASSERT_TRUE(documento.loadXML("<R x='1' y='OK'/>"));
    esperaErroDeObjeto([&] { statusOf(documento); });
    ASSERT_TRUE(documento.loadXML("<?xml version='1.0'?><R x='OK'/>"));
    esperaErroDeObjeto([&] { statusOf(documento); });
    ASSERT_TRUE(documento.loadXML("<?xml version='1.0'?><R/>"));
    esperaErroDeObjeto([&] { statusOf(documento); });
}

class LeitorLinhaTest : public PegaValorTest {
protected:
    static constexpr std::array<std::string_view, 4> nomes{"CD_PRO", "QTDE", "Ent_Sai", "VL"};
    LeitorLinha leitor_{nomes};
};

TEST_F(LeitorLinhaTest, ReadsAsPegaValorDoes) {
    const XmlNode& no = carrega(
        "<I CD_PRO='A.1' QTDE='1.5' outro='x' Ent_Sai='S'/>"
        "<I QTDE='' VL='1.2.3'/>"
        "<I ent_sai='s' qtde='1'/>"
        "<I xmlns:p='u' p:VL='1'/>"
        "<I vl='lower' VL='9.5'/>");
    leitor_.le(no, 0);
    EXPECT_EQ(leitor_.texto(0), "A.1");
    EXPECT_EQ(leitor_.numero(0), "A,1");
    EXPECT_EQ(leitor_.texto(1), "1.5");
    EXPECT_EQ(leitor_.numero(1), "1,5");
    EXPECT_EQ(leitor_.texto(2), "S");
    esperaErroDeObjeto([&] { (void)leitor_.numero(2); });
    EXPECT_FALSE(leitor_.presente(3));
    EXPECT_EQ(leitor_.texto(3), "");
    EXPECT_EQ(leitor_.numero(3), "0");
    EXPECT_EQ(leitor_.numero(3, "5"), "5");
    leitor_.le(no, 1);
    EXPECT_EQ(leitor_.texto(0), "");
    EXPECT_TRUE(leitor_.presente(1));
    EXPECT_EQ(leitor_.numero(1, "5"), "");
    EXPECT_EQ(leitor_.numero(3), "1,2,3");
    leitor_.le(no, 2);
    esperaErroDeObjeto([&] { (void)leitor_.texto(2); });
    esperaErroDeObjeto([&] { (void)leitor_.numero(1); });
    leitor_.le(no, 3);
    EXPECT_TRUE(leitor_.presente(3));
    esperaErroDeObjeto([&] { (void)leitor_.texto(3); });
    leitor_.le(no, 4);
    EXPECT_EQ(leitor_.numero(3), "9,5");
    EXPECT_THROW(leitor_.le(no, 5), ErroExecucao);
    EXPECT_THROW(leitor_.le(XmlNode()), ErroExecucao);
}

TEST_F(LeitorLinhaTest, FollowsFromDocumentToDocument) {
    for (int i = 0; i < 50; ++i) {
        const std::string extra = i % 2 == 0 ? "a" + std::to_string(i) + "='0' " : "";
        const XmlNode& no = carrega("<I " + extra + "QTDE='" + std::to_string(i) + "' VL='x'/>");
        leitor_.le(no, 0);
        EXPECT_EQ(leitor_.texto(1), std::to_string(i));
        EXPECT_EQ(leitor_.texto(3), "x");
        EXPECT_EQ(leitor_.texto(0), "");
    }
}

TEST_F(LeitorLinhaTest, RowsNeedNotKeepAnOrder) {
    constexpr std::array<std::string_view, 6> partes{"CD_PRO='c'", "x='1'",  "QTDE='q'",
                                                     "y='2'",      "VL='v'", "z='3'"};
    std::string linhas;
    for (std::size_t i = 0; i < 64; ++i) {  // turned, and with every set of them
        linhas += "<I";
        for (std::size_t j = 0; j < partes.size(); ++j) {
            const std::size_t qual = (i + j) % partes.size();
            linhas += (i >> qual & 1U) != 0 ? " " + std::string(partes.at(qual)) : "";
        }
        linhas += "/>";
    }
    const XmlNode& no = carrega(linhas);
    for (std::size_t i = 0; i < 64; ++i) {
        leitor_.le(no, i);
        EXPECT_EQ(leitor_.texto(0), (i & 1U) != 0 ? "c" : "") << i;
        EXPECT_EQ(leitor_.texto(1), (i & 4U) != 0 ? "q" : "") << i;
        EXPECT_EQ(leitor_.texto(3), (i & 16U) != 0 ? "v" : "") << i;
    }
}

TEST_F(LeitorLinhaTest, ManyDifferentNames) {
    std::string linha = "<I ";
    for (int i = 0; i < 1000; ++i) {
        linha += "N" + std::to_string(i) + "='" + std::to_string(i) + "' ";
    }
    const XmlNode& no = carrega(linha + "VL='fim'/>");
    leitor_.le(no, 0);
    EXPECT_EQ(leitor_.texto(3), "fim");
    EXPECT_FALSE(leitor_.presente(0));
}

TEST_F(LeitorLinhaTest, UndeclaredPrefixesCountAsPrefixes) {
    const XmlNode& no = carrega("<I q:VL='1'/>");
    leitor_.le(no, 0);
    EXPECT_TRUE(leitor_.presente(3));
    esperaErroDeObjeto([&] { (void)leitor_.texto(3); });
}

}  // namespace
}  // namespace tarn
