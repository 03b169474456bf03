// The drawn note of company 2541: every text with its place, widths and blanks.
#include <gtest/gtest.h>

#include "gateway/xml_document.h"
#include "notes/print_note.h"
#include "runtime/text.h"
#include "tests/notes/note_fixture.h"
#include "tests/support/test_environment.h"

namespace tarn::test {
namespace {

std::string left(std::string text, std::size_t width) {
    return text.append(width - lengthOf(text), ' ');
}
std::string right(const std::string& text, std::size_t width) {
    return std::string(width - lengthOf(text), ' ') + text;
}
std::string gap(std::size_t blanks) {
    return std::string(blanks, ' ');
}

// A text of the note as it lands, half a centimetre off its table.
std::string at(const std::string& x, const std::string& y, const std::string& text,
               const std::string& bold = "0") {
    return "text\t" + x + "\t" + y + "\tArial\t8\t" + bold + "\t" + text;
}
std::string at(const std::string& y, const std::string& text) {
    return at("1.100", y, text);
}

NoteDraft drawnNote() {
    NoteDraft note = sampleNote();
    note.head.merge(Attributes{{"NR_DOC1", "4567/1"},
                               {"NR_DOC2", "4567/2"},
                               {"NR_DOC3", "4567/3"},
                               {"ENDERECO_COB", "RUA DA COBRANÇA, 1"},
                               {"BAIRRO_COB", "MOOCA"},
                               {"CEP_COB", "3102000"},
                               {"MUNICIPIO_COB", "OSASCO"},
                               {"UF_COB", "SP"},
                               {"ENDERECO_ETG", "RUA DA ENTREGA NOVA, 22"},
                               {"BAIRRO_ETG", "LAPA"},
                               {"CEP_ETG", "05065000"},
                               {"MUNICIPIO_ETG", "NITERÓI"},
                               {"UF_ETG", "RJ"}});
    note.totals["VALOR_ICMS_RTD"] = "12.3";
    note.items[0].merge(Attributes{{"IPI", "5.00"}, {"PESO", "0.35"}});
    note.items[1].merge(Attributes{{"IPI", "100"}, {"PESO", "0.35"}});
    return note;
}

const std::string defaultText = "CONFIGURADOS VIA PROGRAMAÇÃO DE CADA CLIENTE TARN";

std::vector<std::string> headLines() {
    return {
        "scale\t7",
        "orientation\t1",
        at("1.100", "1.000", "SAÍDA", "1"),
        at("4.500", "1.000", "004567", "1"),
        at("1.500", "VENDA DE MERCADORIA   5102"),
        at("2.000", "COMÉRCIO DE PEÇAS SÃO JOÃO LTDA"),
        at("2.500", "12.345.678/0001-95"),
        at("3.000", "07/01/2009"),
        at("3.500",
           left("RUA DAS FLORES, 100", 110) + gap(2) + left("CENTRO", 32) + gap(2) + "01310-100"),
        at("4.500", left("SÃO PAULO", 50) + " " + left("(11) 5555-0000", 20) + " " + left("SP", 5)),
        at("5.000", left("110.042.490.114", 25)),
    };
}

std::vector<std::string> parcelLines() {
    return {at("5.500", left("4567/1", 20) + " " + left("07/02/2009", 20) + " 100,50"),
            at("6.000", left("4567/2", 20) + " " + left("07/03/2009", 20) + " 200,00"),
            at("6.500", left("4567/3", 20) + " " + left("07/04/2009", 20) + " 1300,25")};
}

std::vector<std::string> addressLines() {
    return {
        at("8.000",
           left("RUA DA COBRANÇA, 1", 20) + gap(2) + left("MOOCA", 20) + gap(2) + "03102-000"),
        at("8.500", left("OSASCO", 20) + gap(2) + left("SP", 12)),
        at("9.000", "RUA DA ENTREGA NOVA," + gap(2) + left("LAPA", 20) + gap(2) + "05065-000"),
        at("9.500", left("NITERÓI", 20) + gap(2) + left("RJ", 12)),
    };
}

std::string firstItem() {
    return right("P-001", 11) + gap(2) + left("PARAFUSO SEXTAVADO AÇO INOX", 40) + gap(2) + "00  " +
           gap(2) + "CX  " + gap(2) + "12,5" + gap(2) + right("100,06", 9) + gap(2) +
           right("1.250,75", 10) + gap(2) + "  18" + "5,00";
}
std::string secondItem() {
    return right("P-002", 11) + gap(2) + left("ARRUELA LISA", 40) + gap(2) + "20  " + gap(2) +
           "UN  " + gap(2) + " 400" + gap(2) + right("1,00", 9) + gap(2) + right("400,00", 10) +
           gap(2) + "   7" + " 100";
}

std::vector<std::string> footLines() {
    return {
        at("24.500", right("1.600,75", 15) + gap(2) + right("288,14", 15) + gap(2) +
                         right("12,30", 15) + gap(2) + right("12,30", 15) + gap(2) +
                         right("1.650,75", 15)),
        at("25.000", right("10,00", 15) + gap(2) + right("5,50", 15) + gap(2) + right("0,25", 15) +
                         gap(2) + right("80,04", 15) + gap(2) + right("1.696,54", 15)),
        at("25.500", left("TRANSPORTES RÁPIDOS", 30) + gap(27) + left("ABC1234", 10) + gap(8) +
                         " 2.345.678/0001-10"),
        at("26.000", left("AV. BRASIL, 2000", 30) + gap(4) + left("CAMPINAS", 20) + gap(3) +
                         left("SP", 3) + gap(3) + left("ISENTO", 15)),
        at("26.500", right("412,5", 8) + gap(4) + left("VOLUME", 10) + gap(3) +
                         right("144,375", 10) + gap(1) + right("144,375", 10)),
        at("27.000", "TEXTOS LEGAIS GRAVADOS NA TRIBUTAÇÃO"),
        at("27.500", defaultText),
        at("28.000", "004567"),
        "enddoc",
    };
}

std::vector<std::string> joined(const std::vector<std::vector<std::string>>& parts) {
    std::vector<std::string> all;
    for (const std::vector<std::string>& part : parts) {
        all.insert(all.end(), part.begin(), part.end());
    }
    return all;
}

class ImprimeNF2541 : public testing::Test {
protected:
    void draw(const std::string& xml, const std::string& number = "4567") {
        session_.NCOMPANYCODE = 2541;
        session_.ID_ETB_TARN = 1;
        ASSERT_TRUE(document_.loadXML(xml));
        printNote(Ladder::Issuing, seams_.environment, session_, document_, number);
    }
    std::vector<std::string> drawn(const NoteDraft& note) {
        seams_.printer.operations.clear();
        draw(note.xml());
        return seams_.printer.lines();
    }
    // The error of a note that stops, and the lines drawn until then.
    std::optional<RuntimeErrorCode> stopped(const NoteDraft& note) {
        seams_.printer.operations.clear();
        try {
            draw(note.xml());
        } catch (const RuntimeError& error) {
            return error.number();
        }
        return std::nullopt;
    }
    std::string lastText() const { return seams_.printer.lines().back(); }

    TestEnvironment seams_;
    Sessao session_;
    XmlDocument document_;
};

TEST_F(ImprimeNF2541, EveryTextOfTheNote) {
    EXPECT_EQ(drawn(drawnNote()), joined({headLines(),
                                          parcelLines(),
                                          addressLines(),
                                          {at("10.000", firstItem()), at("10.400", secondItem())},
                                          footLines()}));
    EXPECT_TRUE(seams_.spooler.calls.empty()) << "nothing goes out raw";
    EXPECT_TRUE(seams_.boxes.shown.empty());
    EXPECT_TRUE(document_.empty());
}

TEST_F(ImprimeNF2541, BothLaddersReachIt) {
    ASSERT_TRUE(document_.loadXML(drawnNote().xml()));
    session_.NCOMPANYCODE = 2541;
    session_.ID_ETB_TARN = 6001;
    printNote(Ladder::Reprint, seams_.environment, session_, document_, "4567");
    EXPECT_EQ(seams_.printer.lines().size(), 11U + 3 + 4 + 2 + 9);
    EXPECT_TRUE(seams_.printer.ended());
}

TEST_F(ImprimeNF2541, AnEntryNote) {
    NoteDraft note = drawnNote();
    for (const std::string kind : {"E", "Entrada"}) {
        note.head["Ent_Sai"] = kind;
        EXPECT_EQ(drawn(note).at(2), at("1.100", "1.000", "ENTRADA", "1"));
    }
    for (const std::string kind : {"e", "", "S"}) {
        note.head["Ent_Sai"] = kind;
        EXPECT_EQ(drawn(note).at(2), at("1.100", "1.000", "SAÍDA", "1"));
    }
}

TEST_F(ImprimeNF2541, NoneToFourParcels) {
    NoteDraft note = drawnNote();
    note.head.merge(
        Attributes{{"NR_DOC4", "4567/4"}, {"DT_VNC_DOC4", "07/05/2009"}, {"VL_PRN_DOC4", "0.5"}});
    std::vector<std::string> parcels = parcelLines();
    parcels.push_back(at("7.000", left("4567/4", 20) + " " + left("07/05/2009", 20) + " 0,50"));
    for (std::size_t count = 0; count <= 4; ++count) {
        note.head["QTDE_PARC"] = std::to_string(count);
        const std::vector<std::string> lines = drawn(note);
        ASSERT_EQ(lines.size(), 11 + count + 4 + 2 + 9) << count;
        for (std::size_t i = 0; i < count; ++i) {
            EXPECT_EQ(lines[11 + i], parcels[i]);
        }
        EXPECT_EQ(lines[11 + count], addressLines()[0]);
    }
    note.head["QTDE_PARC"] = "2.9";
    EXPECT_EQ(drawn(note).at(13), addressLines()[0]) << "a fraction is cut";
    note.head.erase("QTDE_PARC");
    EXPECT_EQ(drawn(note).at(11), addressLines()[0]);
}

TEST_F(ImprimeNF2541, MoreThanFourParcelsLeaveTheMessage) {
    NoteDraft note = drawnNote();
    for (const std::string count : {"5", "12", "5.5"}) {
        note.head["QTDE_PARC"] = count;
        const std::vector<std::string> lines = drawn(note);
        EXPECT_EQ(lines.at(11), at("5.500", "Número de Parcelas maior do que 4"));
        EXPECT_EQ(lines.at(12), addressLines()[0]);
    }
    note.head["QTDE_PARC"] = "4.5";
    EXPECT_EQ(drawn(note).at(15), addressLines()[0]);
}

TEST_F(ImprimeNF2541, ItemsStandFourMillimetresApartWhateverTheirKind) {
    NoteDraft note = drawnNote();
    note.items.push_back(note.items[1]);
    note.items[2]["IC_TP_CAD"] = "S";
    note.form["QT_MAX_IT"] = "1";
    const std::vector<std::string> lines = drawn(note);
    EXPECT_EQ(lines.at(18), at("10.000", firstItem()));
    EXPECT_EQ(lines.at(19), at("10.400", secondItem()));
    EXPECT_EQ(lines.at(20), at("10.800", secondItem()));
    EXPECT_EQ(lines.at(21), footLines()[0]);
    EXPECT_NE(lines.at(25).find("\t" + right("812,5", 8) + gap(4) + "VOLUME"), std::string::npos);
}

TEST_F(ImprimeNF2541, ManyItemsRunIntoTheTotals) {
    NoteDraft note = drawnNote();
    note.items.resize(40, note.items[1]);
    const std::vector<std::string> lines = drawn(note);
    EXPECT_EQ(lines.at(18 + 36), at("24.400", secondItem()));
    EXPECT_EQ(lines.at(18 + 39), at("25.600", secondItem()));
    EXPECT_EQ(lines.at(18 + 40).substr(0, 17), footLines()[0].substr(0, 17));
}

TEST_F(ImprimeNF2541, WhatIsAbsentLeavesItsPlaceAndItsPunctuation) {
    NoteDraft note;
    note.form["QT_MAX_IT"] = "6";
    note.items.emplace_back();
    const std::vector<std::string> expected = {
        "scale\t7",
        "orientation\t1",
        at("1.100", "1.000", "SAÍDA", "1"),
        at("4.500", "1.000", "004567", "1"),
        at("1.500", "   "),
        at("2.000", ""),
        at("2.500", "00.000.000/0000-00"),
        at("3.000", ""),
        at("3.500", gap(110 + 2 + 32 + 2) + "00000-000"),
        at("4.500", gap(50 + 1 + 20 + 1 + 5)),
        at("5.000", gap(25)),
        at("8.000", gap(44) + "00000-000"),
        at("8.500", gap(34)),
        at("9.000", gap(44) + "00000-000"),
        at("9.500", gap(34)),
        at("10.000", gap(11 + 2 + 40 + 2 + 4 + 2 + 4 + 2) + "   0" + gap(2) + right("0,00", 9) +
                         gap(2) + right("0,00", 10) + gap(2) + "   0" + "   0"),
        at("24.500", right("0,00", 15) + right("0,00", 17) + right("0,00", 17) + right("0,00", 17) +
                         right("0,00", 17)),
        at("25.000", right("0,00", 15) + right("0,00", 17) + right("0,00", 17) + right("0,00", 17) +
                         right("0,00", 17)),
        at("25.500", gap(30 + 27 + 10 + 8) + "  .   .   /    -  "),
        at("26.000", gap(30 + 4 + 20 + 3 + 3 + 3 + 15)),
        at("26.500", right("0", 8) + gap(4) + left("VOLUME", 10) + gap(3) + right("0,000", 10) +
                         gap(1) + right("0,000", 10)),
        at("27.000", "TEXTOS LEGAIS GRAVADOS NA TRIBUTAÇÃO"),
        at("27.500", defaultText),
        at("28.000", "004567"),
        "enddoc",
    };
    EXPECT_EQ(drawn(note), expected);
}

TEST_F(ImprimeNF2541, ValuesAsTheyStand) {
    NoteDraft note = drawnNote();
    note.head["CFOP"] = "5102/6102";
    note.head["IC_TIP_PES"] = "F";
    note.head["CGC_CPF"] = "12345678901";
    note.head["RAZAO"] = "ŁÓDŹ “€”\tA\r\nB";
    note.items[0]["ICMS"] = "18.00";
    note.items[0]["IPI"] = "ISENTO";
    note.items[0]["QTDE"] = "12.500";
    const std::vector<std::string> lines = drawn(note);
    EXPECT_EQ(lines.at(4), at("1.500", "VENDA DE MERCADORIA   5102/6102"));
    EXPECT_EQ(lines.at(5), at("2.000", "ŁÓDŹ “€” A  B")) << "paper drawn on has every character";
    EXPECT_EQ(lines.at(6), at("2.500", "123.456.789-01"));
    EXPECT_EQ(lines.at(18).substr(lines.at(18).size() - 37), "12,5" + gap(2) + right("100,06", 9) +
                                                                 gap(2) + right("1.250,75", 10) +
                                                                 gap(2) + "18,0" + "ISEN")
        << "no mask on the rates";
}

TEST_F(ImprimeNF2541, ALongerNumberIsDrawnInFull) {
    draw(drawnNote().xml(), "1234567");
    EXPECT_EQ(seams_.printer.lines().at(3), at("4.500", "1.000", "1234567", "1"));
}

TEST_F(ImprimeNF2541, AnErrorLeavesTheDocumentUnended) {
    NoteDraft note = drawnNote();
    note.head["QTDE_PARC"] = "";
    EXPECT_EQ(stopped(note), RuntimeErrorCode::TypeMismatch);
    EXPECT_EQ(lastText(), headLines().back());

    note = drawnNote();
    note.head["VL_PRN_DOC2"] = "muito";
    EXPECT_EQ(stopped(note), RuntimeErrorCode::TypeMismatch);
    EXPECT_EQ(lastText(), parcelLines()[0]);

    note = drawnNote();
    note.form.erase("QT_MAX_IT");
    EXPECT_EQ(stopped(note), RuntimeErrorCode::TypeMismatch);
    EXPECT_EQ(lastText(), addressLines().back());

    note = drawnNote();
    note.items[1]["PESO"] = "x";
    EXPECT_EQ(stopped(note), RuntimeErrorCode::TypeMismatch);
    EXPECT_EQ(lastText(), at("10.000", firstItem()));

    note = drawnNote();
    note.items.clear();
    EXPECT_EQ(stopped(note), RuntimeErrorCode::ObjectVariable);
    EXPECT_EQ(lastText(), addressLines().back());
    EXPECT_FALSE(seams_.printer.ended());
}

TEST_F(ImprimeNF2541, WithoutPrincipalThePageIsSetUpAndNothingDrawn) {
    EXPECT_THROW(draw("<?xml version=\"1.0\"?><OUTRO/>"), RuntimeError);
    EXPECT_EQ(seams_.printer.lines(), (std::vector<std::string>{"scale\t7", "orientation\t1"}));
}

TEST_F(ImprimeNF2541, AFailedTextIsToldAndTheNoteGoesOn) {
    seams_.printer.failAt = 4;
    EXPECT_EQ(drawn(drawnNote()).size(), 11U + 3 + 4 + 2 + 9);
    EXPECT_EQ(seams_.boxes.shown,
              (std::vector<Box>{{.text = "Descrição :impressora sem papel\r   Numero :482"}}));
    EXPECT_TRUE(seams_.printer.ended());
}

}  // namespace
}  // namespace tarn::test
