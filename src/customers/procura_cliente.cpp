#include "customers/procura_cliente.h"

#include <utility>

#include "common/boxes.h"
#include "gateway/answer.h"
#include "gateway/commands.h"
#include "gateway/failure_texts.h"
#include "platform/environment.h"
#include "runtime/text.h"

namespace tarn {
namespace {

constexpr std::size_t smallestName = 3;

constexpr auto customerColumns =
    gridOf<CustomerColumn>({{CustomerColumn::Name, {"NM_PES_CPL", "Cliente", 52}},
                            {CustomerColumn::CompanyKind, {"DC_TIP_EMP", "Tipo de Empresa", 26}},
                            {CustomerColumn::Id, {"ID_PES_CLI", "ID_PES_CLI", 14}},
                            {CustomerColumn::Establishment, {"", "ID_ETB_CLI", 14}}});

}  // namespace

std::span<const GridColumn> customerGrid() {
    return customerColumns;
}

bool ProcuraCliente(Environment& environment, const Sessao& session, XmlDocument& answer,
                    const std::optional<std::string>& text) {
    return requestAnswer(environment, commands::Sel_Cliente(session, text.value_or("")), answer,
                         failure::Tarn0024);
}

std::vector<GridRow> customerRows(const XmlDocument& answer) {
    return gridRows(answer, customerColumns);
}

bool searchCustomer(Environment& environment, const Sessao& session, const std::string& text,
                    const ShowCustomers& show) {
    if (lengthOf(trimBlanks(text)) < smallestName) {
        inform(environment, "Nome do cliente deve ter no mínimo 3 letras.    ", box_title::notice);
        return false;
    }
    XmlDocument answer;
    if (!ProcuraCliente(environment, session, answer, text)) {
        return true;
    }
    std::vector<GridRow> lines = customerRows(answer);
    const bool none = lines.empty();
    show(std::move(lines));
    if (none) {
        inform(environment, "Pesquisa nao encontrou nenhum registro.     ", box_title::notice);
    }
    return true;
}

}  // namespace tarn
