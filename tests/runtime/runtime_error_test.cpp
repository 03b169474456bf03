#include "runtime/runtime_error.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <new>
#include <stdexcept>
#include <string>
#include <vector>

namespace tarn::test {
namespace {

constexpr char noteHint[] =
    "\r\rA Nota Fiscal pode ter sido gerada no servidor. Caso tenha sido gerada, utilize a tela de "
    "Reimpressão de Nota Fiscal para imprimi-la.";

TEST(RuntimeErrorText, TellsTheNumberAndTheDescriptionAndNothingElse) {
    const RuntimeError error(RuntimeErrorCode::TypeMismatch, "\"ABC\"");
    EXPECT_EQ(reportText(error),
              "Erro em tempo de execução '13':\r\r"
              "Há um texto onde era esperado um número: \"ABC\".");
    EXPECT_EQ(
        reportText(ErrorAfterNote(RuntimeError(RuntimeErrorCode::ObjectRequired))),
        std::string("Erro em tempo de execução '424':\r\rO objeto é obrigatório.") + noteHint);
}

TEST(RuntimeErrorText, AnExceptionOfALibraryIsToldInPortuguese) {
    const std::string unexpected =
        "Erro em tempo de execução:\r\rO programa encontrou um erro que não esperava.";
    const std::logic_error ofLibrary("vector::_M_range_check");
    EXPECT_EQ(reportText(ofLibrary), unexpected);
    EXPECT_EQ(reportText(UnexpectedAfterNote(ofLibrary)), unexpected + noteHint);
    EXPECT_EQ(reportText(std::bad_alloc()),
              "Erro em tempo de execução:\r\rFalta memória nesta máquina.");
}

TEST(RuntimeErrorText, WhatComesAfterANoteSaysSo) {
    EXPECT_EQ(afterNote([] { return 7; }), 7);
    EXPECT_THROW(afterNote([] { throw RuntimeError(RuntimeErrorCode::Overflow); }), ErrorAfterNote);
    EXPECT_THROW(afterNote([] { throw std::out_of_range("x"); }), UnexpectedAfterNote);
}

TEST(RuntimeErrorText, EveryNumberHasItsOwnDescription) {
    std::vector<std::string> seen;
    for (const int number : {5, 6, 9, 13, 91, 424}) {
        const RuntimeError error(static_cast<RuntimeErrorCode>(number));
        EXPECT_EQ(std::count(seen.begin(), seen.end(), error.description()), 0) << number;
        seen.push_back(error.description());
    }
}

}  // namespace
}  // namespace tarn::test
