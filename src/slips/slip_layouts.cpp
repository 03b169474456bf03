#include "slips/slip_layouts.h"

#include <string>
#include <string_view>

#include "runtime/dates.h"
#include "runtime/mask.h"
#include "runtime/numbers.h"
#include "runtime/text.h"
#include "slips/slip_search.h"

namespace tarn {
namespace {

constexpr NumberMask duasCasas{"###,##0.00"};
constexpr std::size_t larguraDaInstrucao = 79;

// One slip, line by line. A value's control characters print as blanks.
class Boleto {
public:
    Boleto(RawChannel& canal, const LinhaGrade& documento) : canal_(canal), documento_(documento) {}

    const std::string& operator[](std::size_t coluna) const { return documento_.coluna(coluna); }

    Boleto& brancos(std::size_t quantos) {
        linha_.append(quantos, ' ');
        return *this;
    }
    Boleto& texto(std::string_view valor) {
        appendBlankingControls(linha_, valor);
        return *this;
    }
    Boleto& campo(std::string_view valor, int largura) {
        appendCampo(linha_, valor, largura, false);
        return *this;
    }
    Boleto& data(std::size_t coluna, int largura) {
        return campo(formatDateText(documento_.coluna(coluna)), largura);
    }
    Boleto& valor() {
        appendCampo(linha_, formatText(documento_.coluna(coluna_boleto::valor), duasCasas), 16,
                    true);
        return *this;
    }
    // Sends the line; an empty one is the blank of its column alone.
    void sai(int linhas) {
        canal_.ImprimeRaw(1, linha_, linhas);
        linha_.clear();
    }

    // Pieces of the instruction, a line each; what the text doesn't reach is one blank.
    void instrucao(int pedacos) {
        std::size_t inicio = 1;
        for (int i = 0; i < pedacos; ++i) {
            const std::string_view pedaco =
                midOf(documento_.coluna(coluna_boleto::instrucao), inicio, larguraDaInstrucao);
            texto(pedaco.empty() ? " " : pedaco).sai(1);
            inicio += larguraDaInstrucao;
        }
    }

private:
    RawChannel& canal_;
    const LinhaGrade& documento_;
    std::string linha_;
};

// The point-reading conversion stops at the comma of the grid: 2,50 is 2.
double multaDe(const Boleto& boleto) {
    return readPoint(boleto[coluna_boleto::multa]);
}

std::string multaFormatada(const Boleto& boleto) {
    return formatNumber(multaDe(boleto), duasCasas);
}

std::string jurosFormatados(const Boleto& boleto) {
    return formatText(boleto[coluna_boleto::jurosAoDia], duasCasas);
}

std::string encargos(const Boleto& boleto) {
    const std::string& juros = boleto[coluna_boleto::jurosAoDia];
    const bool temJuros = !juros.empty() && readComma(juros) != 0;
    const bool temMulta = multaDe(boleto) != 0;
    if (temJuros && !temMulta) {
        return "COBRAR JUROS DE " + jurosFormatados(boleto) + " AO DIA";
    }
    if (!temJuros && temMulta) {
        return "COBRAR MULTA DE " + multaFormatada(boleto) + "% AO DIA";
    }
    return "COBRAR MULTA DE " + multaFormatada(boleto) + "% + JUROS DE " + jurosFormatados(boleto) +
           " AO DIA";
}

std::string municipio(const Boleto& boleto) {
    return boleto[coluna_boleto::municipio] + " - " + boleto[coluna_boleto::estado] + "   " +
           boleto[coluna_boleto::cep];
}

void sacadoCarteira57(Boleto& boleto) {
    boleto.brancos(3).campo(boleto[coluna_boleto::cliente], 54);
    boleto.brancos(42).campo(boleto[coluna_boleto::cpfCnpj], 49).sai(1);
    boleto.campo(boleto[coluna_boleto::endereco], 54).brancos(45);
    boleto.texto("I.E. ").campo(boleto[coluna_boleto::inscricao], 20).sai(1);
    boleto.campo(municipio(boleto), 70).sai(1);
}

void sacadoSeteDigitos(Boleto& boleto, const NossoNumero& numero) {
    boleto.brancos(3).campo(boleto[coluna_boleto::cliente], 60).brancos(10);
    boleto.texto("CNPJ/CPF ").campo(boleto[coluna_boleto::cpfCnpj], 49).sai(1);
    boleto.brancos(3).campo(boleto[coluna_boleto::endereco], 69).brancos(1);
    boleto.texto("I.E. ").campo(boleto[coluna_boleto::inscricao], 20).sai(1);
    boleto.campo("   " + municipio(boleto), 63).brancos(10).texto("N.N.  ").texto(numero.digitos);
    boleto.texto("-").texto(std::to_string(numero.digito)).sai(1);
}

}  // namespace

void imprimeLinhasCarteira57(RawChannel& canal, const LinhaGrade& documento,
                             const NossoNumero& numero) {
    Boleto boleto(canal, documento);
    boleto.brancos(1).sai(1);
    boleto.brancos(100).data(coluna_boleto::vencimento, 16).sai(3);
    boleto.data(coluna_boleto::emissao, 14).brancos(3);
    boleto.campo(boleto[coluna_boleto::numero], 30).sai(1);
    boleto.brancos(111).valor().brancos(1).sai(2);
    boleto.instrucao(3);
    boleto.brancos(1).sai(1);
    boleto.texto(encargos(boleto)).sai(1);
    boleto.texto("NOSSO NUMERO: ").texto(numero.digitos).texto("/");
    boleto.texto(std::to_string(numero.digito)).brancos(3);
    boleto.texto("CODIGO CLIENTE: ").texto(boleto[coluna_boleto::codigoExterno]).sai(2);
    sacadoCarteira57(boleto);
    boleto.brancos(1).sai(7);
}

void imprimeLinhasSeteDigitos(RawChannel& canal, const LinhaGrade& documento,
                              const NossoNumero& numero) {
    Boleto boleto(canal, documento);
    boleto.sai(1);
    boleto.texto("ATE O VENCIMENTO, PREFERENCIALMENTE NO SANTANDER").sai(1);
    boleto.texto("APOS O VENCIMENTO, SOMENTE NO SANTANDER").brancos(45);
    boleto.data(coluna_boleto::vencimento, 16).sai(3);
    boleto.data(coluna_boleto::emissao, 14).brancos(1);
    boleto.campo(boleto[coluna_boleto::numero], 30).sai(1);
    boleto.brancos(90).valor().brancos(1).sai(2);
    boleto.instrucao(4);
    boleto.texto("COBRAR MULTA DE ").texto(multaFormatada(boleto)).texto("% + JUROS DE").sai(1);
    boleto.texto(jurosFormatados(boleto)).texto(" AO DIA").sai(2);
    sacadoSeteDigitos(boleto, numero);
    boleto.sai(6);
}

}  // namespace tarn
