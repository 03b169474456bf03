#include "dotmatrix/form_file.h"

#include <gtest/gtest.h>

#include "forms/layout_forms.h"

namespace tarn::test {

using namespace dotmatrix;
namespace {

FormDesign read(std::string_view text) {
    auto form = readForm(text);
    if (const auto* error = std::get_if<FormTextError>(&form)) {
        throw std::runtime_error(error->what);
    }
    return std::get<FormDesign>(form);
}

FormTextError errorOf(std::string_view text) {
    auto form = readForm(text);
    return std::holds_alternative<FormTextError>(form) ? std::get<FormTextError>(form)
                                                       : FormTextError{};
}

TEST(FormText, EveryWord) {
    const FormDesign form = read(
        "\xEF\xBB\xBF# da gráfica\r\n"
        "nome Nota da empresa 99\r\n"
        "altura 33\r\n"
        "ligar 17\r\n"
        "figura fundo.png\r\n"
        "\r\n"
        "caixa 10 2 82 1 Nome / razão social\r\n"
        "  texto 3 5,5 NOTA FISCAL  \r\n"
        "passo 10\n"
        "caixa 1.5 11 4 2\n");
    EXPECT_EQ(form.name, "Nota da empresa 99");
    EXPECT_EQ(form.height, 33 * 360);
    EXPECT_TRUE(form.pitch.condensed);
    EXPECT_FALSE(form.pitch.elite);
    EXPECT_EQ(form.picture, "fundo.png");
    ASSERT_EQ(form.boxes.size(), 2U);
    EXPECT_EQ(form.boxes[0].x, 126);
    EXPECT_EQ(form.boxes[0].y, 9 * 360);
    EXPECT_EQ(form.boxes[0].width, 82 * 126);
    EXPECT_EQ(form.boxes[0].height, 360);
    EXPECT_EQ(form.boxes[0].label, "Nome / razão social");
    EXPECT_EQ(form.boxes[1].x, 10 * 216);
    EXPECT_EQ(form.boxes[1].y, 180);
    EXPECT_EQ(form.boxes[1].label, "");
    ASSERT_EQ(form.texts.size(), 1U);
    EXPECT_EQ(form.texts[0].x, 567);  // 4,5 columns of 126
    EXPECT_EQ(form.texts[0].text, "NOTA FISCAL");
}

TEST(FormText, EmptyIsABlankSheet) {
    EXPECT_TRUE(read("").boxes.empty());
    EXPECT_EQ(read("").height, 11 * unitsPerInch);
}

TEST(FormText, EveryFaultIsToldWithItsLine) {
    const std::pair<const char*, const char*> faults[] = {
        {"caixa 1 2 3", "\"caixa\" pede linha, coluna, largura e altura em números"},
        {"caixa 1 2 0 1 x", "\"caixa\" pede"},
        {"caixa 1 2 -3 1 x", "\"caixa\" pede"},
        {"caixa 1 2 1e3 1 x", "\"caixa\" pede"},
        {"caixa 1 2 0,001 1 x", "\"caixa\" pede"},
        {"caixa 1 -1 3 1 x", "\"caixa\" pede"},
        {"caixa 1 1001,5 3 1 x", "\"caixa\" pede"},
        {"texto -0,5 2 x", "\"texto\" pede linha e coluna"},
        {"texto 134 2 x", "\"texto\" pede linha e coluna"},
        {"texto 1 2", "\"texto\" pede linha e coluna"},
        {"altura 2", "\"altura\" pede um número de linhas de 3 a 132."},
        {"altura", "\"altura\" pede"},
        {"ligar 15", "\"ligar\" pede 10, 12, 17 ou 20."},
        {"passo", "\"passo\" pede 10, 12, 17 ou 20."},
        {"figura", "\"figura\" pede o nome de um arquivo."},
        {"quadro 1 2 3 4", "\"quadro\" não é palavra de formulário"}};
    for (const auto& [line, expected] : faults) {
        const FormTextError error = errorOf(std::string("nome x\n\n") + line);
        EXPECT_EQ(error.line, 3U) << line;
        EXPECT_EQ(error.what.find(expected), 0U) << error.what;
    }
}

// Columns are read in any pitch and written in one: what lies at the bounds of one pitch
// must be readable in the other.
TEST(FormText, TheBoundsOfOnePitchAreThoseOfEach) {
    for (const char* pitch : {"10", "12", "17", "20"}) {
        for (const char* box : {"caixa 0 0 1 132 x", "caixa 1 100 43 1", "caixa 133 1 0,01 0,01",
                                "texto 0 0,0001 x", "texto 132 144,7499 x"}) {
            const FormDesign form = read(std::string("altura 132\npasso ") + pitch + "\n" + box);
            const FormDesign again = read(writeForm(form));
            ASSERT_EQ(again.boxes.size(), form.boxes.size()) << pitch << box;
            for (std::size_t i = 0; i < form.boxes.size(); ++i) {
                EXPECT_EQ(again.boxes[i].x, form.boxes[i].x) << pitch << box;
                EXPECT_EQ(again.boxes[i].y, form.boxes[i].y) << pitch << box;
                EXPECT_EQ(again.boxes[i].width, form.boxes[i].width) << pitch << box;
                EXPECT_EQ(again.boxes[i].height, form.boxes[i].height) << pitch << box;
            }
            ASSERT_EQ(again.texts.size(), form.texts.size()) << pitch << box;
            for (std::size_t i = 0; i < form.texts.size(); ++i) {
                EXPECT_EQ(again.texts[i].x, form.texts[i].x) << pitch << box;
                EXPECT_EQ(again.texts[i].y, form.texts[i].y) << pitch << box;
            }
        }
    }
}

TEST(FormText, WhatLiesOutsideTheSheetIsAnErrorOfItsLine) {
    // The height counts wherever it is told.
    const FormTextError low = errorOf("nome x\ncaixa 3 1 10 2\ncaixa 90 1 10 1,5 Baixo\n");
    EXPECT_EQ(low.line, 3U);
    EXPECT_EQ(low.what,
              "termina na linha 90,5, e a folha tem 66. Confira linha e altura, ou aumente a "
              "\"altura\" do formulário.");
    EXPECT_EQ(read("caixa 90 1 10 1,5\naltura 96").boxes.size(), 1U);
    EXPECT_EQ(errorOf("altura 18\ntexto 20 1 x").line, 2U);
    EXPECT_EQ(errorOf("caixa 60 1 10 9\naltura 66").line, 1U);
    const FormTextError wide = errorOf("passo 10\n\ncaixa 3 1 300 2 Larga");
    EXPECT_EQ(wide.line, 3U);
    EXPECT_EQ(wide.what,
              "termina na coluna 300, e a folha mais larga tem 143. Confira coluna e largura, e o "
              "\"passo\" em que são contadas.");
    EXPECT_EQ(errorOf("passo 17\ntexto 3 250 x").line, 2U);
    EXPECT_EQ(read("passo 20\ncaixa 3 1 280 2").boxes.size(), 1U);
    // The first one is told.
    EXPECT_EQ(errorOf("caixa 70 1 1 1\ncaixa 3 1 300 2").line, 1U);
}

TEST(FormText, WrittenFormsReadTheSame) {
    for (const std::string& name : layoutFormNames()) {
        const FormDesign form = *layoutForm(name);
        const FormDesign again = read(writeForm(form));
        EXPECT_EQ(again.name, form.name);
        EXPECT_EQ(again.height, form.height);
        EXPECT_EQ(again.pitch.condensed, form.pitch.condensed);
        ASSERT_EQ(again.boxes.size(), form.boxes.size()) << name;
        for (std::size_t i = 0; i < form.boxes.size(); ++i) {
            EXPECT_EQ(again.boxes[i].x, form.boxes[i].x) << name;
            EXPECT_EQ(again.boxes[i].y, form.boxes[i].y) << name;
            EXPECT_EQ(again.boxes[i].width, form.boxes[i].width) << name;
            EXPECT_EQ(again.boxes[i].height, form.boxes[i].height) << name;
            EXPECT_EQ(again.boxes[i].label, form.boxes[i].label) << name;
        }
    }
}

}  // namespace
}  // namespace tarn::test
