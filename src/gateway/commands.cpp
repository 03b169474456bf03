#include "gateway/commands.h"

#include "gateway/command_text.h"
#include "runtime/text.h"

namespace tarn::commands {
namespace {

std::string ifChosen(const ChosenItem& item) {
    return item.position > 0 ? std::to_string(item.data) : "";
}
std::string keyIfChosen(std::string_view key, const ChosenItem& item) {
    return item.position > 0 ? std::string(key) + std::to_string(item.data) : "";
}

std::string_view kindFilter(std::int32_t kind) {
    switch (kind) {
        case 0:
            return "&ID_TIP_DOC=1,12";
        case 12:
            return "&ID_TIP_DOC=12";
        default:
            return "&ID_TIP_DOC=1,201,202,203,262,341,342,361";
    }
}

}  // namespace

std::string VERSAO_TARN_EMISSAO(std::string_view version) {
    return query("comando=VERSAO_TARN_EMISSAO&Versao=", {{"", version}});
}

std::string LOGIN(std::string_view company, std::string_view user, std::string_view password) {
    return query("comando=LOGIN",
                 {{"&EMPRESA=", company}, {"&USUARIO=", user}, {"&SENHA=", password}});
}

std::string verifica_direito_acesso(const Sessao& session, std::string_view transaction) {
    return query("Comando=verifica_direito_acesso", {{"&nId_Pes_Usu=", session.UserCode},
                                                     {"&ServerName=", session.SERVERNAME},
                                                     {"&sTransacao=", transaction}});
}

std::string sel_dados_empresa(const Sessao& session) {
    return query("comando=sel_dados_empresa",
                 {{"&Id_Etb_Tarn=", session.ID_ETB_TARN}, {"&ServerName=", session.SERVERNAME}});
}

std::string sel_ordem_fatu(const Sessao& session) {
    return query("comando=sel_ordem_fatu&ID_ETB_TARN=",
                 {{"", session.ID_ETB_TARN}, {"&ServerName=", session.SERVERNAME}});
}

std::string sp_can_oft(const Sessao& session, std::string_view order, std::string_view loadOrder) {
    return query("comando=sp_can_oft&id_etb_tarn=", {{"", session.ID_ETB_TARN},
                                                     {"&id_ord_fat=", order},
                                                     {"&id_ord_crg=", loadOrder},
                                                     {"&ServerName=", session.SERVERNAME}});
}

std::string Seleciona_Obs_Vnd_X_Ord(const Sessao& session, std::string_view order) {
    return query("comando=Seleciona_Obs_Vnd_X_Ord", {{"&Id_Etb_Tarn=", session.ID_ETB_TARN},
                                                     {"&Id_Ord_Fat=", order},
                                                     {"&ServerName=", session.SERVERNAME}});
}

std::string Seleciona_Obs_Ord_X_Est(const Sessao& session, std::string_view order) {
    return query("comando=Seleciona_Obs_Ord_X_Est", {{"&Id_Etb_Tarn=", session.ID_ETB_TARN},
                                                     {"&Id_Ord_Fat=", order},
                                                     {"&ServerName=", session.SERVERNAME}});
}

std::string SP_GERA_NF(const Sessao& session, std::string_view order) {
    return query("COMANDO=SP_GERA_NF&ID_ETB_TARN=", {{"", session.ID_ETB_TARN},
                                                     {"&ID_ORD_FAT=", order},
                                                     {"&ID_PES=", session.UserCode},
                                                     {"&ServerName=", session.SERVERNAME}});
}

std::string sel_gera_nf(const Sessao& session, std::string_view note, std::string_view series) {
    return query("comando=sel_gera_nf&ID_ETB_TARN=", {{"", session.ID_ETB_TARN},
                                                      {"&ID_NF_KESTO=", note},
                                                      {"&CD_SER_NF=", series},
                                                      {"&ServerName=", session.SERVERNAME}});
}

std::string MANUTENCAO_OFT(const Sessao& session, const OrderData& data) {
    const std::string observation = replaceAll(replaceAll(data.observation, "%", "||"), "&", "|");
    return query("COMANDO=MANUTENCAO_OFT&ID_ETB_TARN=", {{"", session.ID_ETB_TARN},
                                                         {"&ID_ORD_FAT=", data.order},
                                                         {"&ServerName=", session.SERVERNAME},
                                                         {"&DC_OBS=", observation},
                                                         {"&QT_ESP=", data.quantity},
                                                         {"&PESO_BRU=", data.grossWeight},
                                                         {"&PESO_LIQ=", data.netWeight}});
}

std::string sel_impr_ordem_fatu(const Sessao& session, std::string_view order) {
    return query(
        "comando=sel_impr_ordem_fatu&ID_ETB_TARN=",
        {{"", session.ID_ETB_TARN}, {"&ID_ORD_FAT=", order}, {"&ServerName=", session.SERVERNAME}});
}

std::string SEL_NF(const Sessao& session, std::string_view note, std::string_view series) {
    return query("comando=SEL_NF&ID_ETB_TARN=", {{"", session.ID_ETB_TARN},
                                                 {"&ID_NF_KESTO=", note},
                                                 {"&CD_SER_NF=", series},
                                                 {"&ServerName=", session.SERVERNAME}});
}

std::string sp_can_nf(const Sessao& session, const Cancellation& data) {
    return query("comando=sp_can_nf&ID_ETB_TARN=",
                 {{"", session.ID_ETB_TARN},
                  {"&IC_TIP_NF=", data.noteKind},
                  {"&ID_NF_KESTO=", data.note},
                  {"&CD_SER_NF=", data.series},
                  {"&id_mot_can=", data.reason},
                  {"&id_pes_usu=", session.UserCode},
                  {"", data.withoutRebilling ? "&Tipo_Can=S" : "&Tipo_Can=C"},
                  {"&ServerName=", session.SERVERNAME}});
}

std::string SEL_SERIE_NF(const Sessao& session) {
    return query("comando=SEL_SERIE_NF", {{"&ServerName=", session.SERVERNAME}});
}

std::string SEL_MOT_CAN(const Sessao& session) {
    return query("comando=SEL_MOT_CAN&ID_ETB_TARN=",
                 {{"", session.ID_ETB_TARN}, {"&ServerName=", session.SERVERNAME}});
}

std::string sel_duplicata(const Sessao& session, std::int32_t kind, const SearchFilter& filter) {
    return query("comando=sel_duplicata", {{"&ID_EMP_TARN=", session.NCOMPANYCODE},
                                           {"", kindFilter(kind)},
                                           {"&ID_PES_CLI=", filter.customer},
                                           {"&ID_ETB_TARN=", emptyIfZero(filter.branch)},
                                           {"&DT_VNC_DE=", filter.dueFrom},
                                           {"&DT_VNC_ATE=", filter.dueTo},
                                           {"&DT_EMS_DE=", filter.issuedFrom},
                                           {"&DT_EMS_ATE=", filter.issuedTo},
                                           {"&ID_PES_USU=", session.UserCode},
                                           {"&ServerName=", session.SERVERNAME}});
}

std::string sel_filiais(const Sessao& session) {
    return query("comando=sel_filiais", {{"&ID_EMP_TARN=", session.NCOMPANYCODE},
                                         {"&UserCode=", session.UserCode},
                                         {"&ServerName=", session.SERVERNAME}});
}

std::string Sel_Cliente(const Sessao& session, std::string_view filter) {
    return query("comando=Sel_Cliente&id_emp_tarn=", {{"", session.NCOMPANYCODE},
                                                      {"&Filtro=", replaceAll(filter, "&", "|")},
                                                      {"&ServerName=", session.SERVERNAME}});
}

std::string sel_boleto(const Sessao& session, const SearchFilter& filter, std::int32_t portfolio,
                       bool includesPortfolio) {
    return query("comando=sel_boleto", {{"&ID_EMP_TARN=", session.NCOMPANYCODE},
                                        {"&ID_PES_CLI=", filter.customer},
                                        {"&ID_ETB_TARN=", emptyIfZero(filter.branch)},
                                        {"&ID_CRT_COB=", emptyIfZero(portfolio)},
                                        {"&DT_VNC_DE=", filter.dueFrom},
                                        {"&DT_VNC_ATE=", filter.dueTo},
                                        {"&DT_EMS_DE=", filter.issuedFrom},
                                        {"&DT_EMS_ATE=", filter.issuedTo},
                                        {"&ID_PES_USU=", session.UserCode},
                                        {"", includesPortfolio ? "&IC_INC_CAR=S" : "&IC_INC_CAR=N"},
                                        {"&ServerName=", session.SERVERNAME}});
}

std::string sel_carteira(const Sessao& session) {
    return query("comando=sel_carteira",
                 {{"&ID_EMP_TARN=", session.NCOMPANYCODE}, {"&ServerName=", session.SERVERNAME}});
}

std::string sel_carteira_cob(const Sessao& session, std::int32_t portfolio) {
    return query("comando=sel_carteira_cob", {{"&ID_EMP_TARN=", session.NCOMPANYCODE},
                                              {"&ID_CRT_COB=", emptyIfZero(portfolio)},
                                              {"&ServerName=", session.SERVERNAME}});
}

std::string altera_docto_cob(const Sessao& session, const Slip& slip) {
    return query("comando=altera_docto_cob", {{"&ID_ETB=", slip.branch},
                                              {"&ID_TIP_DOC=", slip.documentKind},
                                              {"&NR_DOC=", slip.document},
                                              {"&NR_BOL_BANC=", slip.bankNumber},
                                              {"&ServerName=", session.SERVERNAME}});
}

std::string altera_docto_rec(const Sessao& session, const Slip& slip, ControlKey key) {
    const bool swapped = key == ControlKey::ID_NR_CLT;
    return query("comando=altera_docto_rec",
                 {{"&ID_ETB=", slip.branch},
                  {swapped ? "&ID_NR_CLT=" : "&ID_NR_CTL=", slip.controlNumber},
                  {"&ServerName=", session.SERVERNAME},
                  {"&NR_BOL_BANC=", slip.bankNumber}});
}

std::string insere_car_cob(const Sessao& session, const Slip& slip) {
    return query("comando=insere_car_cob", {{"&ID_EMP_TARN=", session.NCOMPANYCODE},
                                            {"&ID_ETB=", slip.branch},
                                            {"&ID_TIP_DOC=", slip.documentKind},
                                            {"&NR_DOC=", slip.document},
                                            {"&ID_CRT_COB=", slip.portfolio},
                                            {"&NR_BOL_BANC=", slip.bankNumber},
                                            {"&ID_PES_USU=", session.UserCode},
                                            {"&ServerName=", session.SERVERNAME}});
}

std::string insere_car_rec(const Sessao& session, const Slip& slip) {
    return query("comando=insere_car_rec", {{"&ID_EMP_TARN=", session.NCOMPANYCODE},
                                            {"&ID_ETB=", slip.branch},
                                            {"&ID_NR_CTL=", slip.controlNumber},
                                            {"&ID_CRT_COB=", slip.portfolio},
                                            {"&NR_BOL_BANC=", slip.bankNumber},
                                            {"&ID_PES_USU=", session.UserCode},
                                            {"&ServerName=", session.SERVERNAME}});
}

std::string sel_banco_agencia_conta(const Sessao& session) {
    return query("comando=sel_banco_agencia_conta", {{"&ID_EMP_TARN=", session.NCOMPANYCODE},
                                                     {"&ID_ETB_TARN=", session.ID_ETB_TARN},
                                                     {"&UserCode=", session.UserCode},
                                                     {"", "&IC_ATV_INA=A"},
                                                     {"&ServerName=", session.SERVERNAME}});
}

std::string seleciona_um_controle_cheque_emitido(const Sessao& session, const Cheque& cheque) {
    return query("comando=seleciona_um_controle_cheque_emitido",
                 {{"&ID_EMP_TARN=", session.NCOMPANYCODE},
                  {"&ID_ETB_TARN=", session.ID_ETB_TARN},
                  {"&Id_Pes_Ban=", cheque.bank},
                  {"&Cd_Age_Ban=", cheque.agency},
                  {"&Nr_Ccor=", cheque.account},
                  {"&Nr_Che=", trimBlanks(cheque.number)},
                  {"&Nr_Ser=", trimmedUpperCase(cheque.series)},
                  {"&ServerName=", session.SERVERNAME}});
}

std::string adiciona_controle_cheque_emitido(const Sessao& session, const Cheque& cheque) {
    return query("comando=adiciona_controle_cheque_emitido",
                 {{"&ID_EMP_TARN=", session.NCOMPANYCODE},
                  {"&ID_ETB_TARN=", session.ID_ETB_TARN},
                  {"&UserCode=", session.UserCode},
                  {"&ID_PES_BAN=", cheque.bank},
                  {"&CD_AGE_BAN=", trimBlanks(cheque.agency)},
                  {"&NR_CCOR=", trimBlanks(cheque.account)},
                  {"&NR_CHE=", trimBlanks(cheque.number)},
                  {"&NR_SER=", trimmedUpperCase(cheque.series)},
                  {"&VL_CH=", trimBlanks(cheque.value)},
                  {"&DC_FAV=", trimmedUpperCase(cheque.payee)},
                  {"&DT_DEP=", trimBlanks(cheque.depositDate)},
                  {"&DC_OBS=", trimmedUpperCase(cheque.observation)},
                  {"&ServerName=", session.SERVERNAME}});
}

std::string sel_etiquetas(const Sessao& session, std::string_view reason) {
    return query("comando=sel_etiquetas", {{"&ID_EMP_TARN=", session.NCOMPANYCODE},
                                           {"&sDc_Mot_Imp=", reason},
                                           {"&nSeq_De=", ""},
                                           {"&nSeq_Ate=", ""},
                                           {"&ServerName=", session.SERVERNAME}});
}

std::string sel_etiquetas(const Sessao& session, std::string_view reason, std::string_view from,
                          std::string_view to) {
    return query("comando=sel_etiquetas", {{"&ID_EMP_TARN=", session.NCOMPANYCODE},
                                           {"&sDc_Mot_Imp=", reason},
                                           {"&nSeq_De=", typedNumber(from)},
                                           {"&nSeq_Ate=", typedNumber(to)},
                                           {"&ServerName=", session.SERVERNAME}});
}

std::string sel_motivos(const Sessao& session) {
    return query("comando=sel_motivos", {{"&ID_EMP_TARN=", session.NCOMPANYCODE},
                                         {"&ServerName=", session.SERVERNAME},
                                         {"&sIc_Ver_Eti=", session.TipoEtiqueta}});
}

std::string sel_filiais_remetente(const Sessao& session) {
    return query("comando=sel_filiais_remetente", {{"&ID_EMP_TARN=", session.NCOMPANYCODE},
                                                   {"&nId_Pes_Usu=", session.UserCode},
                                                   {"&ServerName=", session.SERVERNAME}});
}

std::string exclui_etiquetas(const Sessao& session, std::string_view reason, std::string_view from,
                             std::string_view to) {
    return query("comando=exclui_etiquetas", {{"&ID_EMP_TARN=", session.NCOMPANYCODE},
                                              {"&nSeq_De=", typedNumber(from)},
                                              {"&nSeq_Ate=", typedNumber(to)},
                                              {"&nId_Motivo=", reason},
                                              {"&ServerName=", session.SERVERNAME}});
}

std::string sel_dados_remetente(const Sessao& session, std::int32_t senderBranch) {
    return query("comando=sel_dados_remetente", {{"&nId_Emp_Tarn=", session.NCOMPANYCODE},
                                                 {"&nId_Etb_Tarn=", senderBranch},
                                                 {"&ServerName=", session.SERVERNAME}});
}

std::string sel_filias(const Sessao& session) {
    return query("comando=sel_filias", {{"&nId_Emp_Tarn=", session.NCOMPANYCODE},
                                        {"&nId_Pes_Usu=", session.UserCode},
                                        {"&ServerName=", session.SERVERNAME}});
}

std::string sel_pais(const Sessao& session) {
    return query("comando=sel_pais", {{"&ServerName=", session.SERVERNAME}});
}

std::string sel_estado(const Sessao& session, std::int32_t country) {
    return query("comando=sel_estado", {{"&Pais=", country}, {"&ServerName=", session.SERVERNAME}});
}

std::string sel_cidade(const Sessao& session, std::int32_t state) {
    return query("comando=sel_cidade", {{"&Estado=", state}, {"&ServerName=", session.SERVERNAME}});
}

std::string sel_dados_etq(const Sessao& session, const LabelFilter& filter) {
    return query("comando=sel_dados_etq", {{"&nIdEtbTarn=", filter.branches},
                                           {"&nIdPais=", ifChosen(filter.country)},
                                           {"", keyIfChosen("&nIdUf=", filter.state)},
                                           {"", keyIfChosen("&nIdMun=", filter.town)},
                                           {"&nIdMatPro=", filter.product},
                                           {"&nCepDe=", filter.postalCodeFrom},
                                           {"&nCepAte=", filter.postalCodeTo},
                                           {"&dDtDe=", filter.saleFrom},
                                           {"&dDtAte=", filter.saleTo},
                                           {"&nVlrDe=", filter.amountFrom},
                                           {"&nVlrAte=", filter.amountTo},
                                           {"&nQtDe=", filter.quantityFrom},
                                           {"&nQtAte=", filter.quantityTo},
                                           {"&nIdOrd=", filter.byPostalCode ? "CEP" : "NOME"},
                                           {"&ServerName=", session.SERVERNAME}});
}

}  // namespace tarn::commands
