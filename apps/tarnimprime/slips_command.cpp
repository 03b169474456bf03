#include <algorithm>
#include <fstream>
#include <iterator>
#include <memory>

#include "apps/tarnimprime/commands.h"
#include "apps/tarnimprime/print_environment.h"
#include "apps/tarnimprime/ticks.h"
#include "platform/message_boxes.h"
#include "runtime/text.h"
#include "slips/portfolio.h"
#include "slips/print_slips.h"
#include "slips/slip_search.h"

namespace tarn::imprime {
namespace {

constexpr int posicaoEscolhida = 1;  // any but the one that stands for no portfolio

struct Pedido {
    Sessao sessao;
    std::string carteira;
    PedidoDeBoletos boletos;
    Marca marca;
    std::vector<std::string> documentos;
};

// What would be written to the server, one request a line. There is none, so each write
// fails, which the run doesn't look at.
class PedidosEmArquivo : public HttpLoader {
public:
    // Without a directory they are dropped.
    explicit PedidosEmArquivo(const std::optional<std::string>& pasta) {
        if (!pasta) {
            return;
        }
        const std::string arquivo = *pasta + "/requests.txt";
        saida_.open(arquivo, std::ios::binary | std::ios::trunc);
        if (!saida_) {
            throw FalhaDeUso("não foi possível gravar \"" + arquivo +
                             "\". Confira a permissão de gravação.");
        }
    }
    HttpAnswer get(const std::string& pedido) override {
        if (saida_.is_open()) {
            saida_ << escapedLine(pedido) << '\n' << std::flush;
        }
        return {};
    }

private:
    std::ofstream saida_;
};

Environment comPedidos(const Environment& mesa, HttpLoader& pedidos) {
    return {.http = pedidos,
            .spooler = mesa.spooler,
            .printer = mesa.printer,
            .boxes = mesa.boxes,
            .clock = mesa.clock,
            .machine = mesa.machine,
            .baseUrl = {},
            .codePage = mesa.codePage};
}

// The rows of all files, one number after the other; `marca` holds for each file.
std::vector<LinhaGrade> linhasMarcadas(const Pedido& pedido) {
    std::vector<LinhaGrade> todas;
    for (const XmlDocument& resposta : leRespostas(pedido.documentos)) {
        std::vector<LinhaGrade> linhas = linhasDeBoletos(resposta);
        marcaLinhas(linhas, pedido.marca);
        std::move(linhas.begin(), linhas.end(), std::back_inserter(todas));
    }
    return todas;
}

void imprime(const Pedido& pedido, Mesa& mesa) {
    const CarteiraCobranca carteira = carteiraDe(leResposta(pedido.carteira));
    std::vector<LinhaGrade> linhas = linhasMarcadas(pedido);
    const Environment& semServidor = mesa.ambiente();
    PedidosEmArquivo pedidos(mesa.destino());
    Environment ambiente = comPedidos(semServidor, pedidos);
    if (const auto recusa = recusaDaImpressao(posicaoEscolhida, pedido.boletos.proximo)) {
        ambiente.boxes.show({std::string(recusa->texto), BoxIcon::Information, "TArn"});
        return;
    }
    imprimeBoletos(ambiente, pedido.sessao, carteira, pedido.boletos, linhas,
                   {.desmarca = [&linhas](std::size_t i) { linhas[i].marcada = false; }});
}

}  // namespace

void declaraBoletos(CLI::App& app, Escolha& escolha) {
    CLI::App* comando = app.add_subcommand("boletos", "Imprime boletos bancários");
    const auto pedido = std::make_shared<Pedido>();
    pedido->sessao.SERVERNAME = "SRV";
    pedido->sessao.UserCode = "U1";
    declaraCodigo(*comando, "--empresa", pedido->sessao.NCOMPANYCODE, "Código da empresa");
    declaraCodigo(*comando, "--estabelecimento", pedido->sessao.ID_ETB_TARN,
                  "Código do estabelecimento");
    comando->add_option("--carteira", pedido->carteira, "Carteira de cobrança (CART.xml)")
        ->required();
    comando
        ->add_option("--proximo", pedido->boletos.proximo,
                     "Número do próximo boleto, sem agência e sem dígito verificador")
        ->required();
    comando->add_flag("--inclui-carteira", pedido->boletos.incluiCarteira,
                      "Inclui os documentos na carteira: vale o banco dela, não o de cada um");
    declaraMarca(*comando, pedido->marca);
    comando->add_option("documentos", pedido->documentos, "Documentos da pesquisa (DOCS.xml)")
        ->required();
    comando->callback(
        [&escolha, pedido] { escolha.faz = [pedido](Mesa& mesa) { imprime(*pedido, mesa); }; });
}

}  // namespace tarn::imprime
