#include "labels/label.h"

#include <gtest/gtest.h>

#include "runtime/runtime_error.h"
#include "tests/labels/label_answers.h"

namespace tarn::test {

using namespace labels;
namespace {

TEST(Label, HasEachFieldUnderItsOwnName) {
    const XmlDocument answer = document(labelRows(2));
    Labels all(answer);
    ASSERT_EQ(all.count(), 2U);
    const Label label = all.read(1);
    EXPECT_EQ(label.NOME, "NOME 2");
    EXPECT_EQ(label.ENDERECO, "RUA 2, 5");
    EXPECT_EQ(label.SOMENTE_ENDERECO, "RUA 2");
    EXPECT_EQ(label.NUMERO, "2");
    EXPECT_EQ(label.COMPLEMENTO, "CJ 2");
    EXPECT_EQ(label.BAIRRO, "BAIRRO 2");
    EXPECT_EQ(label.MUNICIPIO, "CIDADE 2");
    EXPECT_EQ(label.UF, "U2");
    EXPECT_EQ(label.CEP, "CEP 2");
    EXPECT_EQ(label.CODIGO, "COD 2");
}

TEST(Label, WhatTheAnswerLacksIsEmpty) {
    const XmlDocument answer = document(answers::rowset("<z:row NOME='ANA'/>"));
    Labels all(answer);
    const Label label = all.read(0);
    EXPECT_EQ(label.NOME, "ANA");
    EXPECT_EQ(label.CEP, "");
}

TEST(Sender, IsTheFirstRow) {
    const Sender from = readSender(document(sender));
    EXPECT_EQ(from.NOME, "FILIAL SUL");
    EXPECT_EQ(from.ENDERECO, "AV. BRASIL");
    EXPECT_EQ(from.MUNICIPIO, "CURITIBA");
    EXPECT_EQ(from.DESCRICAO, "LOJA 1");
    EXPECT_EQ(from.NUMERO, "2000");
    EXPECT_THROW(readSender(document(answers::rowset(""))), RuntimeError);
}

TEST(Sender, ABlankDescriptionAndANumberOfZeroAreEmpty) {
    const Sender from =
        readSender(document(answers::rowset("<z:row DESCRICAO='  ' NUMERO='0,00'/>")));
    EXPECT_EQ(from.DESCRICAO, "");
    EXPECT_EQ(from.NUMERO, blankIfZero("0,00"));
}

TEST(BlankIfZero, AHouseNumberThatCountsAsNoneIsNothing) {
    for (const char* none : {"0", "000", "", "S/N", " 0 "}) {
        EXPECT_EQ(blankIfZero(none), "") << none;
    }
    for (const char* number : {"5", "10A", "0.5"}) {
        EXPECT_EQ(blankIfZero(number), number);
    }
}

}  // namespace
}  // namespace tarn::test
