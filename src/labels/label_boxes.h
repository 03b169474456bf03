// The boxes of the label screens.
#pragma once

#include <string>

namespace tarn {
class ErroExecucao;
struct Environment;
}  // namespace tarn

namespace tarn::labels {

// Information, titled as the label screens title their boxes.
void informa(Environment& ambiente, const std::string& texto);

// An error that ends nothing but the action; `oQueFazer` (Portuguese) follows its report.
void relata(Environment& ambiente, const ErroExecucao& erro, const std::string& oQueFazer);

}  // namespace tarn::labels
