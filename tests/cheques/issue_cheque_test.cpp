#include "cheques/issue_cheque.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "runtime/runtime_error.h"
#include "tests/support/answers.h"
#include "tests/support/test_environment.h"

namespace tarn {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr char accountsQuery[] =
    "comando=sel_banco_agencia_conta&ID_EMP_TARN=2041&ID_ETB_TARN=6001&UserCode=77&IC_ATV_INA=A"
    "&ServerName=SRV1";
constexpr char checkQuery[] =
    "comando=seleciona_um_controle_cheque_emitido&ID_EMP_TARN=2041&ID_ETB_TARN=6001"
    "&Id_Pes_Ban=901&Cd_Age_Ban= 0123 &Nr_Ccor= 4567-8 &Nr_Che=000123&Nr_Ser=AÇ1"
    "&ServerName=SRV1";
constexpr char townQuery[] = "comando=sel_dados_empresa&Id_Etb_Tarn=6001&ServerName=SRV1";
constexpr char recordQuery[] =
    "comando=adiciona_controle_cheque_emitido&ID_EMP_TARN=2041&ID_ETB_TARN=6001&UserCode=77"
    "&ID_PES_BAN=901&CD_AGE_BAN=0123&NR_CCOR=4567-8&NR_CHE=000123&NR_SER=AÇ1&VL_CH=1.234,22"
    "&DC_FAV=JOÃO & FILHOS&DT_DEP=15/03/2012&DC_OBS=COMPRA DE MATERIAL, 2ª VIA"
    "&ServerName=SRV1";

Box critical(const std::string& text) {
    return {text +
                " - Não foi possível obter os dados da Internet. Verifique a conexão com a "
                "Internet.",
            BoxIcon::Critical, "TarnEMISSAO - ERRO INESPERADO"};
}

class EmiteChequeTest : public testing::Test {
protected:
    EmiteChequeTest() {
        session_.NCOMPANYCODE = 2041;
        session_.ID_ETB_TARN = 6001;
        session_.UserCode = "77";
        session_.SERVERNAME = "SRV1";
    }
    std::vector<std::string> queries() { return seams_.loader.queries(); }
    ErroNumero errorOfIssuing() {
        try {
            emiteCheque(environment_, session_, fields_);
        } catch (const ErroExecucao& error) {
            return error.numero();
        }
        ADD_FAILURE() << "no error";
        return ErroNumero::ObjetoObrigatorio;
    }
    std::string refusedAt(CampoDoCheque field) {
        const auto refusal = recusaDosCampos(fields_);
        if (!refusal) {
            return "-";
        }
        EXPECT_EQ(refusal->campo, field);
        return refusal->texto;
    }
    void townIs(const std::string& attributes) {
        seams_.loader.on("sel_dados_empresa", answers::rowset("<z:row " + attributes + "/>"));
    }

    TestEnvironment seams_;
    Environment& environment_ = seams_.environment;
    Sessao session_;
    CamposCheque fields_{.conta = ContaBancaria{.descricao = "BANCO",
                                                .ID_PES_BAN = 901,
                                                .CD_AGE_BAN = " 0123 ",
                                                .NR_CCOR = " 4567-8 ",
                                                .NR_OFI_BAN = " 033 "},
                         .numero = " 000123 ",
                         .serie = " aç1 ",
                         .valor = " 1.234,22 ",
                         .favorecido = " João & Filhos ",
                         .dataDeposito = " 15/03/2012 ",
                         .observacao = " Compra de material, 2ª via "};
};

TEST_F(EmiteChequeTest, TheListOfAccounts) {
    seams_.loader.on(
        "sel_banco_agencia_conta",
        answers::rowset(
            "<z:row ID_PES_BAN='901' BANCO='ITAU' CD_AGE_BAN='0123' NR_CCOR='4567-8' "
            "NR_OFI_BAN='341' DC_CCOR='MATRIZ'/>"
            "<z:row NR_OFI_BAN='33' ID_PES_BAN='-902' BANCO='SANTANDER' CD_AGE_BAN='9' "
            "NR_CCOR='1'/>"
            "<z:row ID_PES_BAN='x' BANCO='C' CD_AGE_BAN='2' NR_CCOR='3' DC_CCOR='' dc_ccor='Z'/>"
            "<z:row/>"));
    const auto accounts = carregaContas(environment_, session_);
    ASSERT_TRUE(accounts);
    std::vector<std::string> shown;
    std::vector<std::int32_t> data;
    for (const ContaBancaria& account : *accounts) {
        shown.push_back(account.descricao);
        data.push_back(account.ID_PES_BAN);
    }
    EXPECT_THAT(shown, ElementsAre("------------", "ITAU - 0123 - 4567-8 - MATRIZ",
                                   "SANTANDER - 9 - 1", "C - 2 - 3 - ", " -  - "));
    EXPECT_THAT(data, ElementsAre(0, 901, -902, 0, 0));
    EXPECT_EQ(accounts->at(1).CD_AGE_BAN, "0123");
    EXPECT_EQ(accounts->at(1).NR_CCOR, "4567-8");
    EXPECT_EQ(accounts->at(1).NR_OFI_BAN, "341");
    EXPECT_EQ(accounts->at(4).NR_OFI_BAN, "");
    EXPECT_THAT(queries(), ElementsAre(accountsQuery));
    EXPECT_THAT(seams_.boxes.shown, IsEmpty());
}

TEST_F(EmiteChequeTest, WithoutAccountsTheListHasItsFirstItem) {
    for (const std::string& answer : {answers::rowset(""), std::string("<xml/>")}) {
        seams_.loader.on("sel_banco_agencia_conta", answer);
        const auto accounts = carregaContas(environment_, session_);
        ASSERT_TRUE(accounts);
        ASSERT_EQ(accounts->size(), 1U);
        EXPECT_EQ(accounts->front().descricao, "------------");
    }
}

TEST_F(EmiteChequeTest, AFailedListIsNone) {
    seams_.loader.failOn("sel_banco_agencia_conta");
    EXPECT_FALSE(carregaContas(environment_, session_));
    EXPECT_THAT(seams_.boxes.shown, ElementsAre(critical("ERRO    Tarn0009")));
}

TEST_F(EmiteChequeTest, AnAccountSpelledInAnotherCaseIsAnObjectError) {
    seams_.loader.on("sel_banco_agencia_conta", answers::rowset("<z:row Banco='ITAU'/>"));
    EXPECT_THROW(carregaContas(environment_, session_), ErroExecucao);
}

TEST_F(EmiteChequeTest, TheTestsOfTheFieldsInTheirOrder) {
    const CamposCheque filled = fields_;
    fields_ = {.conta = std::nullopt, .numero = " ", .serie = " ", .valor = " "};
    EXPECT_EQ(refusedAt(CampoDoCheque::Conta), "Banco/Ag./Conta é um campo obrigatório. ");
    fields_.conta = filled.conta;
    EXPECT_EQ(refusedAt(CampoDoCheque::Numero), "Nº Cheque é um campo obrigatório. ");
    fields_.numero = "1";
    EXPECT_EQ(refusedAt(CampoDoCheque::Serie), "Série é um campo obrigatório. ");
    fields_.serie = "A";
    EXPECT_EQ(refusedAt(CampoDoCheque::Valor), "Valor é um campo obrigatório. ");
    fields_.valor = "0,00";
    EXPECT_EQ(refusedAt(CampoDoCheque::Valor), "Valor deve ser maior que R$ 0,00. ");
    fields_.valor = "100,01";
    EXPECT_EQ(refusedAt(CampoDoCheque::Favorecido),
              "Favorecido é um campo obrigatório para cheques com valores maiores que R$ 100,00. ");
    fields_.favorecido = "   ";
    EXPECT_NE(refusedAt(CampoDoCheque::Favorecido), "-") << "blanks are no payee";
    fields_.valor = "100,00";
    EXPECT_EQ(refusedAt(CampoDoCheque::DataDeposito),
              "Data para Depósito é um campo obrigatório. ");
    fields_.dataDeposito = "15/03/2012";
    EXPECT_EQ(refusedAt(CampoDoCheque::Conta), "-") << "100,00 needs no payee";
    fields_.valor = "0,01";
    EXPECT_EQ(refusedAt(CampoDoCheque::Conta), "-");
    EXPECT_THAT(queries(), IsEmpty());
    EXPECT_THAT(seams_.boxes.shown, IsEmpty());
}

TEST_F(EmiteChequeTest, AnAmountThatIsNoNumberIsTheTypeError) {
    fields_.valor = ",";
    try {
        recusaDosCampos(fields_);
        ADD_FAILURE() << "no error";
    } catch (const ErroExecucao& error) {
        EXPECT_EQ(error.numero(), ErroNumero::TipoIncompativel);
    }
}

TEST_F(EmiteChequeTest, ANumberWithoutARowIsFree) {
    seams_.loader.on("seleciona_um", answers::rowset(""));
    EXPECT_TRUE(ValidaCheque(environment_, session_, fields_));
    EXPECT_THAT(queries(), ElementsAre(checkQuery));
    EXPECT_THAT(seams_.boxes.shown, IsEmpty());
}

TEST_F(EmiteChequeTest, ANumberWithARowIsTaken) {
    seams_.loader.on("seleciona_um", answers::rowset("<z:row/>"));
    EXPECT_FALSE(ValidaCheque(environment_, session_, fields_));
    const auto refusal = recusaDoNumero(environment_, session_, fields_);
    ASSERT_TRUE(refusal);
    EXPECT_EQ(refusal->campo, CampoDoCheque::Numero);
    EXPECT_EQ(refusal->texto,
              "Cheque com este número e série já foi emitido já emitido. \r"
              "Número: 000123\r"
              "Série: AÇ1");
}

TEST_F(EmiteChequeTest, AFailedCheckLetsTheNumberThrough) {
    seams_.loader.failOn("seleciona_um");
    EXPECT_TRUE(ValidaCheque(environment_, session_, fields_));
    EXPECT_THAT(seams_.boxes.shown, ElementsAre(critical("ERRO    Tarn0009")));
}

TEST_F(EmiteChequeTest, TheCheckWaitsForNumberAndSeries) {
    seams_.loader.on("seleciona_um", answers::rowset("<z:row/>"));
    fields_.numero = "  ";
    EXPECT_FALSE(recusaDoNumero(environment_, session_, fields_));
    fields_.numero = "1";
    fields_.serie = " ";
    EXPECT_FALSE(recusaDoNumero(environment_, session_, fields_));
    EXPECT_THAT(queries(), IsEmpty());
}

TEST_F(EmiteChequeTest, TheCheckWithoutAnAccount) {
    seams_.loader.on("seleciona_um", answers::rowset(""));
    fields_.conta = std::nullopt;
    ValidaCheque(environment_, session_, fields_);
    EXPECT_THAT(queries(),
                ElementsAre("comando=seleciona_um_controle_cheque_emitido&ID_EMP_TARN=2041"
                            "&ID_ETB_TARN=6001&Id_Pes_Ban=0&Cd_Age_Ban=&Nr_Ccor=&Nr_Che=000123"
                            "&Nr_Ser=AÇ1&ServerName=SRV1"));
}

TEST_F(EmiteChequeTest, PrintsThenRecords) {
    townIs("NM_MUN='Campinas'");
    seams_.loader.on("adiciona", answers::status("OK"));
    EXPECT_TRUE(emiteCheque(environment_, session_, fields_));
    EXPECT_THAT(queries(), ElementsAre(townQuery, recordQuery));
    ASSERT_EQ(seams_.spooler.jobs.size(), 1U);
    const auto& writes = seams_.spooler.jobs[0].writes;
    ASSERT_EQ(writes.size(), 9U) << "bank 33";
    EXPECT_EQ(writes[3], " " + std::string(93 + 15, ' ') + "#1.234,22#\r\n\r\n\r\n\r\n");
    EXPECT_EQ(writes[6], " " + std::string(12, ' ') + "JO\xC3O & FILHOS\r\n\r\n\r\n\r\n");
    EXPECT_EQ(writes[7].substr(0, 92), " " + std::string(72, ' ') + "Campinas  15      M")
        << "the town as it comes";
    EXPECT_THAT(seams_.boxes.shown,
                ElementsAre(Box{"Cheque emitido com sucesso!     ", BoxIcon::Information, "TArn"}));
}

TEST_F(EmiteChequeTest, TheRecordComesAfterThePrint) {
    townIs("NM_MUN='C'");
    seams_.loader.failOn("adiciona");
    std::size_t closedAtTheBox = 0;
    seams_.boxes.onShow = [&](const Box&) {
        closedAtTheBox = seams_.spooler.jobs.size() + (seams_.spooler.jobs.at(0).closed ? 1 : 0);
    };
    EXPECT_FALSE(emiteCheque(environment_, session_, fields_));
    EXPECT_EQ(closedAtTheBox, 2U) << "one job, closed";
    EXPECT_THAT(seams_.boxes.shown, ElementsAre(critical("ERRO Tarn0009")));
    EXPECT_THAT(queries(), ElementsAre(townQuery, recordQuery)) << "not sent again";
}

TEST_F(EmiteChequeTest, WithoutTheTownNothingIsPrintedOrRecorded) {
    seams_.loader.failOn("sel_dados_empresa");
    EXPECT_FALSE(emiteCheque(environment_, session_, fields_));
    EXPECT_THAT(queries(), ElementsAre(townQuery));
    EXPECT_THAT(seams_.spooler.calls, IsEmpty());
    EXPECT_THAT(seams_.boxes.shown, ElementsAre(critical("ERRO Tarn0009")));
}

TEST_F(EmiteChequeTest, AnAbsentTownIsEmptyAndAMissingRowAnError) {
    townIs("NM_FIL='F'");
    seams_.loader.on("adiciona", answers::status("OK"));
    EXPECT_TRUE(emiteCheque(environment_, session_, fields_));
    EXPECT_EQ(seams_.spooler.jobs.at(0).writes.at(7).substr(0, 85),
              " " + std::string(80, ' ') + "  15");
    seams_.loader = ScriptedLoader();
    for (const std::string& answer :
         {answers::rowset(""), answers::rowset("<z:row nm_mun='C'/>")}) {
        seams_.loader.on("sel_dados_empresa", answer);
        seams_.spooler = RecordingSpooler();
        EXPECT_EQ(errorOfIssuing(), ErroNumero::VariavelObjeto);
        EXPECT_THAT(seams_.spooler.calls, IsEmpty());
        EXPECT_THAT(queries().back(), townQuery);
    }
}

TEST_F(EmiteChequeTest, WhatCannotBeReadIsFoundBeforeThePrint) {
    townIs("NM_MUN='C'");
    for (const auto& [bank, number] : {std::pair{"", ErroNumero::TipoIncompativel},
                                       {"B1", ErroNumero::TipoIncompativel},
                                       {"40000", ErroNumero::Estouro}}) {
        fields_.conta->NR_OFI_BAN = bank;
        EXPECT_EQ(errorOfIssuing(), number) << bank;
    }
    fields_.conta->NR_OFI_BAN = "1";
    fields_.dataDeposito = "15/03";
    EXPECT_EQ(errorOfIssuing(), ErroNumero::ForaDoIntervalo);
    EXPECT_THAT(seams_.spooler.calls, IsEmpty());
    EXPECT_THAT(queries(), testing::Each(townQuery)) << "and before the record";
}

TEST_F(EmiteChequeTest, APrinterThatIsntThereChangesNothing) {
    townIs("NM_MUN='C'");
    seams_.loader.on("adiciona", answers::status("OK"));
    seams_.spooler.failOpen = 0;
    EXPECT_TRUE(emiteCheque(environment_, session_, fields_));
    EXPECT_THAT(seams_.spooler.jobs, IsEmpty());
    EXPECT_THAT(queries(), ElementsAre(townQuery, recordQuery));
    EXPECT_EQ(seams_.boxes.shown.size(), 1U);
}

TEST_F(EmiteChequeTest, ARefusedRecordShowsTheServersWords) {
    townIs("NM_MUN='C'");
    seams_.loader.on("adiciona", answers::status("Cheque &lt;b&gt; bloqueado. "))
        .on("adiciona", answers::status("ok"));
    EXPECT_FALSE(emiteCheque(environment_, session_, fields_));
    EXPECT_FALSE(emiteCheque(environment_, session_, fields_));
    EXPECT_THAT(seams_.boxes.shown, ElementsAre(Box{"Cheque <b> bloqueado. ", BoxIcon::Exclamation},
                                                Box{"ok", BoxIcon::Exclamation}));
    EXPECT_EQ(seams_.spooler.jobs.size(), 2U) << "a new click prints again";
}

TEST_F(EmiteChequeTest, AnEmptyAnswerIsToldAndOneWithoutAStatusIsAnError) {
    EXPECT_FALSE(chequeGravado(environment_, XmlDocument()));
    EXPECT_THAT(seams_.boxes.shown,
                ElementsAre(Box{"Houve um problema para gravar cheque no banco de dados. ",
                                BoxIcon::Exclamation}));
    townIs("NM_MUN='C'");
    seams_.loader.on("adiciona", "<R a='0' s='OK'/>");
    EXPECT_EQ(errorOfIssuing(), ErroNumero::VariavelObjeto);
    EXPECT_EQ(seams_.spooler.jobs.size(), 1U);
}

}  // namespace
}  // namespace tarn
