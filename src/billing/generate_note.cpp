#include "billing/generate_note.h"

#include "billing/observations.h"
#include "gateway/answer.h"
#include "gateway/commands.h"
#include "gateway/failure_texts.h"
#include "gateway/pega_valor.h"
#include "platform/environment.h"
#include "runtime/runtime_error.h"

namespace tarn {
namespace {

// The one customer whose notes come out of the reprint screen alone.
constexpr std::int32_t empresaSemNumero = 2161;
constexpr std::int32_t estabelecimentoSemNumero = 3383;

bool avisosAceitos(Environment& ambiente, Sessao& sessao, AlertaDialogo& alerta,
                   const std::string& ordem) {
    bool continua = false;
    Seleciona_Obs_Vnd_X_Ord(ambiente, sessao, alerta, ordem, continua);
    if (continua) {
        Seleciona_Obs_Ord_X_Est(ambiente, sessao, alerta, ordem, continua);
    }
    return continua;
}

// The value of a child of the root, found by its place alone.
std::string valorPorPosicao(const XmlDocument& documento, std::size_t indice) {
    return std::string(documento.documentElement().child(indice).attributes().item(0).text());
}

FimDaGeracao imprimeGerada(Environment& ambiente, const Sessao& sessao, const std::string& nota,
                           const std::string& serie, const PassoImpressao& imprime) {
    XmlDocument documento;
    if (!pede(ambiente, comando::sel_gera_nf(sessao, nota, serie), documento, falha::Tarn0005)) {
        exclama(ambiente,
                "Houve um problema na transferência dos dados da Nota Fiscal nº " + nota +
                    ". Utilize a tela de Reimpressão de Nota Fiscal.",
                "Aviso");
        return FimDaGeracao::Completa;
    }
    if (documento.empty()) {
        throw ErroExecucao(ErroNumero::ObjetoObrigatorio);
    }
    if (!respostaAceita(ambiente, documento, "")) {
        return FimDaGeracao::Parada;
    }
    if (sessao.NCOMPANYCODE == empresaSemNumero && sessao.ID_ETB_TARN == estabelecimentoSemNumero) {
        throw ErroExecucao(ErroNumero::ObjetoObrigatorio);
    }
    imprime(ambiente, sessao, documento, nota);
    return FimDaGeracao::Completa;
}

FimDaGeracao pedeNota(Environment& ambiente, const Sessao& sessao, const std::string& ordem,
                      const PassoImpressao& imprime) {
    XmlDocument documento;
    if (!pede(ambiente, comando::SP_GERA_NF(sessao, ordem), documento, falha::Tarn0004)) {
        exclama(ambiente,
                "Favor verificar se a Nota Fiscal foi gerada. Caso tenha sido gerada, utilize a "
                "tela de Reimpressão de Nota Fiscal. ",
                "Aviso");
        return FimDaGeracao::Completa;
    }
    if (!respostaAceita(ambiente, documento, "Houve um problema para gerar a Nota Fiscal. ")) {
        return FimDaGeracao::Parada;
    }
    const std::string nota = valorPorPosicao(documento, 0);
    const std::string serie = valorPorPosicao(documento, 1);
    return imprimeGerada(ambiente, sessao, nota, serie, imprime);
}

}  // namespace

FimDaGeracao geraNota(Environment& ambiente, Sessao& sessao, AlertaDialogo& alerta,
                      const std::string& ordem, const PassoImpressao& imprime) {
    if (!avisosAceitos(ambiente, sessao, alerta, ordem)) {
        return FimDaGeracao::Parada;
    }
    try {
        return pedeNota(ambiente, sessao, ordem, imprime);
    } catch (const ErroExecucao& erro) {
        throw ErroComNota(erro);
    }
}

}  // namespace tarn
