#include "tests/notes/form_facts.h"

#include <algorithm>
#include <stdexcept>

namespace tarn::test {

namespace {

using Ways = std::map<std::string, std::string>;

const Ways pointlessQuantity{{"QTDE", "pointless"}, {"line total", "pointless"}};
const Ways pointlessAndWhole{{"QTDE", "pointless"}, {"line total", "pointless"}, {"ICMS", "whole"}};
const Ways groupedQuantity{{"QTDE", "grouped"}};

ParcelFacts parcels(int perRow, int limit, const std::string& message, std::vector<int> last,
                    int above) {
    ParcelFacts facts;
    facts.perRow = perRow;
    facts.limit = limit;
    facts.message = message;
    facts.lastLineEnds = std::move(last);
    facts.lineEndsAbove = above;
    return facts;
}

const std::string upTo9 = "Número de Parcelas maior do que 9";

ParcelFacts upTo9Parcels(std::vector<int> last, int above) {
    return parcels(3, 9, upTo9, std::move(last), above);
}

TextFacts pieces(std::vector<Piece> list) {
    TextFacts facts;
    facts.pieces = std::move(list);
    return facts;
}

TextFacts bands(int lines, std::size_t width, std::size_t oneLineUpTo) {
    TextFacts facts;
    facts.shape = TextShape::Bands;
    facts.bandLines = lines;
    facts.bandWidth = width;
    facts.oneLineUpTo = oneLineUpTo;
    return facts;
}

TextFacts shaped(TextShape shape, std::vector<Piece> list = {}) {
    TextFacts facts = pieces(std::move(list));
    facts.shape = shape;
    return facts;
}

std::vector<FormFacts> firstGroup() {
    std::vector<FormFacts> forms;
    FormFacts f;

    f = {.name = "1361", .company = 1361, .length = 53, .exitColumn = 90, .entryColumn = 104};
    f.onlyProducts = false;
    f.afterItems = 2;
    f.parcels = upTo9Parcels({6, 5, 5, 4, 4, 4, 3, 3, 3, 2}, 6);
    f.texts = pieces({{1, 62}, {63, 62}, {125, 62}});
    forms.push_back(f);

    f = {.name = "2041", .company = 2041, .length = 50, .exitColumn = 121, .entryColumn = 131};
    f.onlyProducts = false;
    f.itemConstant = -1;
    f.afterItems = 1;
    f.parcels = upTo9Parcels({5, 5, 5, 4, 4, 4, 3, 3, 3, 2}, 5);
    f.texts = shaped(TextShape::LeftColumn, {{1, 85}, {86, 85}, {171, 85}, {256, 85}});
    f.texts.beforeObservation = "";
    f.ways = {{"VALOR_UN", "grouped"}};
    forms.push_back(f);

    // The length of this one counts the printed items, not the lines of the form.
    f = {.name = "padrao", .company = 9999, .length = 54, .exitColumn = 48, .entryColumn = 58};
    f.setupInOwnJob = false;
    f.onlyProducts = false;
    f.afterItems = 1;
    f.parcels = parcels(2, 4, "Número de Parcelas maior do que 4", {2, 2, 2, 1, 1}, 2);
    f.texts = shaped(TextShape::Fixed);
    f.ways = {{"QTDE", "general"}, {"ICMS", "raw"}, {"IPI", "raw"}};
    f.cfop = "5102";
    forms.push_back(f);

    f = {.name = "7", .company = 7, .length = 46, .exitColumn = 94, .entryColumn = 114};
    f.setupInOwnJob = false;
    f.onlyProducts = false;
    f.itemConstant = 1;
    f.afterItems = 1;
    f.texts = shaped(TextShape::None);
    f.ways = {{"QTDE", "general"}};
    f.cfop = "5102";
    forms.push_back(f);

    const std::vector<Piece> sixOf62{{1, 62}, {63, 62}, {125, 62}, {187, 62}, {249, 62}, {311, 62}};
    f = {.name = "2161_3341",
         .company = 2161,
         .establishment = 3341,
         .length = 47,
         .exitColumn = 106,
         .entryColumn = 119};
    f.afterItems = 6;
    f.parcels = upTo9Parcels({3, 3, 3, 2, 2, 2, 1, 1, 1, 1}, 5);
    f.texts = pieces(sixOf62);
    f.texts.separatorBeforeObservation = true;
    forms.push_back(f);

    f.name = "2161_3381";
    f.establishment = 3385;
    f.length = 46;
    f.exitColumn = 90;
    f.entryColumn = 103;
    forms.push_back(f);

    f.name = "2161_3383";
    f.establishment = 3383;
    f.length = 42;
    f.exitColumn = 105;
    f.entryColumn = 118;
    f.afterItems = 3;
    // Characters 249 to 310 are never printed.
    f.texts = pieces({{1, 62}, {63, 62}, {125, 62}, {187, 62}, {311, 62}});
    f.repeatedLines = 1;
    // At the billing desk the number of these notes is lost before the layout runs.
    f.ladder = Ladder::Reprint;
    forms.push_back(f);

    f = {.name = "2321", .company = 2321, .length = 45, .exitColumn = 89, .entryColumn = 101};
    f.afterItems = 3;
    f.parcels = upTo9Parcels({4, 4, 4, 3, 3, 3, 2, 2, 2, 2}, 6);
    f.texts = pieces({{1, 64}, {65, 64}, {128, 64}, {192, 64}});
    forms.push_back(f);

    const std::vector<Piece> fourOf62{{1, 62}, {63, 62}, {125, 62}, {187, 62}};
    f = {.name = "1581", .company = 1581, .length = 49, .exitColumn = 96, .entryColumn = 109};
    f.afterItems = 3;
    f.parcels = parcels(3, 6, "Número de Parcelas maior do que 6", {2, 2, 2, 1, 1, 1, 0}, 2);
    f.texts = pieces(fourOf62);
    forms.push_back(f);

    f.name = "2801";
    f.company = 2801;
    f.length = 45;
    f.exitColumn = 111;
    f.entryColumn = 128;
    f.afterItems = 2;
    forms.push_back(f);

    f = {.name = "2421_3621",
         .company = 2421,
         .establishment = 3621,
         .length = 49,
         .exitColumn = 87,
         .entryColumn = 110};
    f.afterItems = 2;
    f.texts = pieces({{1, 90}, {65, 90}, {128, 90}});
    forms.push_back(f);

    f.name = "2421_others";
    f.establishment = 1;
    f.length = 53;
    f.exitColumn = 107;
    f.entryColumn = 118;
    f.afterItems = 1;
    forms.push_back(f);
    return forms;
}

std::vector<FormFacts> secondGroup() {
    std::vector<FormFacts> forms;
    FormFacts f;

    f = {.name = "1521", .company = 1521, .length = 51, .exitColumn = 110, .entryColumn = 125};
    f.pushes = false;
    f.afterItems = 1;
    f.parcels = parcels(3, 12, "Numero de Parcelas maior do que 12! ",
                        {11, 11, 11, 9, 9, 9, 7, 7, 7, 5, 5, 5, 3}, 11);
    f.parcels->rowLineEnds = 2;
    f.parcels->oneCallEach = true;
    f.texts = shaped(TextShape::TwoTexts, {{1, 155}, {1, 149}, {150, 255}});
    forms.push_back(f);

    f = {.name = "821", .company = 821, .length = 47, .exitColumn = 110, .entryColumn = 122};
    f.pushes = false;
    f.afterItems = 1;
    f.parcels = parcels(2, 4, "Numero de Parcelas maior do que 4", {5, 5, 4, 4, 2}, 5);
    f.texts = shaped(TextShape::OneLine, {{1, 85}});
    f.ways = pointlessAndWhole;
    forms.push_back(f);

    f = {.name = "3301", .company = 3301, .length = 46, .exitColumn = 91, .entryColumn = 107};
    f.pushes = false;
    f.afterItems = 1;
    f.texts = shaped(TextShape::OneLine, {{1, 58}});
    f.ways = pointlessAndWhole;
    forms.push_back(f);

    const ParcelFacts upTo3 = parcels(3, 3, "Número de Parcelas maior do que 3", {3, 3, 3, 2}, 3);
    f = {.name = "3881", .company = 3881, .length = 49, .exitColumn = 99, .entryColumn = 116};
    f.pushes = false;
    f.parcels = upTo3;
    f.texts = bands(3, 44, 44);
    f.ways = groupedQuantity;
    forms.push_back(f);

    f.name = "e6001";
    f.company = 1;
    f.establishment = 6001;
    f.length = 44;
    forms.push_back(f);

    const ParcelFacts upTo12 = parcels(4, 12, "Número de Parcelas maior do que 12",
                                       {8, 8, 8, 8, 7, 7, 7, 7, 6, 6, 6, 6, 5}, 7);
    f = {.name = "3601", .company = 3601, .length = 47, .exitColumn = 110, .entryColumn = 123};
    f.pushes = false;
    f.itemConstant = 1;
    f.parcels = upTo12;
    f.texts = bands(2, 88, 88);
    f.ways = pointlessAndWhole;
    forms.push_back(f);

    f.name = "e5282";
    f.company = 1;
    f.establishment = 5282;
    f.length = 48;
    f.entryColumn = 124;
    f.afterItems = 1;
    forms.push_back(f);

    f = {.name = "3081", .company = 3081, .length = 51, .exitColumn = 99, .entryColumn = 117};
    f.pushes = false;
    f.afterItems = 1;
    f.parcels = parcels(2, 4, "Numero de Parcelas maior do que 4", {3, 3, 3, 2, 1}, 3);
    f.texts = bands(3, 44, 44);
    f.ways = {{"QTDE", "raw"}};
    forms.push_back(f);

    f = {.name = "3681", .company = 3681, .length = 47, .exitColumn = 99, .entryColumn = 117};
    f.pushes = false;
    f.afterItems = 1;
    f.parcels =
        parcels(3, 9, "Numero de Parcelas maior do que 9", {5, 5, 5, 4, 4, 4, 3, 3, 3, 2}, 5);
    // The observation goes in two lines as soon as it is longer than 44.
    f.texts = bands(2, 74, 44);
    f.ways = pointlessQuantity;
    forms.push_back(f);

    f = {.name = "4621_7321",
         .company = 4621,
         .establishment = 7321,
         .length = 38,
         .exitColumn = 78,
         .entryColumn = 90};
    f.setupInOwnJob = false;
    f.parcels = parcels(3, 6, "Numero de Parcelas maior do que 6. ", {4, 4, 4, 3, 3, 3, 3}, 4);
    f.parcels->oneCallEach = true;
    f.texts = pieces({{1, 90}, {90, 90}, {180, 100}});
    forms.push_back(f);

    f.name = "4621_others";
    f.establishment = 1;
    forms.push_back(f);
    return forms;
}

}  // namespace

const std::vector<FormFacts>& allForms() {
    static const std::vector<FormFacts> forms = [] {
        std::vector<FormFacts> all = firstGroup();
        const std::vector<FormFacts> rest = secondGroup();
        all.insert(all.end(), rest.begin(), rest.end());
        return all;
    }();
    return forms;
}

const FormFacts& formNamed(const std::string& name) {
    const auto& forms = allForms();
    const auto found = std::find_if(forms.begin(), forms.end(),
                                    [&](const FormFacts& f) { return f.name == name; });
    if (found == forms.end())
        throw std::out_of_range("no form " + name);
    return *found;
}

}  // namespace tarn::test
