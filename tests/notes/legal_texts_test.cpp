// The legal texts of a note's items, each of them once.
#include "notes/legal_texts.h"

#include <gtest/gtest.h>

#include <deque>

namespace tarn::test {
namespace {

using notes::LegalTexts;

TEST(LegalTexts, NoneIsTheEmptyText) {
    EXPECT_EQ(LegalTexts().joined(), "");
}

TEST(LegalTexts, StandInTheOrderOfTheirFirstAppearance) {
    LegalTexts texts;
    for (const char* text : {"ST", "ISENTO", "ISENTO", "ST", "ART. 9", "ISENTO"}) {
        texts.add(text);
    }
    EXPECT_EQ(texts.joined(), "ST \\\\ ISENTO \\\\ ART. 9");
}

TEST(LegalTexts, DifferByEveryCharacter) {
    LegalTexts texts;
    for (const char* text : {"Isento", "ISENTO", "ISENTO ", " ISENTO"}) {
        texts.add(text);
    }
    EXPECT_EQ(texts.joined(), "Isento \\\\ ISENTO \\\\ ISENTO  \\\\  ISENTO");
}

TEST(LegalTexts, AnEmptyTextIsKeptButHasNoSeparatorBeforeTheFirst) {
    LegalTexts texts;
    texts.add("");
    texts.add("ST");
    EXPECT_EQ(texts.joined(), "ST");
    texts.add("");
    EXPECT_EQ(texts.joined(), "ST");
    LegalTexts after;
    after.add("ST");
    after.add("");
    after.add("ISENTO");
    EXPECT_EQ(after.joined(), "ST \\\\  \\\\ ISENTO");
}

TEST(LegalTexts, OfVeryManyEachStandsOnceInOrder) {
    std::deque<std::string> kept;  // of texts that stay where they are
    LegalTexts texts;
    std::string expected;
    for (int round = 0; round < 2; ++round) {
        for (int number = 0; number < 1000; ++number) {
            texts.add(kept.emplace_back("ART. " + std::to_string(number)));
            if (round == 0) {
                expected += (number > 0 ? " \\\\ " : "") + kept.back();
            }
        }
    }
    EXPECT_EQ(texts.joined(), expected);
}

TEST(JoinLegal, SeparatesFromWhatIsThereAlready) {
    std::string joined;
    notes::joinLegal(joined, "");
    EXPECT_EQ(joined, "");
    notes::joinLegal(joined, "A");
    EXPECT_EQ(joined, "A");
    notes::joinLegal(joined, "B");
    EXPECT_EQ(joined, "A \\\\ B");
    notes::joinLegal(joined, "");
    EXPECT_EQ(joined, "A \\\\ B \\\\ ");
}

}  // namespace
}  // namespace tarn::test
