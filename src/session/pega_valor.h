// Reading one attribute of one row, and the status of an answer.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <variant>

#include "session/xml_document.h"

namespace tarn {

// What a read gives back: the padrao of whichever type was passed, or a text.
using Valor = std::variant<std::string, double>;

// `indice` counts the element children of `no` from 0. A padrao equal to the
// number 0 makes the read numeric: looked up by the upper-cased name, "." turned
// into ",". Any other padrao makes it a text read, looked up by the name exactly
// as given. Absent in any case of letters: the padrao as passed. Present in another
// case than the lookup's, or no such row: ErroExecucao VariavelObjeto.
Valor PegaValor(const XmlNode& no, std::size_t indice, std::string_view nome, const Valor& padrao);

// The two readings in use, as text: absent gives "" and "0".
std::string pegaTexto(const XmlNode& no, std::size_t indice, std::string_view nome);
std::string pegaNumero(const XmlNode& no, std::size_t indice, std::string_view nome);

// Text of the second attribute of the document's second child; ErroExecucao
// VariavelObjeto when there is none (no declaration, one attribute only).
std::string statusOf(const XmlDocument& documento);

}  // namespace tarn
