#include "cheques/imprime_cheque.h"

#include <array>
#include <cmath>
#include <string>
#include <vector>

#include "cheques/quebra_texto.h"
#include "common/raw_channel.h"
#include "common/valor_extenso.h"
#include "platform/environment.h"
#include "runtime/numbers.h"
#include "runtime/runtime_error.h"
#include "runtime/split.h"
#include "runtime/text.h"

namespace tarn {
namespace {

constexpr std::int16_t banco33 = 33;
constexpr std::size_t larguraDoFavorecido = 70;
constexpr int larguraDoMunicipio = 19;
constexpr int larguraDoDia = 2;
constexpr int larguraDoMes = 17;
// ESC/P: condensed print, then double strike behind a doubled escape.
constexpr std::string_view condensadoDuplo = "\x0F\x1B\x1BG";
constexpr std::string_view espacoDe6Por72 = "\x1B\x41\x06";  // ESC "A": line spacing in 1/72 inch

constexpr std::array<std::string_view, 12> meses{"JANEIRO",  "FEVEREIRO", "MARCO",    "ABRIL",
                                                 "MAIO",     "JUNHO",     "JULHO",    "AGOSTO",
                                                 "SETEMBRO", "OUTUBRO",   "NOVEMBRO", "DEZEMBRO"};

std::string_view nomeDoMes(std::string_view numero) {
    const double mes = readPoint(numero);
    if (mes < 1 || mes > static_cast<double>(meses.size()) || mes != std::floor(mes)) {
        return {};
    }
    return meses[static_cast<std::size_t>(mes) - 1];
}

struct Data {
    std::string_view dia;
    std::string_view mes;  // name
    std::string_view ano;
};

Data dataDe(std::string_view texto) {
    const std::vector<std::string_view> pedacos = split(texto, '/');
    if (pedacos.size() < 3) {
        throw ErroExecucao(ErroNumero::ForaDoIntervalo, "\"" + std::string(texto) + "\"");
    }
    return {pedacos[0], nomeDoMes(pedacos[1]), pedacos[2]};
}

// Lines of the cheque's one job. Nothing of a line goes out before sai().
class Formulario {
public:
    explicit Formulario(Environment& ambiente) : canal_(ambiente.spooler, ambiente.codePage) {
        canal_.abre({.docName = "Impressao de Cheque", .outputFile = "", .dataType = ""});
    }

    void comando(std::string_view bytes) {
        linha_ = bytes;
        sai(0);
    }
    Formulario& brancos(std::size_t quantos) {
        linha_.append(quantos, ' ');
        return *this;
    }
    Formulario& texto(std::string_view valor) {
        appendBlankingControls(linha_, valor);
        return *this;
    }
    Formulario& aEsquerda(std::string_view valor, int largura) {
        appendCampo(linha_, valor, largura, false);
        return *this;
    }
    Formulario& aDireita(std::string_view valor, int largura) {
        appendCampo(linha_, valor, largura, true);
        return *this;
    }
    void sai(int fins) {
        canal_.ImprimeRaw(1, linha_, fins);
        linha_.clear();
    }
    void fecha() { canal_.fecha(); }

private:
    RawChannel canal_;
    std::string linha_;
};

void imprimeGeral(Formulario& papel, const DadosCheque& cheque, const std::string& extenso,
                  const Data& data) {
    constexpr std::size_t larguraDoExtenso = 64;
    constexpr int larguraDoValor = 14;
    papel.comando(condensadoDuplo);
    papel.brancos(64).aDireita(cheque.sValor, larguraDoValor).sai(2);
    papel.brancos(14).texto(leftOf(extenso, larguraDoExtenso)).sai(1);
    if (extenso.size() > larguraDoExtenso) {
        papel.brancos(2).texto(extenso.substr(larguraDoExtenso));
    }
    papel.sai(2);
    papel.brancos(4).texto(leftOf(cheque.sFavorecido, larguraDoFavorecido)).sai(2);
    papel.brancos(29).aEsquerda(cheque.sNmMun, larguraDoMunicipio);
    papel.brancos(2).aDireita(data.dia, larguraDoDia);
    papel.brancos(3).aEsquerda(data.mes, larguraDoMes);
    papel.brancos(2).texto(data.ano).sai(2);
    papel.sai(9);
}

// The lines under the first one: a third joins the second, a fourth has no room.
std::string segundaLinha(const std::vector<std::string_view>& linhas) {
    std::string texto;
    if (linhas.size() > 1) {
        texto = linhas[1];
    }
    if (linhas.size() > 2) {
        texto.append(" ").append(linhas[2]);
    }
    return texto;
}

void imprimeBanco33(Formulario& papel, const DadosCheque& cheque, const std::string& extenso,
                    const Data& data) {
    constexpr std::size_t recuo = 26;
    constexpr std::size_t larguraDoExtenso = 90;
    constexpr int larguraDoValor = 25;
    const std::string quebrado = QuebraTexto(std::string(recuo, ' ') + extenso, larguraDoExtenso);
    const std::vector<std::string_view> linhas = split(quebrado, '\r');
    papel.comando(espacoDe6Por72);
    papel.comando(condensadoDuplo);
    papel.sai(2);
    papel.brancos(93).aDireita("#" + std::string(cheque.sValor) + "#", larguraDoValor).sai(4);
    papel.brancos(recuo).texto(linhas.front()).sai(2);
    if (linhas.size() > 1) {
        papel.brancos(10).texto(segundaLinha(linhas));
    }
    papel.sai(2);
    papel.brancos(12).texto(leftOf(cheque.sFavorecido, larguraDoFavorecido)).sai(4);
    papel.brancos(61).aDireita(cheque.sNmMun, larguraDoMunicipio);
    papel.brancos(2).aDireita(data.dia, larguraDoDia);
    papel.brancos(6).aEsquerda(data.mes, larguraDoMes);
    papel.brancos(9).texto(rightOf(data.ano, 2)).sai(2);
    papel.sai(20);
}

}  // namespace

std::int16_t codigoDoBanco(std::string_view nrOfiBan) {
    return readInt16(trimBlanks(nrOfiBan));
}

void ImprimeCheque(Environment& ambiente, const DadosCheque& cheque) {
    const std::string extenso = ValorExtenso(readComma(cheque.sValor), "REAIS", "REAL");
    const Data data = dataDe(cheque.sDataDeposito);
    Formulario papel(ambiente);
    if (cheque.nNr_Ofi_Ban == banco33) {
        imprimeBanco33(papel, cheque, extenso, data);
    } else {
        imprimeGeral(papel, cheque, extenso, data);
    }
    papel.fecha();
}

}  // namespace tarn
