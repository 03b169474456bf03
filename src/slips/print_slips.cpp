#include "slips/print_slips.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <limits>
#include <string_view>

#include "common/raw_channel.h"
#include "gateway/commands.h"
#include "platform/environment.h"
#include "platform/http_loader.h"
#include "platform/message_boxes.h"
#include "runtime/numbers.h"
#include "runtime/runtime_error.h"
#include "slips/slip_layouts.h"
#include "slips/slip_number.h"
#include "slips/slip_search.h"

namespace tarn {
namespace {

// ESC/P.
constexpr std::string_view doze = "\x0F\x1BM";  // condensed, 12 characters an inch
constexpr std::string_view seisPorPolegada =
    "\x1B"
    "2";                                               // lines
constexpr std::string_view batidaDupla = "\x0F\x1BG";  // condensed, double strike

// ID_PES_BAN of the banks whose forms these are.
constexpr std::array<double, 3> bancosAtendidos{1016, 1084, 1095};

bool bancoAtendido(std::string_view banco) {
    const auto numero = parseComma(banco);
    return numero && std::find(bancosAtendidos.begin(), bancosAtendidos.end(), *numero) !=
                         bancosAtendidos.end();
}

class Corrida {
public:
    Corrida(Environment& ambiente, const Sessao& sessao, const CarteiraCobranca& carteira,
            const PedidoDeBoletos& pedido)
        : ambiente_(ambiente),
          sessao_(sessao),
          carteira_(carteira),
          incluiCarteira_(pedido.incluiCarteira),
          corrente_(carteira, pedido.proximo),
          canal_(ambiente.spooler, ambiente.codePage) {}

    void preparaImpressora();
    // The job for it is open.
    void imprime(const LinhaGrade& documento);
    int impressos() const { return impressos_; }

private:
    void manda(const std::string& consulta);
    void grava(const LinhaGrade& documento, const NossoNumero& numero);
    void conta();
    void envia(std::string_view sequencia);

    Environment& ambiente_;
    const Sessao& sessao_;
    const CarteiraCobranca& carteira_;
    bool incluiCarteira_;
    NumeroCorrente corrente_;
    RawChannel canal_;
    std::int16_t impressos_ = 0;
};

void Corrida::envia(std::string_view sequencia) {
    std::string texto(sequencia);
    canal_.ImprimeRaw(1, texto, 0);
}

// A job of its own, then the slip's.
void Corrida::preparaImpressora() {
    canal_.abre();
    envia(doze);
    canal_.fecha();
    canal_.abre();
    envia(seisPorPolegada);
    envia(batidaDupla);
}

void Corrida::manda(const std::string& consulta) {
    ambiente_.http.get(ambiente_.baseUrl + consulta);
}

void Corrida::grava(const LinhaGrade& documento, const NossoNumero& numero) {
    const comando::Boleto boleto{.filial = documento.coluna(coluna_boleto::estabelecimento),
                                 .tipoDocumento = documento.coluna(coluna_boleto::tipoDocumento),
                                 .documento = documento.coluna(coluna_boleto::numero),
                                 .numeroControle = documento.coluna(coluna_boleto::numeroControle),
                                 .carteira = carteira_.ID_CRT_COB,
                                 .numeroBancario = numero.NR_BOL_BANC};
    const bool deCobranca = documento.coluna(coluna_boleto::tabela) == "DOCTO_COBRANCA";
    const bool carteira57 = carteira_.carteira57();
    const auto chave =
        carteira57 ? comando::ChaveControle::ID_NR_CTL : comando::ChaveControle::ID_NR_CLT;
    manda(deCobranca ? comando::altera_docto_cob(sessao_, boleto)
                     : comando::altera_docto_rec(sessao_, boleto, chave));
    if (carteira57) {
        manda(deCobranca ? comando::insere_car_cob(sessao_, boleto)
                         : comando::insere_car_rec(sessao_, boleto));
    }
}

// The document of a bank without a form leaves its job open.
void Corrida::imprime(const LinhaGrade& documento) {
    if (!bancoAtendido(incluiCarteira_ ? carteira_.ID_PES_BAN
                                       : documento.coluna(coluna_boleto::banco))) {
        return;
    }
    const NossoNumero numero = corrente_.nossoNumero();
    grava(documento, numero);
    if (carteira_.carteira57()) {
        imprimeLinhasCarteira57(canal_, documento, numero);
    } else {
        imprimeLinhasSeteDigitos(canal_, documento, numero);
    }
    canal_.fecha();
    conta();
}

void Corrida::conta() {
    corrente_.avanca();
    if (impressos_ == std::numeric_limits<std::int16_t>::max()) {
        throw ErroExecucao(ErroNumero::Estouro, "boletos impressos de uma vez");
    }
    ++impressos_;
}

// Tells how many of the ticked rows are done with.
class Contagem {
public:
    Contagem(const Progress& avisa, std::span<const LinhaGrade> linhas)
        : avisa_(avisa),
          total_(static_cast<std::size_t>(std::count_if(
              linhas.begin(), linhas.end(), [](const LinhaGrade& l) { return l.marcada; }))) {
        diz();
    }
    void avanca() {
        ++feitas_;
        diz();
    }

private:
    void diz() const {
        if (avisa_ && total_ > 0) {
            avisa_(feitas_, total_);
        }
    }

    const Progress& avisa_;
    std::size_t total_;
    std::size_t feitas_ = 0;
};

}  // namespace

void imprimeBoletos(Environment& ambiente, const Sessao& sessao, const CarteiraCobranca& carteira,
                    const PedidoDeBoletos& pedido, std::span<const LinhaGrade> linhas,
                    const TelaDeBoletos& tela) {
    Corrida corrida(ambiente, sessao, carteira, pedido);
    Contagem contagem(tela.andamento, linhas);
    for (std::size_t i = 0; i < linhas.size(); ++i) {
        if (linhas[i].marcada) {
            corrida.preparaImpressora();
            tela.desmarca(i);
            corrida.imprime(linhas[i]);
            contagem.avanca();
        }
        tela.passou();
    }
    if (corrida.impressos() == 0) {
        ambiente.boxes.show({.text = "Selecione um item na Lista!     ",
                             .icon = BoxIcon::Information,
                             .title = "TArn"});
    }
}

}  // namespace tarn
