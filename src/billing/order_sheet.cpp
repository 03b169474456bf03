#include "billing/order_sheet.h"

#include <string>
#include <string_view>

#include "common/raw_channel.h"
#include "gateway/pega_valor.h"
#include "platform/environment.h"
#include "runtime/mask.h"
#include "runtime/numbers.h"
#include "runtime/runtime_error.h"

namespace tarn {
namespace {

constexpr std::int32_t empresaDaFolhaComPreco = 1361;
constexpr int larguraDaFolha = 77;
constexpr int colunaDosTotais = 65;  // where the labels of the totals end
constexpr int larguraDoTotal = 11;
constexpr int larguraDoValor = 12;
constexpr NumberMask duasCasas{"##,###0.00"};
constexpr NumberMask tresCasas{"##,###0.000"};

// The amounts of one item, or their totals.
struct Valores {
    double bruto = 0;
    double desconto = 0;
    double ipi = 0;
    double icmsRetido = 0;
    double descontoIcms = 0;
    double frete = 0;
    double despesas = 0;
    double seguro = 0;

    void soma(const Valores& item) {
        bruto += item.bruto;
        desconto += item.desconto;
        ipi += item.ipi;
        icmsRetido += item.icmsRetido;
        descontoIcms += item.descontoIcms;
        frete += item.frete;
        despesas += item.despesas;
        seguro += item.seguro;
    }
    double ateFrete() const { return bruto - desconto + ipi + icmsRetido - descontoIcms + frete; }
    // An item adds its insurance before its expenses, the order the other way round;
    // the last cent may depend on it.
    double liquidoDoItem() const { return ateFrete() + seguro + despesas; }
    double liquidoDaOrdem() const { return ateFrete() + despesas + seguro; }
};

struct Item {
    std::string_view codigo;
    std::string_view descricao;
    double quantidade = 0;
    double unitario = 0;
    Valores valores;
};

std::string_view campoDe(const XmlNode& linha, std::string_view nome) {
    const XmlAttribute atributo = linha.attributes().getNamedItem(nome);
    if (!atributo) {
        throw ErroExecucao(ErroNumero::VariavelObjeto, nome);
    }
    return atributo.text();
}

double numeroDe(const XmlNode& linha, std::string_view nome) {
    return readPoint(campoDe(linha, nome));
}

// Every field is read, also those that the sheet doesn't print.
Item leItem(const XmlNode& linha) {
    Item item{.codigo = campoDe(linha, "CD_PRO"),
              .descricao = campoDe(linha, "DESCRICAO"),
              .quantidade = numeroDe(linha, "QTDE"),
              .unitario = numeroDe(linha, "UNITARIO"),
              .valores = {.desconto = numeroDe(linha, "VL_DSC"),
                          .ipi = numeroDe(linha, "VL_IPI"),
                          .icmsRetido = numeroDe(linha, "VL_ICMS_RTD"),
                          .descontoIcms = numeroDe(linha, "VL_DSC_ICMS"),
                          .frete = numeroDe(linha, "VL_FRT"),
                          .despesas = numeroDe(linha, "VL_DSP_ACS"),
                          .seguro = numeroDe(linha, "VL_SEG")}};
    item.valores.bruto = item.quantidade * item.unitario;
    return item;
}

// One job, line by line. Nothing of a line goes out before sai().
class Folha {
public:
    explicit Folha(Environment& ambiente) : canal_(ambiente.spooler, ambiente.codePage) {
        canal_.abre();
    }

    Folha& texto(std::string_view fixo) {
        linha_ += fixo;
        return *this;
    }
    Folha& brancos(int quantos) {
        linha_.append(static_cast<std::size_t>(quantos), ' ');
        return *this;
    }
    Folha& campo(std::string_view valor, int largura) {
        appendCampo(linha_, valor, largura, false);
        return *this;
    }
    Folha& valor(double numero, const NumberMask& mascara, int largura) {
        return aDireita(formatNumber(numero, mascara), largura);
    }
    Folha& entreParenteses(double numero, int largura) {
        return aDireita("(" + formatNumber(numero, duasCasas) + ")", largura);
    }
    void sai() {
        canal_.ImprimeRaw(1, linha_, 1);
        linha_.clear();
    }

    void regua(char traco) {
        linha_.append(larguraDaFolha, traco);
        sai();
    }
    void emBranco() { brancos(larguraDaFolha).sai(); }
    void fecha() { canal_.fecha(); }

private:
    Folha& aDireita(std::string_view valor, int largura) {
        appendCampo(linha_, valor, largura, true);
        return *this;
    }

    RawChannel canal_;
    std::string linha_;
};

std::string cabecalho(const XmlDocument& documento, std::string_view nome) {
    return pegaTexto(documento.selectSingleNode("PRINCIPAL"), 0, nome);
}

// Quantity, code, description; what follows differs.
Folha& comecoDoItem(Folha& folha, const Item& item) {
    return folha.valor(item.quantidade, tresCasas, 8)
        .brancos(1)
        .campo(item.codigo, 7)
        .brancos(1)
        .campo(item.descricao, 36)
        .brancos(1);
}

// Reads and prints the items in turn; returns their totals.
template <typename FimDaLinha>
Valores imprimeItens(Folha& folha, const XmlDocument& documento, FimDaLinha fimDaLinha) {
    Valores totais;
    const XmlNodeList linhas = documento.selectNodes("//ITEM");
    for (std::size_t i = 0; i < linhas.length(); ++i) {
        const Item item = leItem(linhas.item(i));
        totais.soma(item.valores);
        comecoDoItem(folha, item);
        fimDaLinha(item);
        folha.sai();
    }
    return totais;
}

// `titulos` prints the two lines above the instalments, when there are any.
template <typename Titulos>
void imprimeParcelas(Folha& folha, const XmlDocument& documento, Titulos titulos) {
    const XmlNodeList linhas = documento.selectNodes("//PARCELA");
    if (linhas.length() > 0) {
        titulos();
    }
    for (std::size_t i = 0; i < linhas.length(); ++i) {
        const std::string_view vencimento = campoDe(linhas.item(i), "DT_PRL");
        const double valor = numeroDe(linhas.item(i), "VL_PRL");
        folha.brancos(28)
            .campo(vencimento, 10)
            .brancos(1)
            .valor(valor, duasCasas, larguraDoValor)
            .brancos(1)
            .sai();
    }
}

void rotulo(Folha& folha, std::string_view texto) {
    folha.brancos(colunaDosTotais - static_cast<int>(texto.size())).texto(texto);
}

void imprimeTotais(Folha& folha, const Valores& totais) {
    const auto total = [&folha](std::string_view texto, double valor) {
        rotulo(folha, texto);
        folha.valor(valor, duasCasas, larguraDoTotal).sai();
    };
    // The closing bracket stands one column behind the digits of the other totals.
    const auto desconto = [&folha](std::string_view texto, double valor) {
        rotulo(folha, texto);
        folha.entreParenteses(valor, larguraDoValor).sai();
    };
    desconto("VALOR DE DESCONTO: ", totais.desconto);
    total("VALOR DE IPI: ", totais.ipi);
    total("VALOR DE ICMS RETIDO: ", totais.icmsRetido);
    desconto("VALOR DE DESCONTO ICMS: ", totais.descontoIcms);
    total("VALOR DE FRETE: ", totais.frete);
    total("VALOR DE SEGURO: ", totais.seguro);
    total("VALOR DE DESPESAS ACESSORIAS: ", totais.despesas);
    folha.brancos(43).texto("----------------------------------").sai();
    total("VALOR LIQUIDO: ", totais.liquidoDaOrdem());
}

void imprimeCabecalhoPadrao(Folha& folha, const XmlDocument& documento) {
    folha.sai();
    folha.texto("                            ORDEM DE FATURAMENTO                             ")
        .sai();
    folha.regua('-');
    folha.texto("Cliente:  ").campo(cabecalho(documento, "RAZAO"), 50).brancos(1);
    folha.texto("Data: ").campo(cabecalho(documento, "DT_EMS_NF"), 10).sai();
    folha.texto("Vendedor: ").campo(cabecalho(documento, "VENDEDOR"), 67).sai();
    folha.texto("                                  PRODUTOS                                   ")
        .sai();
    folha.regua('-');
    folha.texto("  QTDE    CODIGO         DESCRICAO DO PRODUTO          UNITARIO   VLR.BRUTO  ")
        .sai();
    folha.texto("-------- ------- ------------------------------------ ---------- ------------")
        .sai();
}

void imprimeCabecalhoPreco(Folha& folha, const XmlDocument& documento) {
    folha.sai();
    const std::string controle = cabecalho(documento, "NR_CTRL_INT");
    if (controle != "0") {
        folha.campo(controle, 40);
    }
    folha.sai();
    folha.regua('-');
    folha.campo(cabecalho(documento, "RAZAO"), 50).brancos(17);
    folha.campo(cabecalho(documento, "DT_EMS_NF"), 10).sai();
    folha.campo(cabecalho(documento, "VENDEDOR"), 67).sai();
    folha.emBranco();
    folha.regua('-');
}

void imprimeObservacoes(Folha& folha) {
    constexpr int linhasParaEscrever = 4;
    folha.emBranco();
    folha.emBranco();
    folha.texto("OBS:_________________________________________________________________________")
        .sai();
    for (int i = 0; i < linhasParaEscrever; ++i) {
        folha.emBranco();
        folha.regua('_');
    }
}

}  // namespace

void ImprimeOrdemFaturamento(Environment& ambiente, XmlDocument& documento) {
    Folha folha(ambiente);
    imprimeCabecalhoPadrao(folha, documento);
    const Valores totais = imprimeItens(folha, documento, [&folha](const Item& item) {
        folha.valor(item.unitario, duasCasas, 10).brancos(1);
        folha.valor(item.valores.bruto, duasCasas, larguraDoTotal);
    });
    folha.regua('-');
    imprimeTotais(folha, totais);
    imprimeParcelas(folha, documento, [&folha] {
        folha.texto("                        VENCTO PREVISTO      VALOR                           ")
            .sai();
        folha.texto("                      ------------------- -------------                      ")
            .sai();
    });
    folha.fecha();
    documento = XmlDocument();
}

void ImprimeOrdemFaturamentoPreco(Environment& ambiente, XmlDocument& documento) {
    Folha folha(ambiente);
    imprimeCabecalhoPreco(folha, documento);
    const Valores totais = imprimeItens(folha, documento, [&folha](const Item& item) {
        folha.valor(item.unitario, tresCasas, 10).brancos(1);
        folha.valor(item.valores.liquidoDoItem(), duasCasas, larguraDoValor);
    });
    folha.regua('-');
    folha.brancos(colunaDosTotais).valor(totais.desconto, duasCasas, larguraDoValor).sai();
    folha.brancos(60).texto("-----------------").sai();
    folha.brancos(colunaDosTotais);
    folha.valor(totais.liquidoDaOrdem(), duasCasas, larguraDoValor).sai();
    imprimeParcelas(folha, documento, [&folha] {
        folha.emBranco();
        folha.texto("                         ---------------- -------------                      ")
            .sai();
    });
    imprimeObservacoes(folha);
    folha.fecha();
    documento = XmlDocument();
}

void imprimeOrdem(Environment& ambiente, const Sessao& sessao, XmlDocument& documento) {
    if (sessao.NCOMPANYCODE == empresaDaFolhaComPreco) {
        ImprimeOrdemFaturamentoPreco(ambiente, documento);
    } else {
        ImprimeOrdemFaturamento(ambiente, documento);
    }
}

}  // namespace tarn
