// The two forms with a service block: lines of services directly below the
// products, within the six lines that the form keeps there.

#include <gtest/gtest.h>

#include <algorithm>

#include "tests/notes/compare_notes.h"
#include "tests/notes/note_press.h"

namespace tarn::test {

namespace {

// `printed`: the block's calls, line ends included, from the one behind the blank lines.
struct ServiceCase {
    std::string lines;  // QT_MAX_IT_NF_SRV
    int services = 0;
    std::vector<std::string> printed;
};

std::string service(const std::string& code, const std::string& name, const std::string& amount) {
    std::string line = " ";
    line += fitted(code, 12, false) + fitted(name, 75, false) + fitted(amount, 15, true);
    return line;
}

const std::string none(103, ' ');
const std::string lineEnd = "\r\n";

class Services : public testing::TestWithParam<std::string> {};

void checkServices(const FormFacts& form, const ServiceCase& block) {
    NoteDraft draft = draftOf({});
    if (!block.lines.empty()) {
        draft.form["QT_MAX_IT_NF_SRV"] = block.lines;
    }
    for (int i = 1; i <= block.services; ++i) {
        Attributes row = draft.items[0];
        row["IC_TP_CAD"] = "S";
        row["CD_PRO"] = "SERV" + std::to_string(i);
        row["DESCRICAO"] = "INSTALAÇÃO " + std::to_string(i);
        row["VL_LIQ_IT"] = std::to_string(1000 * i) + ".5";
        row["VL_ISS"] = std::to_string(10 * i) + ".25";
        row["AQ_ISS"] = std::to_string(i);
        row["DC_TXT_LEG_NF"] = "TEXTO DE SERVIÇO";
        // Between the products, the later ones first: they don't take their lines.
        draft.items.insert(draft.items.begin() + 1, row);
    }
    const Printed printed = print(form, draft);
    ASSERT_FALSE(printed.error) << printed.error->description();
    const std::vector<ExpectedCall> plain = expectedNote(form, {}).jobs.back();
    std::vector<std::string> expected;
    for (const ExpectedCall& call : plain) {
        if (call.what == "below the items") {
            expected.insert(expected.end(), block.printed.begin(), block.printed.end());
        } else {
            expected.push_back(call.bytes());
        }
    }
    const auto& writes = printed.jobs.back().writes;
    for (std::size_t i = 0; i < std::min(expected.size(), writes.size()); ++i) {
        ASSERT_EQ(readable(expected[i]), readable(writes[i])) << "call " << i + 1;
    }
    ASSERT_EQ(expected.size(), writes.size());
}

TEST_P(Services, NoServiceLines) {
    const FormFacts& form = formNamed(GetParam());
    const std::string six = " \r\n\r\n\r\n\r\n\r\n\r\n";
    for (const char* lines : {"", "0"}) {
        checkServices(form, {lines, 0, {six}});
        checkServices(form, {lines, 2, {six}});
    }
}

TEST_P(Services, FewerThanFourLines) {
    const std::string two = service("SERV2", printerBytes("INSTALAÇÃO 2"), "2000,50");
    const std::string one = service("SERV1", printerBytes("INSTALAÇÃO 1"), "1000,50");
    checkServices(formNamed(GetParam()),
                  {"3", 2, {two + lineEnd, one + lineEnd, none + lineEnd, " \r\n\r\n\r\n"}});
}

TEST_P(Services, SumsStandOnTheFourthAndSixthLine) {
    const std::string two = service("SERV2", printerBytes("INSTALAÇÃO 2"), "2000,50");
    const std::string one = service("SERV1", printerBytes("INSTALAÇÃO 1"), "1000,50");
    const std::string sumOfTax = fitted("30,50", 15, true);
    const std::string sum = fitted("3.001,00", 15, true);
    const std::string rate = fitted("1,00", 5, true);
    checkServices(formNamed(GetParam()),
                  {"6",
                   2,
                   {two + lineEnd, one + lineEnd, none + lineEnd, none + rate + sumOfTax + lineEnd,
                    none + lineEnd, none + sum + lineEnd}});
    // Without a service the boxes hold 0,00.
    const std::string zero = fitted("0,00", 15, true);
    checkServices(formNamed(GetParam()),
                  {"5",
                   0,
                   {none + lineEnd, none + lineEnd, none + lineEnd,
                    none + fitted("0,00", 5, true) + zero + lineEnd, none + lineEnd, " \r\n"}});
}

// More services than lines: dropped, but counted in the sums; more lines than six
// push the totals down.
TEST_P(Services, MoreServicesThanLines) {
    std::vector<std::string> lines;
    for (int i = 9; i > 2; --i) {
        lines.push_back(service("SERV" + std::to_string(i),
                                printerBytes("INSTALAÇÃO " + std::to_string(i)),
                                std::to_string(i) + "000,50"));
    }
    lines[3] += fitted("1,00", 5, true) + fitted("452,25", 15, true);
    lines[5] += fitted("45.004,50", 15, true);
    for (std::string& line : lines) {
        line += lineEnd;
    }
    checkServices(formNamed(GetParam()), {"7", 9, lines});
}

INSTANTIATE_TEST_SUITE_P(Forms, Services, testing::Values("2161_3341", "2161_3381"));

}  // namespace

}  // namespace tarn::test
