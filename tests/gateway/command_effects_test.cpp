#include "gateway/command_effects.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>

#include "gateway/commands.h"

namespace tarn::test {
namespace {

bool onlyReadsAfterMark(const std::string& query) {
    return commands::onlyReads("https://servidor/Kestomain/TarnEmissao.asp?" + query);
}

TEST(CommandEffects, KnowEachCommandOnce) {
    std::set<std::string_view> names;
    for (const commands::CommandEffect& effect : commands::commandEffects()) {
        EXPECT_TRUE(names.insert(effect.command).second) << effect.command;
    }
    EXPECT_EQ(names.size(), 39U);
}

TEST(CommandEffects, TheseWriteAndNoOther) {
    std::vector<std::string_view> writing;
    for (const commands::CommandEffect& effect : commands::commandEffects()) {
        if (effect.effect == commands::Effect::Writes) {
            writing.push_back(effect.command);
        }
    }
    EXPECT_THAT(writing,
                testing::UnorderedElementsAre(
                    "sp_can_oft", "SP_GERA_NF", "MANUTENCAO_OFT", "sp_can_nf", "altera_docto_cob",
                    "altera_docto_rec", "insere_car_cob", "insere_car_rec",
                    "adiciona_controle_cheque_emitido", "exclui_etiquetas"));
}

TEST(CommandEffects, AreFoundInTheDesksOwnRequests) {
    const Sessao session;
    EXPECT_TRUE(onlyReadsAfterMark(commands::VERSAO_TARN_EMISSAO("07/01/2009")));
    EXPECT_TRUE(onlyReadsAfterMark(commands::LOGIN("1", "ana", "a=b?c")));
    EXPECT_TRUE(onlyReadsAfterMark(commands::sel_ordem_fatu(session)));
    EXPECT_FALSE(onlyReadsAfterMark(commands::SP_GERA_NF(session, "1")));
    EXPECT_FALSE(onlyReadsAfterMark(commands::sp_can_oft(session, "1", "2")));
    EXPECT_FALSE(onlyReadsAfterMark(commands::exclui_etiquetas(session, "1", "2", "3")));
}

TEST(CommandEffects, WhatIsUnknownWrites) {
    EXPECT_FALSE(onlyReadsAfterMark(""));
    EXPECT_FALSE(onlyReadsAfterMark("comando"));
    EXPECT_FALSE(onlyReadsAfterMark("comando=SEL_NF_"));
    EXPECT_FALSE(commands::onlyReads(""));
    EXPECT_FALSE(commands::onlyReads("comando=SEL_NF"));
}

}  // namespace
}  // namespace tarn::test
