#include "tests/hostile/same_paper.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "runtime/text.h"

namespace tarn::test {

namespace {

// What a printer of these forms takes for a command stays, everything else is a letter.
std::string commandsOf(std::string bytes) {
    std::replace_if(
        bytes.begin(), bytes.end(),
        [](char c) {
            const auto byte = static_cast<unsigned char>(c);
            return byte >= ' ' && (byte < 0x7F || byte > 0xA0) && byte != 0xAD;
        },
        'x');
    return bytes;
}

PrintOperation withoutText(PrintOperation operation) {
    if (auto* text = std::get_if<DrawnText>(&operation)) {
        text->text.assign(lengthOf(text->text), 'x');
    }
    return operation;
}

}  // namespace

void expectSameRawPaper(const std::vector<RecordingSpooler::Job>& expected,
                        const std::vector<RecordingSpooler::Job>& printed) {
    ASSERT_EQ(printed.size(), expected.size());
    for (std::size_t job = 0; job < printed.size(); ++job) {
        const auto& writes = printed[job].writes;
        ASSERT_EQ(writes.size(), expected[job].writes.size());
        for (std::size_t i = 0; i < writes.size(); ++i) {
            ASSERT_EQ(commandsOf(writes[i]), commandsOf(expected[job].writes[i]))
                << "job " << job << ", write " << i;
        }
        EXPECT_EQ(printed[job].closed, expected[job].closed);
    }
}

void expectSameDrawing(const std::vector<PrintOperation>& expected,
                       const std::vector<PrintOperation>& drawn) {
    ASSERT_EQ(drawn.size(), expected.size());
    for (std::size_t i = 0; i < drawn.size(); ++i) {
        ASSERT_TRUE(withoutText(drawn[i]) == withoutText(expected[i]))
            << operationLine(drawn[i]) << "\n"
            << operationLine(expected[i]);
        if (const auto* text = std::get_if<DrawnText>(&drawn[i])) {
            ASSERT_EQ(blankControls(text->text), text->text);
        }
    }
}

}  // namespace tarn::test
