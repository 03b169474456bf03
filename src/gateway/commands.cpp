#include "gateway/commands.h"

#include <initializer_list>

#include "runtime/numbers.h"
#include "runtime/text.h"

namespace tarn::comando {
namespace {

struct Par {
    std::string_view chave;
    std::string valor;

    Par(std::string_view umaChave, std::string_view texto) : chave(umaChave), valor(texto) {}
    Par(std::string_view umaChave, std::int32_t numero)
        : chave(umaChave), valor(std::to_string(numero)) {}
};

std::string consulta(std::string_view comando, std::initializer_list<Par> pares) {
    std::string texto(comando);
    for (const Par& par : pares) {
        texto.append(par.chave).append(par.valor);
    }
    return texto;
}

std::string aparado(std::string_view texto) {
    return std::string(trimBlanks(texto));
}
std::string emMaiusculas(std::string_view texto) {
    return upperCase(trimBlanks(texto));
}
std::string vazioSeZero(std::int32_t dado) {
    return dado == 0 ? "" : std::to_string(dado);
}
std::string seEscolhido(const ItemEscolhido& item) {
    return item.posicao > 0 ? std::to_string(item.dado) : "";
}
std::string chaveSeEscolhido(std::string_view chave, const ItemEscolhido& item) {
    return item.posicao > 0 ? std::string(chave) + std::to_string(item.dado) : "";
}
// "007" goes as 7, "1.000" as 1000.
std::string numeroDigitado(std::string_view texto) {
    return numberText(readComma(texto));
}

std::string_view filtroDoTipo(std::int32_t tipo) {
    switch (tipo) {
        case 0:
            return "&ID_TIP_DOC=1,12";
        case 12:
            return "&ID_TIP_DOC=12";
        default:
            return "&ID_TIP_DOC=1,201,202,203,262,341,342,361";
    }
}

}  // namespace

std::string VERSAO_TARN_EMISSAO(std::string_view versao) {
    return consulta("comando=VERSAO_TARN_EMISSAO&Versao=", {{"", versao}});
}

std::string LOGIN(std::string_view empresa, std::string_view usuario, std::string_view senha) {
    return consulta("comando=LOGIN",
                    {{"&EMPRESA=", empresa}, {"&USUARIO=", usuario}, {"&SENHA=", senha}});
}

std::string verifica_direito_acesso(const Sessao& sessao, std::string_view transacao) {
    return consulta("Comando=verifica_direito_acesso", {{"&nId_Pes_Usu=", sessao.UserCode},
                                                        {"&ServerName=", sessao.SERVERNAME},
                                                        {"&sTransacao=", transacao}});
}

std::string sel_dados_empresa(const Sessao& sessao) {
    return consulta("comando=sel_dados_empresa",
                    {{"&Id_Etb_Tarn=", sessao.ID_ETB_TARN}, {"&ServerName=", sessao.SERVERNAME}});
}

std::string sel_ordem_fatu(const Sessao& sessao) {
    return consulta("comando=sel_ordem_fatu&ID_ETB_TARN=",
                    {{"", sessao.ID_ETB_TARN}, {"&ServerName=", sessao.SERVERNAME}});
}

std::string sp_can_oft(const Sessao& sessao, std::string_view ordem, std::string_view ordemCarga) {
    return consulta("comando=sp_can_oft&id_etb_tarn=", {{"", sessao.ID_ETB_TARN},
                                                        {"&id_ord_fat=", ordem},
                                                        {"&id_ord_crg=", ordemCarga},
                                                        {"&ServerName=", sessao.SERVERNAME}});
}

std::string Seleciona_Obs_Vnd_X_Ord(const Sessao& sessao, std::string_view ordem) {
    return consulta("comando=Seleciona_Obs_Vnd_X_Ord", {{"&Id_Etb_Tarn=", sessao.ID_ETB_TARN},
                                                        {"&Id_Ord_Fat=", ordem},
                                                        {"&ServerName=", sessao.SERVERNAME}});
}

std::string Seleciona_Obs_Ord_X_Est(const Sessao& sessao, std::string_view ordem) {
    return consulta("comando=Seleciona_Obs_Ord_X_Est", {{"&Id_Etb_Tarn=", sessao.ID_ETB_TARN},
                                                        {"&Id_Ord_Fat=", ordem},
                                                        {"&ServerName=", sessao.SERVERNAME}});
}

std::string SP_GERA_NF(const Sessao& sessao, std::string_view ordem) {
    return consulta("COMANDO=SP_GERA_NF&ID_ETB_TARN=", {{"", sessao.ID_ETB_TARN},
                                                        {"&ID_ORD_FAT=", ordem},
                                                        {"&ID_PES=", sessao.UserCode},
                                                        {"&ServerName=", sessao.SERVERNAME}});
}

std::string sel_gera_nf(const Sessao& sessao, std::string_view nota, std::string_view serie) {
    return consulta("comando=sel_gera_nf&ID_ETB_TARN=", {{"", sessao.ID_ETB_TARN},
                                                         {"&ID_NF_KESTO=", nota},
                                                         {"&CD_SER_NF=", serie},
                                                         {"&ServerName=", sessao.SERVERNAME}});
}

std::string MANUTENCAO_OFT(const Sessao& sessao, const DadosOrdem& dados) {
    const std::string observacao = replaceAll(replaceAll(dados.observacao, "%", "||"), "&", "|");
    return consulta("COMANDO=MANUTENCAO_OFT&ID_ETB_TARN=", {{"", sessao.ID_ETB_TARN},
                                                            {"&ID_ORD_FAT=", dados.ordem},
                                                            {"&ServerName=", sessao.SERVERNAME},
                                                            {"&DC_OBS=", observacao},
                                                            {"&QT_ESP=", dados.quantidade},
                                                            {"&PESO_BRU=", dados.pesoBruto},
                                                            {"&PESO_LIQ=", dados.pesoLiquido}});
}

std::string sel_impr_ordem_fatu(const Sessao& sessao, std::string_view ordem) {
    return consulta(
        "comando=sel_impr_ordem_fatu&ID_ETB_TARN=",
        {{"", sessao.ID_ETB_TARN}, {"&ID_ORD_FAT=", ordem}, {"&ServerName=", sessao.SERVERNAME}});
}

std::string SEL_NF(const Sessao& sessao, std::string_view nota, std::string_view serie) {
    return consulta("comando=SEL_NF&ID_ETB_TARN=", {{"", sessao.ID_ETB_TARN},
                                                    {"&ID_NF_KESTO=", nota},
                                                    {"&CD_SER_NF=", serie},
                                                    {"&ServerName=", sessao.SERVERNAME}});
}

std::string sp_can_nf(const Sessao& sessao, const Cancelamento& dados) {
    return consulta("comando=sp_can_nf&ID_ETB_TARN=",
                    {{"", sessao.ID_ETB_TARN},
                     {"&IC_TIP_NF=", dados.tipoNota},
                     {"&ID_NF_KESTO=", dados.nota},
                     {"&CD_SER_NF=", dados.serie},
                     {"&id_mot_can=", dados.motivo},
                     {"&id_pes_usu=", sessao.UserCode},
                     {"", dados.semNovoFaturamento ? "&Tipo_Can=S" : "&Tipo_Can=C"},
                     {"&ServerName=", sessao.SERVERNAME}});
}

std::string SEL_SERIE_NF(const Sessao& sessao) {
    return consulta("comando=SEL_SERIE_NF", {{"&ServerName=", sessao.SERVERNAME}});
}

std::string SEL_MOT_CAN(const Sessao& sessao) {
    return consulta("comando=SEL_MOT_CAN&ID_ETB_TARN=",
                    {{"", sessao.ID_ETB_TARN}, {"&ServerName=", sessao.SERVERNAME}});
}

std::string sel_duplicata(const Sessao& sessao, std::int32_t tipo, const Pesquisa& filtro) {
    return consulta("comando=sel_duplicata", {{"&ID_EMP_TARN=", sessao.NCOMPANYCODE},
                                              {"", filtroDoTipo(tipo)},
                                              {"&ID_PES_CLI=", filtro.cliente},
                                              {"&ID_ETB_TARN=", vazioSeZero(filtro.filial)},
                                              {"&DT_VNC_DE=", filtro.vencimentoDe},
                                              {"&DT_VNC_ATE=", filtro.vencimentoAte},
                                              {"&DT_EMS_DE=", filtro.emissaoDe},
                                              {"&DT_EMS_ATE=", filtro.emissaoAte},
                                              {"&ID_PES_USU=", sessao.UserCode},
                                              {"&ServerName=", sessao.SERVERNAME}});
}

std::string sel_filiais(const Sessao& sessao) {
    return consulta("comando=sel_filiais", {{"&ID_EMP_TARN=", sessao.NCOMPANYCODE},
                                            {"&UserCode=", sessao.UserCode},
                                            {"&ServerName=", sessao.SERVERNAME}});
}

std::string Sel_Cliente(const Sessao& sessao, std::string_view filtro) {
    return consulta("comando=Sel_Cliente&id_emp_tarn=", {{"", sessao.NCOMPANYCODE},
                                                         {"&Filtro=", replaceAll(filtro, "&", "|")},
                                                         {"&ServerName=", sessao.SERVERNAME}});
}

std::string sel_boleto(const Sessao& sessao, const Pesquisa& filtro, std::int32_t carteira,
                       bool incluiCarteira) {
    return consulta("comando=sel_boleto", {{"&ID_EMP_TARN=", sessao.NCOMPANYCODE},
                                           {"&ID_PES_CLI=", filtro.cliente},
                                           {"&ID_ETB_TARN=", vazioSeZero(filtro.filial)},
                                           {"&ID_CRT_COB=", vazioSeZero(carteira)},
                                           {"&DT_VNC_DE=", filtro.vencimentoDe},
                                           {"&DT_VNC_ATE=", filtro.vencimentoAte},
                                           {"&DT_EMS_DE=", filtro.emissaoDe},
                                           {"&DT_EMS_ATE=", filtro.emissaoAte},
                                           {"&ID_PES_USU=", sessao.UserCode},
                                           {"", incluiCarteira ? "&IC_INC_CAR=S" : "&IC_INC_CAR=N"},
                                           {"&ServerName=", sessao.SERVERNAME}});
}

std::string sel_carteira(const Sessao& sessao) {
    return consulta("comando=sel_carteira",
                    {{"&ID_EMP_TARN=", sessao.NCOMPANYCODE}, {"&ServerName=", sessao.SERVERNAME}});
}

std::string sel_carteira_cob(const Sessao& sessao, std::int32_t carteira) {
    return consulta("comando=sel_carteira_cob", {{"&ID_EMP_TARN=", sessao.NCOMPANYCODE},
                                                 {"&ID_CRT_COB=", vazioSeZero(carteira)},
                                                 {"&ServerName=", sessao.SERVERNAME}});
}

std::string altera_docto_cob(const Sessao& sessao, const Boleto& boleto) {
    return consulta("comando=altera_docto_cob", {{"&ID_ETB=", boleto.filial},
                                                 {"&ID_TIP_DOC=", boleto.tipoDocumento},
                                                 {"&NR_DOC=", boleto.documento},
                                                 {"&NR_BOL_BANC=", boleto.numeroBancario},
                                                 {"&ServerName=", sessao.SERVERNAME}});
}

std::string altera_docto_rec(const Sessao& sessao, const Boleto& boleto, ChaveControle chave) {
    const bool trocada = chave == ChaveControle::ID_NR_CLT;
    return consulta("comando=altera_docto_rec",
                    {{"&ID_ETB=", boleto.filial},
                     {trocada ? "&ID_NR_CLT=" : "&ID_NR_CTL=", boleto.numeroControle},
                     {"&ServerName=", sessao.SERVERNAME},
                     {"&NR_BOL_BANC=", boleto.numeroBancario}});
}

std::string insere_car_cob(const Sessao& sessao, const Boleto& boleto) {
    return consulta("comando=insere_car_cob", {{"&ID_EMP_TARN=", sessao.NCOMPANYCODE},
                                               {"&ID_ETB=", boleto.filial},
                                               {"&ID_TIP_DOC=", boleto.tipoDocumento},
                                               {"&NR_DOC=", boleto.documento},
                                               {"&ID_CRT_COB=", boleto.carteira},
                                               {"&NR_BOL_BANC=", boleto.numeroBancario},
                                               {"&ID_PES_USU=", sessao.UserCode},
                                               {"&ServerName=", sessao.SERVERNAME}});
}

std::string insere_car_rec(const Sessao& sessao, const Boleto& boleto) {
    return consulta("comando=insere_car_rec", {{"&ID_EMP_TARN=", sessao.NCOMPANYCODE},
                                               {"&ID_ETB=", boleto.filial},
                                               {"&ID_NR_CTL=", boleto.numeroControle},
                                               {"&ID_CRT_COB=", boleto.carteira},
                                               {"&NR_BOL_BANC=", boleto.numeroBancario},
                                               {"&ID_PES_USU=", sessao.UserCode},
                                               {"&ServerName=", sessao.SERVERNAME}});
}

std::string sel_banco_agencia_conta(const Sessao& sessao) {
    return consulta("comando=sel_banco_agencia_conta", {{"&ID_EMP_TARN=", sessao.NCOMPANYCODE},
                                                        {"&ID_ETB_TARN=", sessao.ID_ETB_TARN},
                                                        {"&UserCode=", sessao.UserCode},
                                                        {"", "&IC_ATV_INA=A"},
                                                        {"&ServerName=", sessao.SERVERNAME}});
}

std::string seleciona_um_controle_cheque_emitido(const Sessao& sessao, const Cheque& cheque) {
    return consulta("comando=seleciona_um_controle_cheque_emitido",
                    {{"&ID_EMP_TARN=", sessao.NCOMPANYCODE},
                     {"&ID_ETB_TARN=", sessao.ID_ETB_TARN},
                     {"&Id_Pes_Ban=", cheque.banco},
                     {"&Cd_Age_Ban=", cheque.agencia},
                     {"&Nr_Ccor=", cheque.conta},
                     {"&Nr_Che=", aparado(cheque.numero)},
                     {"&Nr_Ser=", emMaiusculas(cheque.serie)},
                     {"&ServerName=", sessao.SERVERNAME}});
}

std::string adiciona_controle_cheque_emitido(const Sessao& sessao, const Cheque& cheque) {
    return consulta("comando=adiciona_controle_cheque_emitido",
                    {{"&ID_EMP_TARN=", sessao.NCOMPANYCODE},
                     {"&ID_ETB_TARN=", sessao.ID_ETB_TARN},
                     {"&UserCode=", sessao.UserCode},
                     {"&ID_PES_BAN=", cheque.banco},
                     {"&CD_AGE_BAN=", aparado(cheque.agencia)},
                     {"&NR_CCOR=", aparado(cheque.conta)},
                     {"&NR_CHE=", aparado(cheque.numero)},
                     {"&NR_SER=", emMaiusculas(cheque.serie)},
                     {"&VL_CH=", aparado(cheque.valor)},
                     {"&DC_FAV=", emMaiusculas(cheque.favorecido)},
                     {"&DT_DEP=", aparado(cheque.dataDeposito)},
                     {"&DC_OBS=", emMaiusculas(cheque.observacao)},
                     {"&ServerName=", sessao.SERVERNAME}});
}

std::string sel_etiquetas(const Sessao& sessao, std::string_view motivo) {
    return consulta("comando=sel_etiquetas", {{"&ID_EMP_TARN=", sessao.NCOMPANYCODE},
                                              {"&sDc_Mot_Imp=", motivo},
                                              {"&nSeq_De=", ""},
                                              {"&nSeq_Ate=", ""},
                                              {"&ServerName=", sessao.SERVERNAME}});
}

std::string sel_etiquetas(const Sessao& sessao, std::string_view motivo, std::string_view de,
                          std::string_view ate) {
    return consulta("comando=sel_etiquetas", {{"&ID_EMP_TARN=", sessao.NCOMPANYCODE},
                                              {"&sDc_Mot_Imp=", motivo},
                                              {"&nSeq_De=", numeroDigitado(de)},
                                              {"&nSeq_Ate=", numeroDigitado(ate)},
                                              {"&ServerName=", sessao.SERVERNAME}});
}

std::string sel_motivos(const Sessao& sessao) {
    return consulta("comando=sel_motivos", {{"&ID_EMP_TARN=", sessao.NCOMPANYCODE},
                                            {"&ServerName=", sessao.SERVERNAME},
                                            {"&sIc_Ver_Eti=", sessao.TipoEtiqueta}});
}

std::string sel_filiais_remetente(const Sessao& sessao) {
    return consulta("comando=sel_filiais_remetente", {{"&ID_EMP_TARN=", sessao.NCOMPANYCODE},
                                                      {"&nId_Pes_Usu=", sessao.UserCode},
                                                      {"&ServerName=", sessao.SERVERNAME}});
}

std::string exclui_etiquetas(const Sessao& sessao, std::string_view motivo, std::string_view de,
                             std::string_view ate) {
    return consulta("comando=exclui_etiquetas", {{"&ID_EMP_TARN=", sessao.NCOMPANYCODE},
                                                 {"&nSeq_De=", numeroDigitado(de)},
                                                 {"&nSeq_Ate=", numeroDigitado(ate)},
                                                 {"&nId_Motivo=", motivo},
                                                 {"&ServerName=", sessao.SERVERNAME}});
}

std::string sel_dados_remetente(const Sessao& sessao, std::int32_t filialRemetente) {
    return consulta("comando=sel_dados_remetente", {{"&nId_Emp_Tarn=", sessao.NCOMPANYCODE},
                                                    {"&nId_Etb_Tarn=", filialRemetente},
                                                    {"&ServerName=", sessao.SERVERNAME}});
}

std::string sel_filias(const Sessao& sessao) {
    return consulta("comando=sel_filias", {{"&nId_Emp_Tarn=", sessao.NCOMPANYCODE},
                                           {"&nId_Pes_Usu=", sessao.UserCode},
                                           {"&ServerName=", sessao.SERVERNAME}});
}

std::string sel_pais(const Sessao& sessao) {
    return consulta("comando=sel_pais", {{"&ServerName=", sessao.SERVERNAME}});
}

std::string sel_estado(const Sessao& sessao, std::int32_t pais) {
    return consulta("comando=sel_estado", {{"&Pais=", pais}, {"&ServerName=", sessao.SERVERNAME}});
}

std::string sel_cidade(const Sessao& sessao, std::int32_t estado) {
    return consulta("comando=sel_cidade",
                    {{"&Estado=", estado}, {"&ServerName=", sessao.SERVERNAME}});
}

std::string sel_dados_etq(const Sessao& sessao, const FiltroEtiquetas& filtro) {
    return consulta("comando=sel_dados_etq", {{"&nIdEtbTarn=", filtro.filiais},
                                              {"&nIdPais=", seEscolhido(filtro.pais)},
                                              {"", chaveSeEscolhido("&nIdUf=", filtro.estado)},
                                              {"", chaveSeEscolhido("&nIdMun=", filtro.cidade)},
                                              {"&nIdMatPro=", filtro.produto},
                                              {"&nCepDe=", filtro.cepDe},
                                              {"&nCepAte=", filtro.cepAte},
                                              {"&dDtDe=", filtro.vendaDe},
                                              {"&dDtAte=", filtro.vendaAte},
                                              {"&nVlrDe=", filtro.valorDe},
                                              {"&nVlrAte=", filtro.valorAte},
                                              {"&nQtDe=", filtro.quantidadeDe},
                                              {"&nQtAte=", filtro.quantidadeAte},
                                              {"&nIdOrd=", filtro.porCep ? "CEP" : "NOME"},
                                              {"&ServerName=", sessao.SERVERNAME}});
}

}  // namespace tarn::comando
