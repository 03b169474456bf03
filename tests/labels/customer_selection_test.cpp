#include "labels/customer_selection.h"

#include <gmock/gmock.h>

#include "tests/labels/label_flows.h"
#include "tests/support/texts.h"

namespace tarn::test {

using namespace labels;
namespace {

const ListItem all{"<-TODAS->", -1};

TEST_F(LabelFlows, ListsOfTheSelection) {
    env.loader.on("sel_filias", answers::rowset("<z:row FILIAL='SUL' ID_ETB='12'/>"))
        .on("sel_pais", answers::rowset("<z:row NM_PAIS='BRASIL' ID_PAIS='55'/>"))
        .on("sel_estado", answers::rowset("<z:row NM_UF='SÃO PAULO' ID_UF='35'/>"))
        .on("sel_cidade", answers::rowset("<z:row NM_MUN='SANTOS' ID_MUN='-9'/>"));
    EXPECT_EQ(loadBranches(env.environment, session),
              (std::vector<ListItem>{all, ListItem{"SUL", 12}}));
    EXPECT_EQ(loadCountries(env.environment, session),
              (std::vector<ListItem>{all, ListItem{"BRASIL", 55}}));
    EXPECT_EQ(loadStates(env.environment, session, 55),
              (std::vector<ListItem>{all, ListItem{"SÃO PAULO", 35}}));
    EXPECT_EQ(loadTowns(env.environment, session, 35),
              (std::vector<ListItem>{all, ListItem{"SANTOS", -9}}));
    EXPECT_EQ(
        env.loader.queries(),
        (Texts{"comando=sel_filias&nId_Emp_Tarn=2161&nId_Pes_Usu=77&ServerName=SRV1",
               "comando=sel_pais&ServerName=SRV1", "comando=sel_estado&Pais=55&ServerName=SRV1",
               "comando=sel_cidade&Estado=35&ServerName=SRV1"}));
}

TEST_F(LabelFlows, FailedListsOfTheSelection) {
    EXPECT_THAT(loadBranches(env.environment, session), testing::IsEmpty());
    EXPECT_THAT(loadCountries(env.environment, session), testing::IsEmpty());
    EXPECT_THAT(loadStates(env.environment, session, 1), testing::IsEmpty());
    EXPECT_THAT(loadTowns(env.environment, session, 1), testing::IsEmpty());
    EXPECT_EQ(env.boxes.shown,
              (Boxes{noInternet9Wide, noInternet9Wide, noInternet9Wide, noInternet9Wide}));
}

TEST(MontaURLTest, GivesTheChosenItemOrAllOthers) {
    const std::vector<std::int32_t> data{-1, 10, 20, -30};
    EXPECT_EQ(MontaURL(data, 0), "10, 20, -30");
    EXPECT_EQ(MontaURL(data, 2), "20");
    EXPECT_EQ(MontaURL(data, 3), "-30");
    EXPECT_EQ(MontaURL(std::span(data).first(2), 0), "10");
    EXPECT_EQ(MontaURL(std::span(data).first(1), 0), "");
    EXPECT_EQ(MontaURL({}, -1), "");
}

TEST(DateRefusal, WhatWasBoughtAsksForTheDateOfTheSale) {
    const std::string text = "Data de Venda obrigatoria nesta ocasião!";
    EXPECT_EQ(dateRefusal({.postalCodeFrom = "1"}), std::nullopt) << "CEP alone is free";
    for (const auto member :
         {&commands::LabelFilter::product, &commands::LabelFilter::amountFrom,
          &commands::LabelFilter::amountTo, &commands::LabelFilter::quantityFrom,
          &commands::LabelFilter::quantityTo}) {
        commands::LabelFilter filter;
        filter.*member = " ";
        EXPECT_EQ(dateRefusal(filter), (Refusal<SaleDate>{SaleDate::From, text}));
        filter.saleTo = "01/01/2012";
        EXPECT_EQ(dateRefusal(filter), (Refusal<SaleDate>{SaleDate::From, text}));
        filter.saleFrom = "01/01/2012";
        EXPECT_EQ(dateRefusal(filter), std::nullopt);
        filter.saleTo = "";
        EXPECT_EQ(dateRefusal(filter), (Refusal<SaleDate>{SaleDate::To, text}));
    }
}

TEST_F(LabelFlows, TheSearchShowsItsQueryFirst) {
    env.loader.on("sel_dados_etq",
                  answers::rowset("<z:row CD_CEP='1' NM_PES_CPL='N' DC_LG_CPL='L' NM_BRR='B' "
                                  "SG_UF='SP' NM_MUN='M'/><z:row CD_CEP='2'/>"));
    env.boxes.onShow = [this](const Box&) { EXPECT_TRUE(env.loader.addresses.empty()); };
    const auto customers =
        searchCustomers(env.environment, session, {.branches = "1, 2", .product = "P&Q"});
    const std::string query =
        "comando=sel_dados_etq&nIdEtbTarn=1, 2&nIdPais=&nIdMatPro=P&Q&nCepDe=&nCepAte=&dDtDe="
        "&dDtAte=&nVlrDe=&nVlrAte=&nQtDe=&nQtAte=&nIdOrd=NOME&ServerName=SRV1";
    EXPECT_EQ(env.boxes.shown, (Boxes{Box{query}}));
    EXPECT_EQ(env.loader.queries(), (Texts{query}));
    ASSERT_EQ(customers.size(), 2U);
    EXPECT_EQ(customers[0].cells, (Texts{"", "1", "N", "L", "B", "SP", "M"}));
    EXPECT_EQ(customers[1].cells, (Texts{"", "2", "", "", "", "", ""}));
    EXPECT_FALSE(customers[0].ticked);
}

TEST_F(LabelFlows, AFailedSearchFindsNobody) {
    EXPECT_THAT(searchCustomers(env.environment, session, {}), testing::IsEmpty());
    ASSERT_EQ(env.boxes.shown.size(), 2U);
    EXPECT_EQ(env.boxes.shown[1], noInternet9Wide);
}

}  // namespace
}  // namespace tarn::test
