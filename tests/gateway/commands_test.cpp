#include "gateway/commands.h"

#include <gtest/gtest.h>

#include <set>

#include "gateway/failure_texts.h"
#include "runtime/runtime_error.h"

namespace tarn::test {
namespace {

const Sessao session{.NCOMPANYCODE = 2161,
                     .ID_ETB_TARN = 3381,
                     .COMPANYNAME = "EMPRESA",
                     .UserCode = "u 7",
                     .SERVERNAME = "SRV1",
                     .DATA = "05/09/2012",
                     .VersaoServidor = "",
                     .TextoMensagem = "",
                     .ConfirmaMensagem = "",
                     .TipoEtiqueta = "C",
                     .DirSistema = "",
                     .PrefixoArquivo = ""};

const commands::SearchFilter search{.customer = "991",
                                    .branch = 4,
                                    .dueFrom = "01/01/2012",
                                    .dueTo = "31/12/2012",
                                    .issuedFrom = "02/02/2012",
                                    .issuedTo = ""};
const commands::Slip slip{.branch = "33",
                          .documentKind = "201",
                          .document = "77/1",
                          .controlNumber = "CTL 9",
                          .portfolio = "57",
                          .bankNumber = "00000012"};
const commands::Cheque cheque{.bank = 341,
                              .agency = " 0123 ",
                              .account = " 4567-8 ",
                              .number = " 000123 ",
                              .series = " aç ",
                              .value = " 1.234,50 ",
                              .payee = " joão & cia ",
                              .depositDate = " 05/09/2012 ",
                              .observation = " aluguel "};

struct Case {
    std::string query;
    std::string_view expected;
};

// The 39 commands, in the order of the server's catalogue.
const std::vector<Case>& catalogue() {
    static const std::vector<Case> cases{
        {commands::VERSAO_TARN_EMISSAO("07/01/2009"),
         "comando=VERSAO_TARN_EMISSAO&Versao=07/01/2009"},
        {commands::LOGIN("emp 1", "ana", "s&n#a"),
         "comando=LOGIN&EMPRESA=emp 1&USUARIO=ana&SENHA=s&n#a"},
        {commands::verifica_direito_acesso(session, "EMI001"),
         "Comando=verifica_direito_acesso&nId_Pes_Usu=u 7&ServerName=SRV1&sTransacao=EMI001"},
        {commands::sel_dados_empresa(session),
         "comando=sel_dados_empresa&Id_Etb_Tarn=3381&ServerName=SRV1"},
        {commands::sel_ordem_fatu(session),
         "comando=sel_ordem_fatu&ID_ETB_TARN=3381&ServerName=SRV1"},
        {commands::sp_can_oft(session, "12", " 34 "),
         "comando=sp_can_oft&id_etb_tarn=3381&id_ord_fat=12&id_ord_crg= 34 &ServerName=SRV1"},
        {commands::Seleciona_Obs_Vnd_X_Ord(session, "12"),
         "comando=Seleciona_Obs_Vnd_X_Ord&Id_Etb_Tarn=3381&Id_Ord_Fat=12&ServerName=SRV1"},
        {commands::Seleciona_Obs_Ord_X_Est(session, "12"),
         "comando=Seleciona_Obs_Ord_X_Est&Id_Etb_Tarn=3381&Id_Ord_Fat=12&ServerName=SRV1"},
        {commands::SP_GERA_NF(session, "12"),
         "COMANDO=SP_GERA_NF&ID_ETB_TARN=3381&ID_ORD_FAT=12&ID_PES=u 7&ServerName=SRV1"},
        {commands::sel_gera_nf(session, "555", "A"),
         "comando=sel_gera_nf&ID_ETB_TARN=3381&ID_NF_KESTO=555&CD_SER_NF=A&ServerName=SRV1"},
        {commands::MANUTENCAO_OFT(session, {.order = "12",
                                            .observation = "10% & |x| %&",
                                            .quantity = "1.234,500",
                                            .grossWeight = "0,000",
                                            .netWeight = "2,000"}),
         "COMANDO=MANUTENCAO_OFT&ID_ETB_TARN=3381&ID_ORD_FAT=12&ServerName=SRV1"
         "&DC_OBS=10|| | |x| |||&QT_ESP=1.234,500&PESO_BRU=0,000&PESO_LIQ=2,000"},
        {commands::sel_impr_ordem_fatu(session, "12"),
         "comando=sel_impr_ordem_fatu&ID_ETB_TARN=3381&ID_ORD_FAT=12&ServerName=SRV1"},
        {commands::SEL_NF(session, "555", "A"),
         "comando=SEL_NF&ID_ETB_TARN=3381&ID_NF_KESTO=555&CD_SER_NF=A&ServerName=SRV1"},
        {commands::sp_can_nf(session, {.noteKind = "S",
                                       .note = "555",
                                       .series = "A",
                                       .reason = 9,
                                       .withoutRebilling = true}),
         "comando=sp_can_nf&ID_ETB_TARN=3381&IC_TIP_NF=S&ID_NF_KESTO=555&CD_SER_NF=A&id_mot_can=9"
         "&id_pes_usu=u 7&Tipo_Can=S&ServerName=SRV1"},
        {commands::SEL_SERIE_NF(session), "comando=SEL_SERIE_NF&ServerName=SRV1"},
        {commands::SEL_MOT_CAN(session), "comando=SEL_MOT_CAN&ID_ETB_TARN=3381&ServerName=SRV1"},
        {commands::sel_duplicata(session, 1, search),
         "comando=sel_duplicata&ID_EMP_TARN=2161&ID_TIP_DOC=1,201,202,203,262,341,342,361"
         "&ID_PES_CLI=991&ID_ETB_TARN=4&DT_VNC_DE=01/01/2012&DT_VNC_ATE=31/12/2012"
         "&DT_EMS_DE=02/02/2012&DT_EMS_ATE=&ID_PES_USU=u 7&ServerName=SRV1"},
        {commands::sel_filiais(session),
         "comando=sel_filiais&ID_EMP_TARN=2161&UserCode=u 7&ServerName=SRV1"},
        {commands::Sel_Cliente(session, " a&b%c "),
         "comando=Sel_Cliente&id_emp_tarn=2161&Filtro= a|b%c &ServerName=SRV1"},
        {commands::sel_boleto(session, search, 57, true),
         "comando=sel_boleto&ID_EMP_TARN=2161&ID_PES_CLI=991&ID_ETB_TARN=4&ID_CRT_COB=57"
         "&DT_VNC_DE=01/01/2012&DT_VNC_ATE=31/12/2012&DT_EMS_DE=02/02/2012&DT_EMS_ATE="
         "&ID_PES_USU=u 7&IC_INC_CAR=S&ServerName=SRV1"},
        {commands::sel_carteira(session), "comando=sel_carteira&ID_EMP_TARN=2161&ServerName=SRV1"},
        {commands::sel_carteira_cob(session, 57),
         "comando=sel_carteira_cob&ID_EMP_TARN=2161&ID_CRT_COB=57&ServerName=SRV1"},
        {commands::altera_docto_cob(session, slip),
         "comando=altera_docto_cob&ID_ETB=33&ID_TIP_DOC=201&NR_DOC=77/1&NR_BOL_BANC=00000012"
         "&ServerName=SRV1"},
        {commands::altera_docto_rec(session, slip, commands::ControlKey::ID_NR_CTL),
         "comando=altera_docto_rec&ID_ETB=33&ID_NR_CTL=CTL 9&ServerName=SRV1"
         "&NR_BOL_BANC=00000012"},
        {commands::insere_car_cob(session, slip),
         "comando=insere_car_cob&ID_EMP_TARN=2161&ID_ETB=33&ID_TIP_DOC=201&NR_DOC=77/1"
         "&ID_CRT_COB=57&NR_BOL_BANC=00000012&ID_PES_USU=u 7&ServerName=SRV1"},
        {commands::insere_car_rec(session, slip),
         "comando=insere_car_rec&ID_EMP_TARN=2161&ID_ETB=33&ID_NR_CTL=CTL 9&ID_CRT_COB=57"
         "&NR_BOL_BANC=00000012&ID_PES_USU=u 7&ServerName=SRV1"},
        {commands::sel_banco_agencia_conta(session),
         "comando=sel_banco_agencia_conta&ID_EMP_TARN=2161&ID_ETB_TARN=3381&UserCode=u 7"
         "&IC_ATV_INA=A&ServerName=SRV1"},
        {commands::seleciona_um_controle_cheque_emitido(session, cheque),
         "comando=seleciona_um_controle_cheque_emitido&ID_EMP_TARN=2161&ID_ETB_TARN=3381"
         "&Id_Pes_Ban=341&Cd_Age_Ban= 0123 &Nr_Ccor= 4567-8 &Nr_Che=000123&Nr_Ser=AÇ"
         "&ServerName=SRV1"},
        {commands::adiciona_controle_cheque_emitido(session, cheque),
         "comando=adiciona_controle_cheque_emitido&ID_EMP_TARN=2161&ID_ETB_TARN=3381&UserCode=u 7"
         "&ID_PES_BAN=341&CD_AGE_BAN=0123&NR_CCOR=4567-8&NR_CHE=000123&NR_SER=AÇ&VL_CH=1.234,50"
         "&DC_FAV=JOÃO & CIA&DT_DEP=05/09/2012&DC_OBS=ALUGUEL&ServerName=SRV1"},
        {commands::sel_etiquetas(session, "NATAL 12", "007", "1.000"),
         "comando=sel_etiquetas&ID_EMP_TARN=2161&sDc_Mot_Imp=NATAL 12&nSeq_De=7&nSeq_Ate=1000"
         "&ServerName=SRV1"},
        {commands::sel_motivos(session),
         "comando=sel_motivos&ID_EMP_TARN=2161&ServerName=SRV1&sIc_Ver_Eti=C"},
        {commands::sel_filiais_remetente(session),
         "comando=sel_filiais_remetente&ID_EMP_TARN=2161&nId_Pes_Usu=u 7&ServerName=SRV1"},
        {commands::exclui_etiquetas(session, "--------", "7,5", " 9 "),
         "comando=exclui_etiquetas&ID_EMP_TARN=2161&nSeq_De=7,5&nSeq_Ate=9&nId_Motivo=--------"
         "&ServerName=SRV1"},
        {commands::sel_filias(session),
         "comando=sel_filias&nId_Emp_Tarn=2161&nId_Pes_Usu=u 7&ServerName=SRV1"},
        {commands::sel_pais(session), "comando=sel_pais&ServerName=SRV1"},
        {commands::sel_estado(session, 55), "comando=sel_estado&Pais=55&ServerName=SRV1"},
        {commands::sel_cidade(session, -3), "comando=sel_cidade&Estado=-3&ServerName=SRV1"},
        {commands::sel_dados_etq(session, {.branches = "1, 2, 3",
                                           .country = {.position = 1, .data = 55},
                                           .state = {.position = 2, .data = 35},
                                           .town = {.position = 1, .data = -7},
                                           .product = "p",
                                           .postalCodeFrom = "01000",
                                           .postalCodeTo = "02000",
                                           .saleFrom = "01/01/2012",
                                           .saleTo = "02/01/2012",
                                           .amountFrom = "1,00",
                                           .amountTo = "2,00",
                                           .quantityFrom = "3",
                                           .quantityTo = "4",
                                           .byPostalCode = true}),
         "comando=sel_dados_etq&nIdEtbTarn=1, 2, 3&nIdPais=55&nIdUf=35&nIdMun=-7&nIdMatPro=p"
         "&nCepDe=01000&nCepAte=02000&dDtDe=01/01/2012&dDtAte=02/01/2012&nVlrDe=1,00&nVlrAte=2,00"
         "&nQtDe=3&nQtAte=4&nIdOrd=CEP&ServerName=SRV1"},
        {commands::sel_dados_remetente(session, 0),
         "comando=sel_dados_remetente&nId_Emp_Tarn=2161&nId_Etb_Tarn=0&ServerName=SRV1"},
    };
    return cases;
}

TEST(Commands, AllThirtyNineAsTheServerKnowsThem) {
    std::set<std::string> keys;
    for (const Case& testCase : catalogue()) {
        EXPECT_EQ(testCase.query, testCase.expected);
        keys.insert(testCase.query.substr(0, testCase.query.find('&')));
    }
    EXPECT_EQ(keys.size(), 39U);
}

TEST(Commands, TheSecondSpellingOfTheControlNumber) {
    EXPECT_EQ(commands::altera_docto_rec(session, slip, commands::ControlKey::ID_NR_CLT),
              "comando=altera_docto_rec&ID_ETB=33&ID_NR_CLT=CTL 9&ServerName=SRV1"
              "&NR_BOL_BANC=00000012");
}

TEST(Commands, CancellationWithoutReprint) {
    EXPECT_EQ(
        commands::sp_can_nf(
            session,
            {.noteKind = "E", .note = "1", .series = "", .reason = -1, .withoutRebilling = false}),
        "comando=sp_can_nf&ID_ETB_TARN=3381&IC_TIP_NF=E&ID_NF_KESTO=1&CD_SER_NF="
        "&id_mot_can=-1&id_pes_usu=u 7&Tipo_Can=C&ServerName=SRV1");
}

TEST(Commands, DocumentKinds) {
    const std::string rest =
        "&ID_PES_CLI=&ID_ETB_TARN=&DT_VNC_DE=&DT_VNC_ATE=&DT_EMS_DE=&DT_EMS_ATE=&ID_PES_USU=u 7"
        "&ServerName=SRV1";
    EXPECT_EQ(commands::sel_duplicata(session, 12, {}),
              "comando=sel_duplicata&ID_EMP_TARN=2161&ID_TIP_DOC=12" + rest);
    EXPECT_EQ(commands::sel_duplicata(session, 0, {}),
              "comando=sel_duplicata&ID_EMP_TARN=2161&ID_TIP_DOC=1,12" + rest);
}

TEST(Commands, ItemDataOfZeroGoesEmpty) {
    EXPECT_EQ(commands::sel_boleto(session, {}, 0, false),
              "comando=sel_boleto&ID_EMP_TARN=2161&ID_PES_CLI=&ID_ETB_TARN=&ID_CRT_COB="
              "&DT_VNC_DE=&DT_VNC_ATE=&DT_EMS_DE=&DT_EMS_ATE=&ID_PES_USU=u 7&IC_INC_CAR=N"
              "&ServerName=SRV1");
    EXPECT_EQ(commands::sel_carteira_cob(session, 0),
              "comando=sel_carteira_cob&ID_EMP_TARN=2161&ID_CRT_COB=&ServerName=SRV1");
}

TEST(Commands, BulkLabelsLeaveStateAndTownOutAtPosition0) {
    EXPECT_EQ(commands::sel_dados_etq(session, {.country = {.position = 0, .data = -1},
                                                .state = {.position = 0, .data = -1}}),
              "comando=sel_dados_etq&nIdEtbTarn=&nIdPais=&nIdMatPro=&nCepDe=&nCepAte=&dDtDe="
              "&dDtAte=&nVlrDe=&nVlrAte=&nQtDe=&nQtAte=&nIdOrd=NOME&ServerName=SRV1");
    EXPECT_EQ(commands::sel_dados_etq(session, {.country = {.position = 1, .data = 55},
                                                .state = {.position = 1, .data = 0}}),
              "comando=sel_dados_etq&nIdEtbTarn=&nIdPais=55&nIdUf=0&nIdMatPro=&nCepDe=&nCepAte="
              "&dDtDe=&dDtAte=&nVlrDe=&nVlrAte=&nQtDe=&nQtAte=&nIdOrd=NOME&ServerName=SRV1");
}

TEST(Commands, LabelQueueAndRanges) {
    EXPECT_EQ(commands::sel_etiquetas(session, "x"),
              "comando=sel_etiquetas&ID_EMP_TARN=2161&sDc_Mot_Imp=x&nSeq_De=&nSeq_Ate="
              "&ServerName=SRV1");
    EXPECT_THROW(commands::sel_etiquetas(session, "x", "", "9"), RuntimeError);
    EXPECT_THROW(commands::exclui_etiquetas(session, "x", "1", ",,"), RuntimeError);
}

TEST(FailureTexts, AsShown) {
    const std::string end =
        " - Não foi possível obter os dados da Internet. Verifique a conexão com a Internet.";
    const std::vector<std::pair<std::string_view, std::string>> numbered{
        {failure::Tarn0001, "0001"}, {failure::Tarn0002, "0002"}, {failure::Tarn0003, "0003"},
        {failure::Tarn0004, "0004"}, {failure::Tarn0005, "0005"}, {failure::Tarn0006, "0006"},
        {failure::Tarn0007, "0007"}, {failure::Tarn0008, "0008"}, {failure::Tarn0009, "0009"},
        {failure::Tarn0010, "0010"}, {failure::Tarn0011, "0011"}, {failure::Tarn0012, "0012"},
        {failure::Tarn0013, "0013"}};
    for (const auto& [text, number] : numbered) {
        EXPECT_EQ(text, "ERRO Tarn" + number + end);
    }
    EXPECT_EQ(failure::Tarn0009Wide, "ERRO    Tarn0009" + end);
    EXPECT_EQ(failure::Tarn0024, "Tarn0024 - Erro na pesquisa de cliente" + end);
    EXPECT_EQ(failure::noVersion,
              "Não consegui verificar a versão do TarnEMISSAO porque não tive acesso à "
              "internet!!!");
    EXPECT_EQ(failure::transportTitle, "TarnEMISSAO - ERRO INESPERADO");
}

}  // namespace
}  // namespace tarn::test
