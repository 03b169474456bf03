#include "runtime/runtime_error.h"

#include <new>

namespace tarn {

namespace {

std::string_view descriptionOf(RuntimeErrorCode number) {
    switch (number) {
        case RuntimeErrorCode::InvalidArgument:
            return "Um valor está fora do que a rotina aceita";
        case RuntimeErrorCode::Overflow:
            return "Um número é grande demais";
        case RuntimeErrorCode::OutOfRange:
            return "Falta uma parte de um dado";
        case RuntimeErrorCode::TypeMismatch:
            return "Há um texto onde era esperado um número";
        case RuntimeErrorCode::ObjectVariable:
            return "Falta um dado na resposta do servidor";
        case RuntimeErrorCode::ObjectRequired:
            return "O objeto é obrigatório";
    }
    return "Erro não previsto";
}

std::string withDetail(RuntimeErrorCode number, std::string_view detail) {
    std::string text(descriptionOf(number));
    if (!detail.empty()) {
        text.append(": ").append(detail);
    }
    return text;
}

}  // namespace

RuntimeError::RuntimeError(RuntimeErrorCode number)
    : std::runtime_error(std::string(descriptionOf(number))), number_(number) {}

RuntimeError::RuntimeError(RuntimeErrorCode number, std::string_view detail)
    : std::runtime_error(withDetail(number, detail)), number_(number) {}

std::string failureText(const RuntimeError& error) {
    return "Erro em tempo de execução '" + std::to_string(static_cast<int>(error.number())) +
           "':\r\r" + error.description() + ".";
}

std::string reportText(const std::exception& error) {
    std::string text;
    if (const auto* known = dynamic_cast<const RuntimeError*>(&error)) {
        text = failureText(*known);
    } else if (dynamic_cast<const std::bad_alloc*>(&error) != nullptr) {
        text = "Erro em tempo de execução:\r\rFalta memória nesta máquina.";
    } else {
        text = "Erro em tempo de execução:\r\rO programa encontrou um erro que não esperava.";
    }
    if (const auto* affected = dynamic_cast<const NoteAffected*>(&error)) {
        text += affected->note == NoteState::Exists
                    ? "\r\rA Nota Fiscal continua no servidor e pode ser impressa outra vez pela "
                      "tela de Reimpressão de Nota Fiscal."
                    : "\r\rA Nota Fiscal pode ter sido gerada no servidor. Caso tenha sido gerada, "
                      "utilize a tela de Reimpressão de Nota Fiscal para imprimi-la.";
    }
    return text;
}

}  // namespace tarn
