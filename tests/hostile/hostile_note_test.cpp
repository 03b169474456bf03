// Every field of a note document, on every form, with texts that nobody means well with.
#include <gtest/gtest.h>

#include "tests/hostile/hostile_texts.h"
#include "tests/hostile/same_paper.h"
#include "tests/notes/note_press.h"

namespace tarn::test {

namespace {

// One field of the draft at a time.
template <typename Try>
std::size_t eachField(NoteDraft& draft, const Try& attempt) {
    std::size_t count = 0;
    for (Attributes* row : {&draft.head, &draft.totals, &draft.form, &draft.items.front()}) {
        for (auto& [name, value] : *row) {
            const std::string before = value;
            attempt(name, value);
            value = before;
            ++count;
        }
    }
    return count;
}

class HostileNote : public testing::TestWithParam<FormFacts> {};

TEST_P(HostileNote, NoneOfThe119FieldsMovesALineOrCommandsThePrinter) {
    NoteDraft draft = draftOf(NoteCase{});
    std::size_t printedWhole = 0;
    const std::size_t fields = eachField(draft, [&](const std::string& name, std::string& value) {
        for (const HostileText& hostile : hostileTexts()) {
            SCOPED_TRACE(name + " " + hostile.name);
            value = hostile.letters;
            const Printed plain = print(GetParam(), draft);
            value = hostile.text;
            const Printed printed = print(GetParam(), draft);
            ASSERT_EQ(printed.error.has_value(), plain.error.has_value());
            if (plain.error) {
                EXPECT_EQ(printed.error->number(), plain.error->number());
            }
            expectSameRawPaper(plain.jobs, printed.jobs);
            printedWhole += plain.error ? 0 : 1;
        }
    });
    EXPECT_EQ(fields, 119U);
    EXPECT_GT(printedWhole, fields);  // most fields are texts, in four kinds each
}

INSTANTIATE_TEST_SUITE_P(Forms, HostileNote, testing::ValuesIn(allForms()),
                         [](const auto& form) { return form.param.name; });

}  // namespace

}  // namespace tarn::test
