#include "slips/documento_boleto.h"

#include "runtime/mask.h"
#include "runtime/numbers.h"
#include "runtime/text.h"

namespace tarn {
namespace {

enum class Tratamento { Texto, Valor };

struct Origem {
    ColunaBoleto coluna;
    std::string_view atributo;
    Tratamento tratamento = Tratamento::Texto;
};

// The columns that come from one attribute each; the others depend on a second one.
constexpr std::array<Origem, 24> origens{{
    {ColunaBoleto::Filial, "SG_FIL"},
    {ColunaBoleto::Vencimento, "DT_VNC_DOC_FMA"},
    {ColunaBoleto::TipoDocumento, "DC_TIP_DOC"},
    {ColunaBoleto::NumeroDocumento, "NR_DOC"},
    {ColunaBoleto::Cliente, "NM_CLI_ETB"},
    {ColunaBoleto::Emissao, "DT_EMS_DOC"},
    {ColunaBoleto::Endereco, "DC_LG_CPL"},
    {ColunaBoleto::Valor, "VL_PRN_DOC", Tratamento::Valor},
    {ColunaBoleto::Cep, "CD_CEP"},
    {ColunaBoleto::Municipio, "NM_MUN"},
    {ColunaBoleto::Estado, "SG_UF"},
    {ColunaBoleto::InscricaoEstadual, "CD_ICR_EST"},
    {ColunaBoleto::Tabela, "TIPO_DOCTO"},
    {ColunaBoleto::TaxaJuros, "TX_JUR_DIA", Tratamento::Valor},
    {ColunaBoleto::Multa, "PC_MULTA", Tratamento::Valor},
    {ColunaBoleto::JurosAoDia, "JUROS_AO_DIA", Tratamento::Valor},
    {ColunaBoleto::OutrasDespesas, "VL_OUT_DSP"},
    {ColunaBoleto::Instrucao, "DC_REF_REC"},
    {ColunaBoleto::Estabelecimento, "ID_ETB_TARN"},
    {ColunaBoleto::IdTipoDocumento, "ID_TIP_DOC"},
    {ColunaBoleto::Agencia, "CD_AGE_BAN"},
    {ColunaBoleto::Banco, "ID_PES_BAN"},
    {ColunaBoleto::CodigoExterno, "CD_EXT"},
    {ColunaBoleto::NotaFiscal, "NR_DOC_NF"},
}};

std::string celulaDe(const XmlAttribute& atributo, Tratamento tratamento) {
    if (tratamento == Tratamento::Valor) {
        return formatNumber(readPoint(atributo.text()), "###,##0.00");
    }
    return std::string(atributo.text());
}

std::string mascarado(std::string_view numero, std::size_t tamanho, std::string_view mascara) {
    const std::string comZeros = std::string(tamanho, '0').append(numero);
    return fillMask(rightOf(comZeros, tamanho), mascara);
}

std::string cnpjOuCpf(std::string_view numero, bool fisica) {
    return fisica ? mascarado(numero, 11, "@@@.@@@.@@@-@@")
                  : mascarado(numero, 14, "@@.@@@.@@@/@@@@-@@");
}

void preenchePessoa(DocumentoBoleto& documento, const XmlAttributes& linha) {
    const XmlAttribute pessoaJuridica = linha.getNamedItem("PES_JUR");
    const bool fisica = pessoaJuridica && pessoaJuridica.text() == "0";
    if (const XmlAttribute numero = linha.getNamedItem("NR_CGC_CPL")) {
        documento[ColunaBoleto::CnpjCpf] = cnpjOuCpf(numero.text(), fisica);
    }
    documento[ColunaBoleto::TipoPessoa] = fisica ? "F" : "J";
}

// A receivable has a control number, any other document a reference.
void preencheControle(DocumentoBoleto& documento, const XmlAttributes& linha) {
    const bool aReceber = documento[ColunaBoleto::Tabela] == "DOCTO_RECEBER";
    const XmlAttribute atributo = linha.getNamedItem(aReceber ? "ID_NR_CTL" : "DC_REF_REC");
    if (atributo) {
        documento[aReceber ? ColunaBoleto::NumeroControle : ColunaBoleto::ReferenciaCobranca] =
            atributo.text();
    }
}

DocumentoBoleto documentoDe(const XmlAttributes& linha) {
    DocumentoBoleto documento;
    for (const Origem& origem : origens) {
        if (const XmlAttribute atributo = linha.getNamedItem(origem.atributo)) {
            documento[origem.coluna] = celulaDe(atributo, origem.tratamento);
        }
    }
    preenchePessoa(documento, linha);
    preencheControle(documento, linha);
    return documento;
}

}  // namespace

std::vector<DocumentoBoleto> documentosDe(const XmlDocument& resposta) {
    std::vector<DocumentoBoleto> documentos;
    const XmlNode linhas = resposta.selectSingleNode("xml/rs:data");
    const std::size_t quantas = linhas ? linhas.childCount() : 0;
    documentos.reserve(quantas);
    for (std::size_t i = 0; i < quantas; ++i) {
        documentos.push_back(documentoDe(linhas.child(i).attributes()));
    }
    return documentos;
}

}  // namespace tarn
