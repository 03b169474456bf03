#include "labels/print_labels.h"

#include <utility>

#include "common/raw_channel.h"
#include "gateway/answer.h"
#include "gateway/commands.h"
#include "gateway/failure_texts.h"
#include "labels/imprime_linha.h"
#include "labels/label_boxes.h"
#include "labels/label_forms.h"
#include "labels/label_values.h"
#include "platform/environment.h"
#include "platform/printer.h"
#include "runtime/numbers.h"
#include "runtime/runtime_error.h"

namespace tarn::labels {
namespace {

constexpr const char* intervaloSemNumero =
    "Nada foi impresso. Digite em De e Até os números da coluna Sequencial da lista e clique em "
    "OK de novo.";
constexpr const char* remetenteIlegivel =
    "Nada foi impresso: o servidor não tem os dados da Filial Remetente. Cancele, escolha na lista "
    "o formulário com REMETENTE, uma Filial Remetente e de novo o formulário desejado, e imprima "
    "outra vez. Se continuar, avise o suporte.";

void desenha(Environment& ambiente, Formulario formulario, Etiquetas& etiquetas,
             const Remetente& remetente, const Progress& andamento) {
    preparaPagina(ambiente);
    switch (formulario) {
        case Formulario::Pimaco6280:
            return imprimePimaco6280(ambiente, etiquetas, andamento);
        case Formulario::A5:
            return imprimeA5(ambiente, etiquetas, andamento);
        default:
            return imprimeA4ComRemetente(ambiente, etiquetas, remetente, andamento);
    }
}

// A printer takes its time over a document of many pages, and tells of them.
void imprimeDocumento(Environment& ambiente, const Progress& andamento) {
    std::size_t paginas = 0;
    if (andamento) {
        ambiente.printer.progress = [&andamento, &paginas](std::size_t feitas, std::size_t total) {
            paginas = total;
            andamento(feitas, total);
        };
    }
    const auto falha = ambiente.printer.EndDoc();
    ambiente.printer.progress = nullptr;
    if (paginas > 0) {
        andamento(paginas, paginas);
    }
    mostraFalha(ambiente, falha);
}

// The raw channel is closed along with the drawn document, open or not.
void encerra(Environment& ambiente, Formulario formulario, const Progress& andamento) {
    if (formulario != Formulario::A4ComRemetente) {
        mostraFalha(ambiente, ambiente.printer.NewPage());
    }
    imprimeDocumento(ambiente, andamento);
    RawChannel(ambiente.spooler, ambiente.codePage).fecha();
}

// The range's query; nothing, with the user told, when an end of it is no number.
std::optional<std::string> consultaDo(const Intervalo& intervalo, Environment& ambiente,
                                      const Sessao& sessao, const std::string& motivo) {
    try {
        return comando::sel_etiquetas(sessao, motivo, intervalo.de, intervalo.ate);
    } catch (const ErroExecucao& erro) {
        relata(ambiente, erro, intervaloSemNumero);
        return std::nullopt;
    }
}

std::optional<Remetente> remetenteDe(const XmlDocument& resposta, Environment& ambiente) {
    try {
        return leRemetente(resposta);
    } catch (const ErroExecucao& erro) {
        relata(ambiente, erro, remetenteIlegivel);
        return std::nullopt;
    }
}

}  // namespace

Formulario formularioDe(std::string_view tipoFormulario) {
    const std::optional<double> numero = parseComma(tipoFormulario);
    for (const Formulario formulario :
         {Formulario::Pimaco6280, Formulario::Matricial, Formulario::A5}) {
        if (numero == static_cast<double>(formulario)) {
            return formulario;
        }
    }
    return Formulario::A4ComRemetente;
}

std::string_view nomeDoFormulario(Formulario formulario) {
    switch (formulario) {
        case Formulario::Pimaco6280:
            return "PIMACO 6280 - LASER";
        case Formulario::Matricial:
            return "PIMACO - XXX - MATRICIAL";
        case Formulario::A5:
            return "PDF - A5 - LASER";
        case Formulario::A4ComRemetente:
            break;
    }
    return "PDF - A4 - DESTINATÁRIO - REMETENTE - LASER";
}

std::optional<Impressao> buscaIntervalo(Environment& ambiente, const Sessao& sessao,
                                        const ValoresEtiquetas& valores,
                                        const Intervalo& intervalo) {
    const auto consulta = consultaDo(intervalo, ambiente, sessao, valores.MotivoImpressao);
    XmlDocument etiquetas;
    XmlDocument resposta;
    if (!consulta || !pede(ambiente, *consulta, etiquetas, falha::Tarn0009) ||
        !pede(ambiente, comando::sel_dados_remetente(sessao, valores.FilialRemetente), resposta,
              falha::Tarn0009)) {
        return std::nullopt;
    }
    auto remetente = remetenteDe(resposta, ambiente);
    if (!remetente) {
        return std::nullopt;
    }
    return Impressao{std::move(etiquetas), std::move(*remetente)};
}

void imprimeEtiquetas(Environment& ambiente, Formulario formulario, const Impressao& impressao,
                      const Progress& andamento) {
    Etiquetas etiquetas(impressao.etiquetas);
    if (formulario == Formulario::Matricial) {
        return imprimeMatricial(ambiente, etiquetas, andamento);
    }
    desenha(ambiente, formulario, etiquetas, impressao.remetente, andamento);
    if (etiquetas.quantas() == 0) {
        return informa(ambiente, " Não há Etiquetas nesse intervalo!   ");
    }
    informa(ambiente, " Etiquetas impressas com sucesso!   ");
    encerra(ambiente, formulario, andamento);
}

}  // namespace tarn::labels
