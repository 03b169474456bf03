#include "cheques/issue_cheque.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "runtime/runtime_error.h"
#include "tests/support/answers.h"
#include "tests/support/boxes.h"
#include "tests/support/sessions.h"
#include "tests/support/test_environment.h"
#include "tests/support/texts.h"

namespace tarn::test {
namespace {

using testing::ElementsAre;

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

class IssueChequeTest : public testing::Test {
protected:
    std::vector<std::string> queries() { return seams_.loader.queries(); }
    RuntimeErrorCode errorOfIssuing() {
        try {
            issueCheque(environment_, session_, fields_);
        } catch (const RuntimeError& error) {
            return error.number();
        }
        ADD_FAILURE() << "no error";
        return RuntimeErrorCode::ObjectRequired;
    }
    std::string refusedAt(ChequeField field) {
        const auto refusal = fieldRefusal(fields_);
        if (!refusal) {
            return "-";
        }
        EXPECT_EQ(refusal->field, field);
        return refusal->text;
    }
    void townIs(const std::string& attributes) {
        seams_.loader.on("sel_dados_empresa", answers::rowset("<z:row " + attributes + "/>"));
    }

    TestEnvironment seams_;
    Environment& environment_ = seams_.environment;
    Sessao session_ = sessionOf(2041, 6001);
    ChequeFields fields_{.account = BankAccount{.description = "BANCO",
                                                .ID_PES_BAN = 901,
                                                .CD_AGE_BAN = " 0123 ",
                                                .NR_CCOR = " 4567-8 ",
                                                .NR_OFI_BAN = " 033 "},
                         .number = " 000123 ",
                         .series = " aç1 ",
                         .value = " 1.234,22 ",
                         .payee = " João & Filhos ",
                         .depositDate = " 15/03/2012 ",
                         .observation = " Compra de material, 2ª via "};
};

TEST_F(IssueChequeTest, TheListOfAccounts) {
    seams_.loader.on(
        "sel_banco_agencia_conta",
        answers::rowset(
            "<z:row ID_PES_BAN='901' BANCO='ITAU' CD_AGE_BAN='0123' NR_CCOR='4567-8' "
            "NR_OFI_BAN='341' DC_CCOR='MATRIZ'/>"
            "<z:row NR_OFI_BAN='33' ID_PES_BAN='-902' BANCO='SANTANDER' CD_AGE_BAN='9' "
            "NR_CCOR='1'/>"
            "<z:row ID_PES_BAN='x' BANCO='C' CD_AGE_BAN='2' NR_CCOR='3' DC_CCOR='' dc_ccor='Z'/>"
            "<z:row/>"));
    const auto accounts = loadAccounts(environment_, session_);
    ASSERT_TRUE(accounts);
    std::vector<std::string> shown;
    std::vector<std::int32_t> data;
    for (const BankAccount& account : *accounts) {
        shown.push_back(account.description);
        data.push_back(account.ID_PES_BAN);
    }
    EXPECT_EQ(shown, (Texts{"------------", "ITAU - 0123 - 4567-8 - MATRIZ", "SANTANDER - 9 - 1",
                            "C - 2 - 3 - ", " -  - "}));
    EXPECT_THAT(data, ElementsAre(0, 901, -902, 0, 0));
    EXPECT_EQ(accounts->at(1).CD_AGE_BAN, "0123");
    EXPECT_EQ(accounts->at(1).NR_CCOR, "4567-8");
    EXPECT_EQ(accounts->at(1).NR_OFI_BAN, "341");
    EXPECT_EQ(accounts->at(4).NR_OFI_BAN, "");
    EXPECT_EQ(queries(), (Texts{accountsQuery}));
    EXPECT_EQ(seams_.boxes.shown, Boxes{});
}

TEST_F(IssueChequeTest, WithoutAccountsTheListHasItsFirstItem) {
    for (const std::string& answer : {answers::rowset(""), std::string("<xml/>")}) {
        seams_.loader.on("sel_banco_agencia_conta", answer);
        const auto accounts = loadAccounts(environment_, session_);
        ASSERT_TRUE(accounts);
        ASSERT_EQ(accounts->size(), 1U);
        EXPECT_EQ(accounts->front().description, "------------");
    }
}

TEST_F(IssueChequeTest, AFailedListIsNone) {
    seams_.loader.failOn("sel_banco_agencia_conta");
    EXPECT_FALSE(loadAccounts(environment_, session_));
    EXPECT_EQ(seams_.boxes.shown, (Boxes{noInternet9Wide}));
}

TEST_F(IssueChequeTest, AnAccountSpelledInAnotherCaseIsAnObjectError) {
    seams_.loader.on("sel_banco_agencia_conta", answers::rowset("<z:row Banco='ITAU'/>"));
    EXPECT_THROW(loadAccounts(environment_, session_), RuntimeError);
}

TEST_F(IssueChequeTest, TheTestsOfTheFieldsInTheirOrder) {
    const ChequeFields filled = fields_;
    fields_ = {.account = std::nullopt, .number = " ", .series = " ", .value = " "};
    EXPECT_EQ(refusedAt(ChequeField::Account), "Banco/Ag./Conta é um campo obrigatório. ");
    fields_.account = filled.account;
    EXPECT_EQ(refusedAt(ChequeField::Number), "Nº Cheque é um campo obrigatório. ");
    fields_.number = "1";
    EXPECT_EQ(refusedAt(ChequeField::Series), "Série é um campo obrigatório. ");
    fields_.series = "A";
    EXPECT_EQ(refusedAt(ChequeField::Amount), "Valor é um campo obrigatório. ");
    fields_.value = "0,00";
    EXPECT_EQ(refusedAt(ChequeField::Amount), "Valor deve ser maior que R$ 0,00. ");
    fields_.value = "100,01";
    EXPECT_EQ(refusedAt(ChequeField::Payee),
              "Favorecido é um campo obrigatório para cheques com valores maiores que R$ 100,00. ");
    fields_.payee = "   ";
    EXPECT_NE(refusedAt(ChequeField::Payee), "-") << "blanks are no payee";
    fields_.value = "100,00";
    EXPECT_EQ(refusedAt(ChequeField::DepositDate), "Data para Depósito é um campo obrigatório. ");
    fields_.depositDate = "15/03/2012";
    EXPECT_EQ(refusedAt(ChequeField::Account), "-") << "100,00 needs no payee";
    fields_.value = "0,01";
    EXPECT_EQ(refusedAt(ChequeField::Account), "-");
    EXPECT_EQ(queries(), Texts{});
    EXPECT_EQ(seams_.boxes.shown, Boxes{});
}

TEST_F(IssueChequeTest, AnAmountThatIsNoNumberIsTheTypeError) {
    fields_.value = ",";
    try {
        fieldRefusal(fields_);
        ADD_FAILURE() << "no error";
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.number(), RuntimeErrorCode::TypeMismatch);
    }
}

TEST_F(IssueChequeTest, ANumberWithoutARowIsFree) {
    seams_.loader.on("seleciona_um", answers::rowset(""));
    EXPECT_TRUE(ValidaCheque(environment_, session_, fields_));
    EXPECT_EQ(queries(), (Texts{checkQuery}));
    EXPECT_EQ(seams_.boxes.shown, Boxes{});
}

TEST_F(IssueChequeTest, ANumberWithARowIsTaken) {
    seams_.loader.on("seleciona_um", answers::rowset("<z:row/>"));
    EXPECT_FALSE(ValidaCheque(environment_, session_, fields_));
    const auto refusal = numberRefusal(environment_, session_, fields_);
    ASSERT_TRUE(refusal);
    EXPECT_EQ(refusal->field, ChequeField::Number);
    EXPECT_EQ(refusal->text,
              "Cheque com este número e série já foi emitido já emitido. \r"
              "Número: 000123\r"
              "Série: AÇ1");
}

TEST_F(IssueChequeTest, AFailedCheckLetsTheNumberThrough) {
    seams_.loader.failOn("seleciona_um");
    EXPECT_TRUE(ValidaCheque(environment_, session_, fields_));
    EXPECT_EQ(seams_.boxes.shown, (Boxes{noInternet9Wide}));
}

TEST_F(IssueChequeTest, TheCheckWaitsForNumberAndSeries) {
    seams_.loader.on("seleciona_um", answers::rowset("<z:row/>"));
    fields_.number = "  ";
    EXPECT_FALSE(numberRefusal(environment_, session_, fields_));
    fields_.number = "1";
    fields_.series = " ";
    EXPECT_FALSE(numberRefusal(environment_, session_, fields_));
    EXPECT_EQ(queries(), Texts{});
}

TEST_F(IssueChequeTest, TheCheckWithoutAnAccount) {
    seams_.loader.on("seleciona_um", answers::rowset(""));
    fields_.account = std::nullopt;
    ValidaCheque(environment_, session_, fields_);
    EXPECT_EQ(queries(), (Texts{"comando=seleciona_um_controle_cheque_emitido&ID_EMP_TARN=2041"
                                "&ID_ETB_TARN=6001&Id_Pes_Ban=0&Cd_Age_Ban=&Nr_Ccor=&Nr_Che=000123"
                                "&Nr_Ser=AÇ1&ServerName=SRV1"}));
}

TEST_F(IssueChequeTest, PrintsThenRecords) {
    townIs("NM_MUN='Campinas'");
    seams_.loader.on("adiciona", answers::status("OK"));
    EXPECT_TRUE(issueCheque(environment_, session_, fields_));
    EXPECT_EQ(queries(), (Texts{townQuery, recordQuery}));
    ASSERT_EQ(seams_.spooler.jobs.size(), 1U);
    const auto& writes = seams_.spooler.jobs[0].writes;
    ASSERT_EQ(writes.size(), 9U) << "bank 33";
    EXPECT_EQ(writes[3], " " + std::string(93 + 15, ' ') + "#1.234,22#\r\n\r\n\r\n\r\n");
    EXPECT_EQ(writes[6], " " + std::string(12, ' ') + "JO\xC3O & FILHOS\r\n\r\n\r\n\r\n");
    EXPECT_EQ(writes[7].substr(0, 92), " " + std::string(72, ' ') + "Campinas  15      M")
        << "the town as it comes";
    EXPECT_EQ(seams_.boxes.shown,
              (Boxes{Box{"Cheque emitido com sucesso!     ", BoxIcon::Information, "TArn"}}));
}

TEST_F(IssueChequeTest, TheRecordComesAfterThePrint) {
    townIs("NM_MUN='C'");
    seams_.loader.failOn("adiciona");
    std::size_t closedAtTheBox = 0;
    seams_.boxes.onShow = [&](const Box&) {
        closedAtTheBox = seams_.spooler.jobs.size() + (seams_.spooler.jobs.at(0).closed ? 1 : 0);
    };
    EXPECT_FALSE(issueCheque(environment_, session_, fields_));
    EXPECT_EQ(closedAtTheBox, 2U) << "one job, closed";
    EXPECT_EQ(seams_.boxes.shown, (Boxes{noInternet9}));
    EXPECT_EQ(queries(), (Texts{townQuery, recordQuery})) << "not sent again";
}

TEST_F(IssueChequeTest, WithoutTheTownNothingIsPrintedOrRecorded) {
    seams_.loader.failOn("sel_dados_empresa");
    EXPECT_FALSE(issueCheque(environment_, session_, fields_));
    EXPECT_EQ(queries(), (Texts{townQuery}));
    EXPECT_THAT(seams_.spooler.calls, testing::IsEmpty());
    EXPECT_EQ(seams_.boxes.shown, (Boxes{noInternet9}));
}

TEST_F(IssueChequeTest, AnAbsentTownIsEmptyAndAMissingRowAnError) {
    townIs("NM_FIL='F'");
    seams_.loader.on("adiciona", answers::status("OK"));
    EXPECT_TRUE(issueCheque(environment_, session_, fields_));
    EXPECT_EQ(seams_.spooler.jobs.at(0).writes.at(7).substr(0, 85),
              " " + std::string(80, ' ') + "  15");
    seams_.loader = ScriptedLoader();
    for (const std::string& answer :
         {answers::rowset(""), answers::rowset("<z:row nm_mun='C'/>")}) {
        seams_.loader.on("sel_dados_empresa", answer);
        seams_.spooler = RecordingSpooler();
        EXPECT_EQ(errorOfIssuing(), RuntimeErrorCode::ObjectVariable);
        EXPECT_THAT(seams_.spooler.calls, testing::IsEmpty());
        EXPECT_THAT(queries().back(), townQuery);
    }
}

TEST_F(IssueChequeTest, WhatCannotBeReadIsFoundBeforeThePrint) {
    townIs("NM_MUN='C'");
    for (const auto& [bank, number] : {std::pair{"", RuntimeErrorCode::TypeMismatch},
                                       {"B1", RuntimeErrorCode::TypeMismatch},
                                       {"40000", RuntimeErrorCode::Overflow}}) {
        fields_.account->NR_OFI_BAN = bank;
        EXPECT_EQ(errorOfIssuing(), number) << bank;
    }
    fields_.account->NR_OFI_BAN = "1";
    fields_.depositDate = "15/03";
    EXPECT_EQ(errorOfIssuing(), RuntimeErrorCode::OutOfRange);
    EXPECT_THAT(seams_.spooler.calls, testing::IsEmpty());
    EXPECT_THAT(queries(), testing::Each(townQuery)) << "and before the record";
}

TEST_F(IssueChequeTest, APrinterThatIsntThereChangesNothing) {
    townIs("NM_MUN='C'");
    seams_.loader.on("adiciona", answers::status("OK"));
    seams_.spooler.failOpen = 0;
    EXPECT_TRUE(issueCheque(environment_, session_, fields_));
    EXPECT_THAT(seams_.spooler.jobs, testing::IsEmpty());
    EXPECT_EQ(queries(), (Texts{townQuery, recordQuery}));
    EXPECT_EQ(seams_.boxes.shown.size(), 1U);
}

TEST_F(IssueChequeTest, ARefusedRecordShowsTheServersWords) {
    townIs("NM_MUN='C'");
    seams_.loader.on("adiciona", answers::status("Cheque &lt;b&gt; bloqueado. "))
        .on("adiciona", answers::status("ok"));
    EXPECT_FALSE(issueCheque(environment_, session_, fields_));
    EXPECT_FALSE(issueCheque(environment_, session_, fields_));
    EXPECT_EQ(seams_.boxes.shown, (Boxes{Box{"Cheque <b> bloqueado. ", BoxIcon::Exclamation},
                                         Box{"ok", BoxIcon::Exclamation}}));
    EXPECT_EQ(seams_.spooler.jobs.size(), 2U) << "a new click prints again";
}

TEST_F(IssueChequeTest, AnEmptyAnswerIsToldAndOneWithoutAStatusIsAnError) {
    EXPECT_FALSE(chequeRecorded(environment_, XmlDocument()));
    EXPECT_EQ(seams_.boxes.shown,
              (Boxes{Box{"Houve um problema para gravar cheque no banco de dados. ",
                         BoxIcon::Exclamation}}));
    townIs("NM_MUN='C'");
    seams_.loader.on("adiciona", "<R a='0' s='OK'/>");
    EXPECT_EQ(errorOfIssuing(), RuntimeErrorCode::ObjectVariable);
    EXPECT_EQ(seams_.spooler.jobs.size(), 1U);
}

TEST_F(IssueChequeTest, ANameOfTheAccountInAnotherSpellingIsAnError) {
    seams_.loader.on("sel_banco_agencia_conta", answers::rowset("<z:row dc_ccor='MATRIZ'/>"));
    EXPECT_THROW(loadAccounts(environment_, session_), RuntimeError);
}

}  // namespace
}  // namespace tarn::test
