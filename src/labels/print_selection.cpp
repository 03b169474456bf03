#include "labels/print_selection.h"

#include "labels/imprime_linha.h"
#include "platform/environment.h"
#include "platform/message_boxes.h"
#include "platform/printer.h"
#include "runtime/text.h"

namespace tarn::labels {
namespace {

// Columns of the grid; what stands in the others isn't printed.
enum Coluna : std::size_t { CD_CEP = 2, NM_PES_CPL = 3, DC_LG_CPL = 4, SG_UF = 6, NM_MUN = 7 };

constexpr std::size_t corteNome = 40;  // characters, as those of the others
constexpr std::size_t corteEndereco = 50;
constexpr std::size_t corteCidade = 40;

constexpr double tamanhoNome = 10;
constexpr double tamanhoTexto = 8;

// Where the next label goes; centimetres.
struct Lugar {
    static constexpr double esquerda = 1.3;
    static constexpr double direita = 12;
    static constexpr double altura = 2.55;

    double linha = -0.3;
    bool naDireita = true;

    void avanca() {
        linha += naDireita ? 1 : 0;
        naDireita = !naDireita;
    }
    double x() const { return naDireita ? direita : esquerda; }
    double y() const { return linha * altura; }
};

void imprimeCliente(Environment& ambiente, const LinhaGrade& cliente, double x, double y) {
    std::string cidade(leftOf(cliente.coluna(NM_MUN), corteCidade));
    cidade.append(" - ").append(cliente.coluna(SG_UF));
    escreve(ambiente, leftOf(cliente.coluna(NM_PES_CPL), corteNome), x, y + 0.26, tamanhoNome);
    escreve(ambiente, leftOf(cliente.coluna(DC_LG_CPL), corteEndereco), x, y + 0.76, tamanhoTexto);
    escreve(ambiente, cliente.coluna(CD_CEP), x, y + 1.26, tamanhoTexto);
    escreve(ambiente, cidade, x, y + 1.76, tamanhoTexto);
}

}  // namespace

void imprimeSelecao(Environment& ambiente, std::span<const LinhaGrade> clientes,
                    const Progress& andamento) {
    preparaPagina(ambiente);
    Lugar lugar;
    for (std::size_t i = 0; i < clientes.size(); ++i) {
        if (clientes[i].marcada) {
            lugar.avanca();
            imprimeCliente(ambiente, clientes[i], lugar.x(), lugar.y());
        }
        if (andamento) {
            andamento(i + 1, clientes.size());
        }
    }
    mostraFalha(ambiente, ambiente.printer.EndDoc());
    ambiente.boxes.show({.text = "Impressão Gerada com Sucesso !", .title = "Alerta"});
}

}  // namespace tarn::labels
