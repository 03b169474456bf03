#include "session/tela_futura.h"

#include "platform/environment.h"
#include "platform/message_boxes.h"

namespace tarn {

void avisaTelaFutura(Environment& ambiente, const std::string& tela) {
    ambiente.boxes.show({"A tela \"" + tela +
                             "\" ainda não está instalada nesta versão do programa.\r"
                             "Peça ao suporte a versão que a contém; o telefone está em Ajuda.",
                         BoxIcon::Information});
}

}  // namespace tarn
