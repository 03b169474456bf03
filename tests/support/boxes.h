// Boxes as users read them, in the words that many screens share.
#pragma once

#include <string>

#include "platform/message_boxes.h"

namespace tarn::test {

// Without an icon.
inline Box plain(const std::string& text, const std::string& title = "TarnEmissao") {
    return {text, BoxIcon::None, title};
}
inline Box information(const std::string& text, const std::string& title = "TArn") {
    return {text, BoxIcon::Information, title};
}
inline Box exclamation(const std::string& text, const std::string& title = "TarnEmissao") {
    return {text, BoxIcon::Exclamation, title};
}
inline Box notice(const std::string& text) {
    return exclamation(text, "Aviso");
}
inline Box attention(const std::string& text) {
    return information(text, "Atenção");
}
inline Box critical(const std::string& text, const std::string& title = "TarnEmissao") {
    return {text, BoxIcon::Critical, title};
}

// A request that could not be made.
inline Box requestFailure(const std::string& text) {
    return critical(text, "TarnEMISSAO - ERRO INESPERADO");
}
// By the four digits of its text; most are spelled with one blank, half of those of 0009
// with four.
inline Box transportFailure(const std::string& number, const std::string& word = "ERRO ") {
    return requestFailure(word + "Tarn" + number +
                          " - Não foi possível obter os dados da Internet. Verifique a conexão "
                          "com a Internet.");
}
inline const Box noInternet9 = transportFailure("0009");
inline const Box noInternet9Wide = transportFailure("0009", "ERRO    ");

// What a RecordingPrinter that refuses is told of as, on bills and labels.
inline const Box printerRefused{"Descrição :impressora sem papel\r\n   Numero :482"};

}  // namespace tarn::test
