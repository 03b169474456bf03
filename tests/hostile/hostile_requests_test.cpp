// Every text that goes into a request: one line leaves, with the command's keys in order.
// "&" and "=" stay as typed (decision D19), so the texts have none.
#include <gtest/gtest.h>

#include <functional>

#include "gateway/commands.h"
#include "platform/request_line.h"
#include "runtime/runtime_error.h"
#include "tests/hostile/hostile_texts.h"

namespace tarn::test {

namespace {

using namespace commands;
using Text = const std::string&;
using Query = std::function<std::string(Text)>;

Sessao sessionWith(std::string Sessao::*field, Text text) {
    Sessao session;
    session.*field = text;
    return session;
}

template <typename Data>
Data with(std::string Data::*field, Text text) {
    Data data;
    data.*field = text;
    return data;
}

std::vector<Query> startQueries() {
    return {[](Text t) { return VERSAO_TARN_EMISSAO(t); },
            [](Text t) { return LOGIN(t, "u", "s"); }, [](Text t) { return LOGIN("1", t, "s"); },
            [](Text t) { return LOGIN("1", "u", t); },
            [](Text t) { return verifica_direito_acesso({}, t); }};
}

std::vector<Query> noteQueries() {
    std::vector<Query> all{[](Text t) { return sp_can_oft({}, t, "1"); },
                           [](Text t) { return sp_can_oft({}, "1", t); },
                           [](Text t) { return Seleciona_Obs_Vnd_X_Ord({}, t); },
                           [](Text t) { return Seleciona_Obs_Ord_X_Est({}, t); },
                           [](Text t) { return SP_GERA_NF({}, t); },
                           [](Text t) { return sel_gera_nf({}, t, "1"); },
                           [](Text t) { return sel_gera_nf({}, "1", t); },
                           [](Text t) { return sel_impr_ordem_fatu({}, t); },
                           [](Text t) { return SEL_NF({}, t, "1"); },
                           [](Text t) { return SEL_NF({}, "1", t); }};
    for (const auto field : {&OrderData::order, &OrderData::observation, &OrderData::quantity,
                             &OrderData::grossWeight, &OrderData::netWeight}) {
        all.emplace_back([field](Text t) { return MANUTENCAO_OFT({}, with(field, t)); });
    }
    for (const auto field : {&Cancellation::noteKind, &Cancellation::note, &Cancellation::series}) {
        all.emplace_back([field](Text t) { return sp_can_nf({}, with(field, t)); });
    }
    return all;
}

std::vector<Query> collectionQueries() {
    std::vector<Query> all{[](Text t) { return Sel_Cliente({}, t); }};
    for (const auto field : {&SearchFilter::customer, &SearchFilter::dueFrom, &SearchFilter::dueTo,
                             &SearchFilter::issuedFrom, &SearchFilter::issuedTo}) {
        all.emplace_back([field](Text t) { return sel_duplicata({}, 1, with(field, t)); });
        all.emplace_back([field](Text t) { return sel_boleto({}, with(field, t), 1, true); });
    }
    for (const auto field : {&Slip::branch, &Slip::documentKind, &Slip::document,
                             &Slip::controlNumber, &Slip::portfolio, &Slip::bankNumber}) {
        all.emplace_back([field](Text t) { return altera_docto_cob({}, with(field, t)); });
        all.emplace_back([field](Text t) {
            return altera_docto_rec({}, with(field, t), ControlKey::ID_NR_CLT);
        });
        all.emplace_back([field](Text t) { return insere_car_cob({}, with(field, t)); });
        all.emplace_back([field](Text t) { return insere_car_rec({}, with(field, t)); });
    }
    for (const auto field :
         {&Cheque::agency, &Cheque::account, &Cheque::number, &Cheque::series, &Cheque::value,
          &Cheque::payee, &Cheque::depositDate, &Cheque::observation}) {
        all.emplace_back(
            [field](Text t) { return seleciona_um_controle_cheque_emitido({}, with(field, t)); });
        all.emplace_back(
            [field](Text t) { return adiciona_controle_cheque_emitido({}, with(field, t)); });
    }
    return all;
}

std::vector<Query> labelQueries() {
    std::vector<Query> all{[](Text t) { return sel_etiquetas({}, t); },
                           [](Text t) { return sel_etiquetas({}, t, "1", "2"); },
                           [](Text t) { return sel_etiquetas({}, "r", t, "2"); },
                           [](Text t) { return sel_etiquetas({}, "r", "1", t); },
                           [](Text t) { return exclui_etiquetas({}, t, "1", "2"); },
                           [](Text t) { return exclui_etiquetas({}, "r", t, "2"); },
                           [](Text t) { return exclui_etiquetas({}, "r", "1", t); }};
    for (const auto field :
         {&LabelFilter::branches, &LabelFilter::product, &LabelFilter::postalCodeFrom,
          &LabelFilter::postalCodeTo, &LabelFilter::saleFrom, &LabelFilter::saleTo,
          &LabelFilter::amountFrom, &LabelFilter::amountTo, &LabelFilter::quantityFrom,
          &LabelFilter::quantityTo}) {
        all.emplace_back([field](Text t) { return sel_dados_etq({}, with(field, t)); });
    }
    return all;
}

// What the server itself told at the logon, and goes back to it.
std::vector<Query> sessionQueries() {
    std::vector<Query> all;
    for (const auto field : {&Sessao::UserCode, &Sessao::SERVERNAME, &Sessao::TipoEtiqueta}) {
        const auto add = [&all, field](auto command) {
            all.emplace_back([field, command](Text t) { return command(sessionWith(field, t)); });
        };
        add([](const Sessao& s) { return sel_dados_empresa(s); });
        add([](const Sessao& s) { return sel_ordem_fatu(s); });
        add([](const Sessao& s) { return SEL_SERIE_NF(s); });
        add([](const Sessao& s) { return SEL_MOT_CAN(s); });
        add([](const Sessao& s) { return sel_filiais(s); });
        add([](const Sessao& s) { return sel_carteira(s); });
        add([](const Sessao& s) { return sel_carteira_cob(s, 1); });
        add([](const Sessao& s) { return sel_banco_agencia_conta(s); });
        add([](const Sessao& s) { return sel_motivos(s); });
        add([](const Sessao& s) { return sel_filiais_remetente(s); });
        add([](const Sessao& s) { return sel_dados_remetente(s, 1); });
        add([](const Sessao& s) { return sel_filias(s); });
        add([](const Sessao& s) { return sel_pais(s); });
        add([](const Sessao& s) { return sel_estado(s, 1); });
        add([](const Sessao& s) { return sel_cidade(s, 1); });
    }
    return all;
}

std::vector<std::string> keysOfLine(std::string_view line) {
    std::vector<std::string> keys;
    for (const std::string_view pair : split(line, '&')) {
        keys.emplace_back(pair.substr(0, pair.find('=')));
    }
    return keys;
}

void expectOneLine(const Query& query, const HostileText& hostile) {
    std::string plain;
    try {
        plain = requestLine(query(hostile.letters));
    } catch (const RuntimeError& error) {  // no number: nothing leaves, whatever it is
        try {
            query(hostile.text);
            ADD_FAILURE() << "a text that is no number left";
        } catch (const RuntimeError& same) {
            EXPECT_EQ(same.number(), error.number());
        }
        return;
    }
    const std::string line = requestLine(query(hostile.text));
    EXPECT_EQ(keysOfLine(line), keysOfLine(plain));
    EXPECT_EQ(std::ranges::find_if(line, [](char c) { return c <= ' ' || c >= 127; }), line.end())
        << line;
}

TEST(HostileRequests, EachOfThe136TextsLeavesInOneLineWithItsKeys) {
    std::size_t count = 0;
    for (const auto& queries :
         {startQueries(), noteQueries(), collectionQueries(), labelQueries(), sessionQueries()}) {
        for (const Query& query : queries) {
            for (HostileText hostile : hostileTexts()) {
                SCOPED_TRACE(query("1") + " " + hostile.name);
                std::erase(hostile.text, '=');
                expectOneLine(query, hostile);
            }
            ++count;
        }
    }
    EXPECT_EQ(count, 136U);
}

}  // namespace

}  // namespace tarn::test
