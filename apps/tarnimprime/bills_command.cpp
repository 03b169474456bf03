#include <memory>
#include <vector>

#include "apps/tarnimprime/commands.h"
#include "apps/tarnimprime/print_environment.h"
#include "apps/tarnimprime/ticks.h"
#include "bills/bill_search.h"
#include "bills/print_bills.h"

namespace tarn::imprime {
namespace {

struct Pedido {
    std::int32_t empresa = 0;
    std::string dados;
    bool triplicata = false;
    Marca marca;
    std::optional<std::string> pastaFiguras;
    std::vector<std::string> documentos;
};

// The grid of each file, ticked, before anything prints.
std::vector<std::vector<LinhaGrade>> gradesDe(const Pedido& pedido) {
    std::vector<std::vector<LinhaGrade>> grades;
    for (const XmlDocument& resposta : leRespostas(pedido.documentos)) {
        grades.push_back(linhasDeDuplicatas(resposta));
        marcaLinhas(grades.back(), pedido.marca);
    }
    return grades;
}

void imprime(const Pedido& pedido, Mesa& mesa) {
    const XmlDocument dados = leResposta(pedido.dados);
    const std::vector<std::vector<LinhaGrade>> grades = gradesDe(pedido);
    Environment& ambiente = mesa.ambiente();
    const FigurasDuplicata figuras =
        carregaFiguras(pedido.pastaFiguras.value_or(ambiente.pastaFiguras));
    for (const std::vector<LinhaGrade>& linhas : grades) {
        imprimeDocumentos(ambiente, pedido.empresa, dados,
                          {.linhas = linhas, .triplicata = pedido.triplicata, .figuras = figuras},
                          {});
    }
}

}  // namespace

void declaraDuplicatas(CLI::App& app, Escolha& escolha) {
    CLI::App* comando = app.add_subcommand("duplicatas", "Imprime duplicatas e recibos");
    const auto pedido = std::make_shared<Pedido>();
    declaraCodigo(*comando, "--empresa", pedido->empresa, "Código da empresa");
    comando->add_option("--dados", pedido->dados, "Dados da empresa (EMP.xml)")->required();
    comando->add_flag("--triplicata", pedido->triplicata, "Triplicatas em vez de duplicatas");
    declaraMarca(*comando, pedido->marca);
    comando->add_option("--pasta-figuras", pedido->pastaFiguras,
                        "Pasta das figuras da página (LOGODUPL.jpg e outras)");
    comando->add_option("documentos", pedido->documentos, "Documentos da pesquisa (DOCS.xml)")
        ->required();
    comando->callback(
        [&escolha, pedido] { escolha.faz = [pedido](Mesa& mesa) { imprime(*pedido, mesa); }; });
}

}  // namespace tarn::imprime
