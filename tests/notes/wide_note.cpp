#include "tests/notes/wide_note.h"

#include <gtest/gtest.h>

namespace tarn::test {
namespace {

std::string letters(char letter) {
    return std::string(200, letter);
}

void add(Attributes& attributes, const Attributes& more) {
    for (const auto& [name, value] : more) {
        attributes[name] = value;
    }
}

}  // namespace

NoteText wideNote() {
    NoteText note = fullNote();
    add(note.head, {{"COMPLEMENTO", letters('o')},
                    {"COMPLEMENTO_COB", letters('O')},
                    {"COMPLEMENTO_ETG", letters('Q')},
                    {"CEP_ETG", "70040010"},
                    {"DC_OBS", ruler(601, 300)},
                    {"ID_EMP_TARN", "3681"}});
    note.totals["VL_IMPOSTO_CREDITAR"] = "1500";
    add(note.items[0], {{"POS_NF", letters('T')},
                        {"GF_AGRUP", "12345"},
                        {"ID_CLA_FIS", "84818099"},
                        {"CFOP_ITEM", letters('I')},
                        {"DC_TXT_LEG_NF", ruler(1, 500)}});
    add(note.items[1], {{"POS_NF", "B"},
                        {"GF_AGRUP", "2"},
                        {"ID_CLA_FIS", "84811"},
                        {"CFOP_ITEM", "0"},
                        {"DC_TXT_LEG_NF", ruler(1, 500)}});
    return note;
}

NoteText wideParcels(int count) {
    NoteText note = wideNote();
    note.head["QTDE_PARC"] = std::to_string(count);
    for (std::size_t n = 1; n <= 12; ++n) {
        note.head[numbered("NR_DOC", n)] = numbered("D", n);
        note.head[numbered("VL_PRN_DOC", n)] = numbered("", n) + ".5";
        note.head[numbered("DT_VNC_DOC", n)] = numbered("VENC", n);
    }
    return note;
}

NoteText wideItems(std::size_t count) {
    NoteText note = wideNote();
    note.head.erase("DC_OBS");
    note.items.assign(count, note.items[1]);
    for (std::size_t i = 0; i < count; ++i) {
        note.items[i]["CD_PRO"] = numbered("C", i + 1);
        note.items[i]["DC_TXT_LEG_NF"] = numbered("L", i + 1);
    }
    return note;
}

NoteText wideTexts(const std::string& legal, const std::string& observation) {
    NoteText note = wideNote();
    for (Attributes& item : note.items) {
        item["DC_TXT_LEG_NF"] = legal;
    }
    note.head["DC_OBS"] = observation;
    return note;
}

std::vector<std::string> rows(const std::string& stream, std::size_t from, std::size_t to) {
    const std::vector<std::string> lines = linesOf(stream);
    EXPECT_LE(to, lines.size());
    std::vector<std::string> out;
    for (std::size_t i = from; i <= to && i <= lines.size(); ++i) {
        out.push_back(lines[i - 1]);
    }
    return out;
}

std::string untilTypeError(const notes::Form& form, const NoteText& note) {
    std::optional<RuntimeErrorCode> error;
    const std::vector<Job> jobs = print(form, note.xml(), &error);
    EXPECT_EQ(error, RuntimeErrorCode::TypeMismatch);
    EXPECT_FALSE(jobs.back().ended);
    return jobs.back().bytes();
}

}  // namespace tarn::test
