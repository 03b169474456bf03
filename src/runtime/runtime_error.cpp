#include "runtime/runtime_error.h"

namespace tarn {

namespace {

std::string_view descricaoDe(ErroNumero numero) {
    switch (numero) {
        case ErroNumero::ArgumentoInvalido:
            return "Um valor está fora do que a rotina aceita";
        case ErroNumero::Estouro:
            return "Um número é grande demais";
        case ErroNumero::ForaDoIntervalo:
            return "Falta uma parte de um dado";
        case ErroNumero::TipoIncompativel:
            return "Há um texto onde era esperado um número";
        case ErroNumero::VariavelObjeto:
            return "Falta um dado na resposta do servidor";
        case ErroNumero::ObjetoObrigatorio:
            return "O objeto é obrigatório";
    }
    return "Erro não previsto";
}

std::string comDetalhe(ErroNumero numero, std::string_view detalhe) {
    std::string texto(descricaoDe(numero));
    if (!detalhe.empty()) {
        texto.append(": ").append(detalhe);
    }
    return texto;
}

}  // namespace

ErroExecucao::ErroExecucao(ErroNumero numero)
    : std::runtime_error(std::string(descricaoDe(numero))), numero_(numero) {}

ErroExecucao::ErroExecucao(ErroNumero numero, std::string_view detalhe)
    : std::runtime_error(comDetalhe(numero, detalhe)), numero_(numero) {}

std::string textoDaFalha(const ErroExecucao& erro) {
    return "Erro em tempo de execução '" + std::to_string(static_cast<int>(erro.numero())) +
           "':\r\r" + erro.descricao() + ".";
}

std::string textoDoRelatorio(const ErroExecucao& erro, bool notaPodeExistir) {
    std::string texto = textoDaFalha(erro);
    texto += "\r\rO programa será encerrado. Anote esta mensagem e avise o suporte.";
    if (notaPodeExistir) {
        texto +=
            "\r\rA Nota Fiscal pode ter sido gerada no servidor. Caso tenha sido gerada, utilize a "
            "tela de Reimpressão de Nota Fiscal para imprimi-la.";
    }
    return texto;
}

}  // namespace tarn
