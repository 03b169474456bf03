#include "gateway/commands.h"

#include <gtest/gtest.h>

#include <set>

#include "gateway/failure_texts.h"
#include "runtime/runtime_error.h"

namespace tarn {
namespace {

const Sessao sessao{.NCOMPANYCODE = 2161,
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

const comando::Pesquisa pesquisa{.cliente = "991",
                                 .filial = 4,
                                 .vencimentoDe = "01/01/2012",
                                 .vencimentoAte = "31/12/2012",
                                 .emissaoDe = "02/02/2012",
                                 .emissaoAte = ""};
const comando::Boleto boleto{.filial = "33",
                             .tipoDocumento = "201",
                             .documento = "77/1",
                             .numeroControle = "CTL 9",
                             .carteira = "57",
                             .numeroBancario = "00000012"};
const comando::Cheque cheque{.banco = 341,
                             .agencia = " 0123 ",
                             .conta = " 4567-8 ",
                             .numero = " 000123 ",
                             .serie = " aç ",
                             .valor = " 1.234,50 ",
                             .favorecido = " joão & cia ",
                             .dataDeposito = " 05/09/2012 ",
                             .observacao = " aluguel "};

struct Caso {
    std::string consulta;
    std::string_view esperada;
};

// The 39 commands, in the order of the server's catalogue.
const std::vector<Caso>& catalogo() {
    static const std::vector<Caso> casos{
        {comando::VERSAO_TARN_EMISSAO("07/01/2009"),
         "comando=VERSAO_TARN_EMISSAO&Versao=07/01/2009"},
        {comando::LOGIN("emp 1", "ana", "s&n#a"),
         "comando=LOGIN&EMPRESA=emp 1&USUARIO=ana&SENHA=s&n#a"},
        {comando::verifica_direito_acesso(sessao, "EMI001"),
         "Comando=verifica_direito_acesso&nId_Pes_Usu=u 7&ServerName=SRV1&sTransacao=EMI001"},
        {comando::sel_dados_empresa(sessao),
         "comando=sel_dados_empresa&Id_Etb_Tarn=3381&ServerName=SRV1"},
        {comando::sel_ordem_fatu(sessao),
         "comando=sel_ordem_fatu&ID_ETB_TARN=3381&ServerName=SRV1"},
        {comando::sp_can_oft(sessao, "12", " 34 "),
         "comando=sp_can_oft&id_etb_tarn=3381&id_ord_fat=12&id_ord_crg= 34 &ServerName=SRV1"},
        {comando::Seleciona_Obs_Vnd_X_Ord(sessao, "12"),
         "comando=Seleciona_Obs_Vnd_X_Ord&Id_Etb_Tarn=3381&Id_Ord_Fat=12&ServerName=SRV1"},
        {comando::Seleciona_Obs_Ord_X_Est(sessao, "12"),
         "comando=Seleciona_Obs_Ord_X_Est&Id_Etb_Tarn=3381&Id_Ord_Fat=12&ServerName=SRV1"},
        {comando::SP_GERA_NF(sessao, "12"),
         "COMANDO=SP_GERA_NF&ID_ETB_TARN=3381&ID_ORD_FAT=12&ID_PES=u 7&ServerName=SRV1"},
        {comando::sel_gera_nf(sessao, "555", "A"),
         "comando=sel_gera_nf&ID_ETB_TARN=3381&ID_NF_KESTO=555&CD_SER_NF=A&ServerName=SRV1"},
        {comando::MANUTENCAO_OFT(sessao, {.ordem = "12",
                                          .observacao = "10% & |x| %&",
                                          .quantidade = "1.234,500",
                                          .pesoBruto = "0,000",
                                          .pesoLiquido = "2,000"}),
         "COMANDO=MANUTENCAO_OFT&ID_ETB_TARN=3381&ID_ORD_FAT=12&ServerName=SRV1"
         "&DC_OBS=10|| | |x| |||&QT_ESP=1.234,500&PESO_BRU=0,000&PESO_LIQ=2,000"},
        {comando::sel_impr_ordem_fatu(sessao, "12"),
         "comando=sel_impr_ordem_fatu&ID_ETB_TARN=3381&ID_ORD_FAT=12&ServerName=SRV1"},
        {comando::SEL_NF(sessao, "555", "A"),
         "comando=SEL_NF&ID_ETB_TARN=3381&ID_NF_KESTO=555&CD_SER_NF=A&ServerName=SRV1"},
        {comando::sp_can_nf(sessao, {.tipoNota = "S",
                                     .nota = "555",
                                     .serie = "A",
                                     .motivo = 9,
                                     .semNovoFaturamento = true}),
         "comando=sp_can_nf&ID_ETB_TARN=3381&IC_TIP_NF=S&ID_NF_KESTO=555&CD_SER_NF=A&id_mot_can=9"
         "&id_pes_usu=u 7&Tipo_Can=S&ServerName=SRV1"},
        {comando::SEL_SERIE_NF(sessao), "comando=SEL_SERIE_NF&ServerName=SRV1"},
        {comando::SEL_MOT_CAN(sessao), "comando=SEL_MOT_CAN&ID_ETB_TARN=3381&ServerName=SRV1"},
        {comando::sel_duplicata(sessao, 1, pesquisa),
         "comando=sel_duplicata&ID_EMP_TARN=2161&ID_TIP_DOC=1,201,202,203,262,341,342,361"
         "&ID_PES_CLI=991&ID_ETB_TARN=4&DT_VNC_DE=01/01/2012&DT_VNC_ATE=31/12/2012"
         "&DT_EMS_DE=02/02/2012&DT_EMS_ATE=&ID_PES_USU=u 7&ServerName=SRV1"},
        {comando::sel_filiais(sessao),
         "comando=sel_filiais&ID_EMP_TARN=2161&UserCode=u 7&ServerName=SRV1"},
        {comando::Sel_Cliente(sessao, " a&b%c "),
         "comando=Sel_Cliente&id_emp_tarn=2161&Filtro= a|b%c &ServerName=SRV1"},
        {comando::sel_boleto(sessao, pesquisa, 57, true),
         "comando=sel_boleto&ID_EMP_TARN=2161&ID_PES_CLI=991&ID_ETB_TARN=4&ID_CRT_COB=57"
         "&DT_VNC_DE=01/01/2012&DT_VNC_ATE=31/12/2012&DT_EMS_DE=02/02/2012&DT_EMS_ATE="
         "&ID_PES_USU=u 7&IC_INC_CAR=S&ServerName=SRV1"},
        {comando::sel_carteira(sessao), "comando=sel_carteira&ID_EMP_TARN=2161&ServerName=SRV1"},
        {comando::sel_carteira_cob(sessao, 57),
         "comando=sel_carteira_cob&ID_EMP_TARN=2161&ID_CRT_COB=57&ServerName=SRV1"},
        {comando::altera_docto_cob(sessao, boleto),
         "comando=altera_docto_cob&ID_ETB=33&ID_TIP_DOC=201&NR_DOC=77/1&NR_BOL_BANC=00000012"
         "&ServerName=SRV1"},
        {comando::altera_docto_rec(sessao, boleto, comando::ChaveControle::ID_NR_CTL),
         "comando=altera_docto_rec&ID_ETB=33&ID_NR_CTL=CTL 9&ServerName=SRV1"
         "&NR_BOL_BANC=00000012"},
        {comando::insere_car_cob(sessao, boleto),
         "comando=insere_car_cob&ID_EMP_TARN=2161&ID_ETB=33&ID_TIP_DOC=201&NR_DOC=77/1"
         "&ID_CRT_COB=57&NR_BOL_BANC=00000012&ID_PES_USU=u 7&ServerName=SRV1"},
        {comando::insere_car_rec(sessao, boleto),
         "comando=insere_car_rec&ID_EMP_TARN=2161&ID_ETB=33&ID_NR_CTL=CTL 9&ID_CRT_COB=57"
         "&NR_BOL_BANC=00000012&ID_PES_USU=u 7&ServerName=SRV1"},
        {comando::sel_banco_agencia_conta(sessao),
         "comando=sel_banco_agencia_conta&ID_EMP_TARN=2161&ID_ETB_TARN=3381&UserCode=u 7"
         "&IC_ATV_INA=A&ServerName=SRV1"},
        {comando::seleciona_um_controle_cheque_emitido(sessao, cheque),
         "comando=seleciona_um_controle_cheque_emitido&ID_EMP_TARN=2161&ID_ETB_TARN=3381"
         "&Id_Pes_Ban=341&Cd_Age_Ban= 0123 &Nr_Ccor= 4567-8 &Nr_Che=000123&Nr_Ser=AÇ"
         "&ServerName=SRV1"},
        {comando::adiciona_controle_cheque_emitido(sessao, cheque),
         "comando=adiciona_controle_cheque_emitido&ID_EMP_TARN=2161&ID_ETB_TARN=3381&UserCode=u 7"
         "&ID_PES_BAN=341&CD_AGE_BAN=0123&NR_CCOR=4567-8&NR_CHE=000123&NR_SER=AÇ&VL_CH=1.234,50"
         "&DC_FAV=JOÃO & CIA&DT_DEP=05/09/2012&DC_OBS=ALUGUEL&ServerName=SRV1"},
        {comando::sel_etiquetas(sessao, "NATAL 12", "007", "1.000"),
         "comando=sel_etiquetas&ID_EMP_TARN=2161&sDc_Mot_Imp=NATAL 12&nSeq_De=7&nSeq_Ate=1000"
         "&ServerName=SRV1"},
        {comando::sel_motivos(sessao),
         "comando=sel_motivos&ID_EMP_TARN=2161&ServerName=SRV1&sIc_Ver_Eti=C"},
        {comando::sel_filiais_remetente(sessao),
         "comando=sel_filiais_remetente&ID_EMP_TARN=2161&nId_Pes_Usu=u 7&ServerName=SRV1"},
        {comando::exclui_etiquetas(sessao, "--------", "7,5", " 9 "),
         "comando=exclui_etiquetas&ID_EMP_TARN=2161&nSeq_De=7,5&nSeq_Ate=9&nId_Motivo=--------"
         "&ServerName=SRV1"},
        {comando::sel_filias(sessao),
         "comando=sel_filias&nId_Emp_Tarn=2161&nId_Pes_Usu=u 7&ServerName=SRV1"},
        {comando::sel_pais(sessao), "comando=sel_pais&ServerName=SRV1"},
        {comando::sel_estado(sessao, 55), "comando=sel_estado&Pais=55&ServerName=SRV1"},
        {comando::sel_cidade(sessao, -3), "comando=sel_cidade&Estado=-3&ServerName=SRV1"},
        {comando::sel_dados_etq(sessao, {.filiais = "1, 2, 3",
                                         .pais = {.posicao = 1, .dado = 55},
                                         .estado = {.posicao = 2, .dado = 35},
                                         .cidade = {.posicao = 1, .dado = -7},
                                         .produto = "p",
                                         .cepDe = "01000",
                                         .cepAte = "02000",
                                         .vendaDe = "01/01/2012",
                                         .vendaAte = "02/01/2012",
                                         .valorDe = "1,00",
                                         .valorAte = "2,00",
                                         .quantidadeDe = "3",
                                         .quantidadeAte = "4",
                                         .porCep = true}),
         "comando=sel_dados_etq&nIdEtbTarn=1, 2, 3&nIdPais=55&nIdUf=35&nIdMun=-7&nIdMatPro=p"
         "&nCepDe=01000&nCepAte=02000&dDtDe=01/01/2012&dDtAte=02/01/2012&nVlrDe=1,00&nVlrAte=2,00"
         "&nQtDe=3&nQtAte=4&nIdOrd=CEP&ServerName=SRV1"},
        {comando::sel_dados_remetente(sessao, 0),
         "comando=sel_dados_remetente&nId_Emp_Tarn=2161&nId_Etb_Tarn=0&ServerName=SRV1"},
    };
    return casos;
}

TEST(Comandos, AllThirtyNineAsTheServerKnowsThem) {
    std::set<std::string> chaves;
    for (const Caso& caso : catalogo()) {
        EXPECT_EQ(caso.consulta, caso.esperada);
        chaves.insert(caso.consulta.substr(0, caso.consulta.find('&')));
    }
    EXPECT_EQ(chaves.size(), 39U);
}

TEST(Comandos, TheSecondSpellingOfTheControlNumber) {
    EXPECT_EQ(comando::altera_docto_rec(sessao, boleto, comando::ChaveControle::ID_NR_CLT),
              "comando=altera_docto_rec&ID_ETB=33&ID_NR_CLT=CTL 9&ServerName=SRV1"
              "&NR_BOL_BANC=00000012");
}

TEST(Comandos, CancellationWithoutReprint) {
    EXPECT_EQ(
        comando::sp_can_nf(
            sessao,
            {.tipoNota = "E", .nota = "1", .serie = "", .motivo = -1, .semNovoFaturamento = false}),
        "comando=sp_can_nf&ID_ETB_TARN=3381&IC_TIP_NF=E&ID_NF_KESTO=1&CD_SER_NF="
        "&id_mot_can=-1&id_pes_usu=u 7&Tipo_Can=C&ServerName=SRV1");
}

TEST(Comandos, DocumentKinds) {
    const std::string resto =
        "&ID_PES_CLI=&ID_ETB_TARN=&DT_VNC_DE=&DT_VNC_ATE=&DT_EMS_DE=&DT_EMS_ATE=&ID_PES_USU=u 7"
        "&ServerName=SRV1";
    EXPECT_EQ(comando::sel_duplicata(sessao, 12, {}),
              "comando=sel_duplicata&ID_EMP_TARN=2161&ID_TIP_DOC=12" + resto);
    EXPECT_EQ(comando::sel_duplicata(sessao, 0, {}),
              "comando=sel_duplicata&ID_EMP_TARN=2161&ID_TIP_DOC=1,12" + resto);
}

TEST(Comandos, ItemDataOfZeroGoesEmpty) {
    EXPECT_EQ(comando::sel_boleto(sessao, {}, 0, false),
              "comando=sel_boleto&ID_EMP_TARN=2161&ID_PES_CLI=&ID_ETB_TARN=&ID_CRT_COB="
              "&DT_VNC_DE=&DT_VNC_ATE=&DT_EMS_DE=&DT_EMS_ATE=&ID_PES_USU=u 7&IC_INC_CAR=N"
              "&ServerName=SRV1");
    EXPECT_EQ(comando::sel_carteira_cob(sessao, 0),
              "comando=sel_carteira_cob&ID_EMP_TARN=2161&ID_CRT_COB=&ServerName=SRV1");
}

TEST(Comandos, BulkLabelsLeaveStateAndTownOutAtPosition0) {
    EXPECT_EQ(comando::sel_dados_etq(sessao, {.pais = {.posicao = 0, .dado = -1},
                                              .estado = {.posicao = 0, .dado = -1}}),
              "comando=sel_dados_etq&nIdEtbTarn=&nIdPais=&nIdMatPro=&nCepDe=&nCepAte=&dDtDe="
              "&dDtAte=&nVlrDe=&nVlrAte=&nQtDe=&nQtAte=&nIdOrd=NOME&ServerName=SRV1");
    EXPECT_EQ(comando::sel_dados_etq(sessao, {.pais = {.posicao = 1, .dado = 55},
                                              .estado = {.posicao = 1, .dado = 0}}),
              "comando=sel_dados_etq&nIdEtbTarn=&nIdPais=55&nIdUf=0&nIdMatPro=&nCepDe=&nCepAte="
              "&dDtDe=&dDtAte=&nVlrDe=&nVlrAte=&nQtDe=&nQtAte=&nIdOrd=NOME&ServerName=SRV1");
}

TEST(Comandos, LabelQueueAndRanges) {
    EXPECT_EQ(comando::sel_etiquetas(sessao, "x"),
              "comando=sel_etiquetas&ID_EMP_TARN=2161&sDc_Mot_Imp=x&nSeq_De=&nSeq_Ate="
              "&ServerName=SRV1");
    EXPECT_THROW(comando::sel_etiquetas(sessao, "x", "", "9"), ErroExecucao);
    EXPECT_THROW(comando::exclui_etiquetas(sessao, "x", "1", ",,"), ErroExecucao);
}

TEST(FalhaTexts, AsShown) {
    const std::string fim =
        " - Não foi possível obter os dados da Internet. Verifique a conexão com a Internet.";
    const std::vector<std::pair<std::string_view, std::string>> numeradas{
        {falha::Tarn0001, "0001"}, {falha::Tarn0002, "0002"}, {falha::Tarn0003, "0003"},
        {falha::Tarn0004, "0004"}, {falha::Tarn0005, "0005"}, {falha::Tarn0006, "0006"},
        {falha::Tarn0007, "0007"}, {falha::Tarn0008, "0008"}, {falha::Tarn0009, "0009"},
        {falha::Tarn0010, "0010"}, {falha::Tarn0011, "0011"}, {falha::Tarn0012, "0012"},
        {falha::Tarn0013, "0013"}};
    for (const auto& [texto, numero] : numeradas) {
        EXPECT_EQ(texto, "ERRO Tarn" + numero + fim);
    }
    EXPECT_EQ(falha::Tarn0009Largo, "ERRO    Tarn0009" + fim);
    EXPECT_EQ(falha::Tarn0024, "Tarn0024 - Erro na pesquisa de cliente" + fim);
    EXPECT_EQ(falha::semVersao,
              "Não consegui verificar a versão do TarnEMISSAO porque não tive acesso à "
              "internet!!!");
    EXPECT_EQ(falha::tituloTransporte, "TarnEMISSAO - ERRO INESPERADO");
}

}  // namespace
}  // namespace tarn
