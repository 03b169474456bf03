#include "bills/print_bills.h"

#include <algorithm>
#include <array>
#include <span>

#include "bills/bill_paper.h"
#include "bills/bill_search.h"
#include "bills/pages.h"
#include "common/printer_failure.h"
#include "common/valor_extenso.h"
#include "gateway/answer.h"
#include "gateway/commands.h"
#include "gateway/failure_texts.h"
#include "platform/environment.h"
#include "platform/message_boxes.h"
#include "runtime/numbers.h"
#include "runtime/runtime_error.h"

namespace tarn {
namespace {

// Types drawn as bills. The report at the end knows fewer of them.
constexpr std::array<double, 5> tiposDesenhados{1, 201, 202, 203, 262};
constexpr std::size_t tiposRelatados = 4;

bool eUmDe(std::span<const double> tipos, const LinhaGrade& documento) {
    const auto tipo = parseComma(documento.coluna(coluna_duplicata::tipoDocumento));
    return tipo && std::ranges::find(tipos, *tipo) != tipos.end();
}

std::string extensoDe(const LinhaGrade& documento) {
    const std::string& valor = documento.coluna(coluna_duplicata::valor);
    const auto numero = parseComma(valor);
    if (!numero) {
        throw ErroExecucao(ErroNumero::TipoIncompativel,
                           "o documento nº " + documento.coluna(coluna_duplicata::numero) +
                               " está sem valor (\"" + valor + "\")");
    }
    return ValorExtenso(*numero, "REAIS", "REAL");
}

void desenha(Papel& papel, const Emitente& emitente, const LinhaGrade& documento) {
    const std::string extenso = extensoDe(documento);
    if (eUmDe(tiposDesenhados, documento)) {
        desenhaDuplicata(papel, emitente, documento, extenso);
    } else {
        desenhaRecibo(papel, emitente, documento, extenso);
    }
    papel.novaPagina();
}

void informa(Environment& ambiente, const std::string& texto) {
    ambiente.boxes.show({.text = texto, .icon = BoxIcon::Information, .title = "TArn"});
}

std::string mensagemFinal(const DocumentosAImprimir& documentos) {
    const auto relatados = std::span(tiposDesenhados).first<tiposRelatados>();
    if (!eUmDe(relatados, documentos.linhas.back())) {
        return "Recibo(s) impresso(s) com sucesso!     ";
    }
    const std::string especie = documentos.triplicata ? "Triplicata(s) " : "Duplicata(s) ";
    return especie + " impressa(s) com sucesso!     ";
}

}  // namespace

void imprimeSelecionados(Environment& ambiente, const Sessao& sessao,
                         const DocumentosAImprimir& documentos, const Progress& progress) {
    XmlDocument resposta;
    // Without an answer the row is missing, which ends the program.
    pede(ambiente, comando::sel_dados_empresa(sessao), resposta, falha::Tarn0009);
    imprimeDocumentos(ambiente, sessao.NCOMPANYCODE, resposta, documentos, progress);
}

void imprimeDocumentos(Environment& ambiente, std::int32_t empresa, const XmlDocument& dadosEmpresa,
                       const DocumentosAImprimir& documentos, const Progress& progress) {
    const Emitente emitente{.empresa = empresa,
                            .dados = dadosDaEmpresa(dadosEmpresa),
                            .figuras = documentos.figuras,
                            .triplicata = documentos.triplicata};
    const auto paginas =
        static_cast<std::size_t>(std::ranges::count(documentos.linhas, true, &LinhaGrade::marcada));
    if (paginas == 0) {
        return informa(ambiente, "Selecione um documento.     ");
    }
    const auto avisa = [&progress, paginas](std::size_t feitas) {
        if (progress) {
            progress(feitas, paginas);
        }
    };
    avisa(0);
    Papel papel(ambiente.printer);
    papel.prepara();
    for (const LinhaGrade& documento : documentos.linhas) {
        if (documento.marcada) {
            desenha(papel, emitente, documento);
        }
    }
    papel.termina(progress);
    avisa(paginas);
    if (papel.falha()) {
        return mostraFalha(ambiente, *papel.falha());
    }
    informa(ambiente, mensagemFinal(documentos));
}

}  // namespace tarn
