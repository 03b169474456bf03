// Small forms of one block each, and notes for them.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "notes/form_check.h"
#include "notes/form_rows.h"
#include "tests/notes/note_fixture.h"

namespace tarn::test {

inline constexpr notes::Items plainItems{
    .line = notes::row(1, notes::left(notes::Source::CD_PRO, 2, 5)), .lineEnds = 1};

// Prints a form of the steps in one job; the note is the sample.
template <std::size_t count>
std::string streamOf(const notes::Step (&steps)[count], const NoteDraft& note,
                     notes::Joined observation = notes::Joined::Labelled) {
    const notes::Form form{.length = 0, .observation = observation, .steps = steps};
    const std::vector<Job> jobs = print(form, note.xml());
    EXPECT_EQ(jobs.size(), 1U);
    EXPECT_TRUE(jobs.back().ended);
    return jobs.back().bytes();
}

// The sample with an item of each of these kinds (IC_TP_CAD): "C1", "C2" and so on, each
// with the legal text "L1", "L2" and so on.
inline NoteDraft withKinds(const std::vector<std::string>& kinds) {
    NoteDraft note = sampleNote();
    note.items.clear();
    for (std::size_t i = 0; i < kinds.size(); ++i) {
        note.items.push_back({{"CD_PRO", numbered("C", i + 1)},
                              {"IC_TP_CAD", kinds[i]},
                              {"QTDE", "2"},
                              {"VALOR_UN", "3.5"},
                              {"DC_TXT_LEG_NF", numbered("L", i + 1)}});
    }
    return note;
}

}  // namespace tarn::test
