// The memory that the largest answers take, by the system's own count.
#include <gtest/gtest.h>

#include <sys/resource.h>

#include <cstdio>
#include <cstdlib>
#include <string>

#include "gateway/xml_document.h"
#include "platform/http_loader.h"

namespace tarn::test {
namespace {

long peakKiB() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
}

// Loads an answer of the largest size made of `piece`, in a process of its own, and ends it
// with status 0 unless that took more than eight times its bytes, the answer among them.
[[noreturn]] void load(std::string_view begin, std::string_view piece, std::string_view end) {
    const long before = peakKiB();
    std::string text(begin);
    text.reserve(largestAnswer);
    while (text.size() + piece.size() + end.size() <= largestAnswer) {
        text += piece;
    }
    text += end;
    XmlDocument document;
    document.loadXML(text);
    const long taken = peakKiB() - before;
    std::fprintf(stderr, "%s: %ld KiB\n", document.empty() ? "refused" : "loaded", taken);
    std::_Exit(taken <= 8 * static_cast<long>(largestAnswer / 1024) ? 0 : 1);
}

std::string row(std::size_t attributes, const std::string& value) {
    std::string text = "<x";
    for (std::size_t i = 0; i < attributes; ++i) {
        text += " a" + std::to_string(i) + "='" + value + "'";
    }
    return text + "/>";
}

TEST(AnswerMemory, IsBoundedByEightTimesTheLargestAnswer) {
#ifdef __SANITIZE_ADDRESS__
    GTEST_SKIP() << "counts the sanitizer's own memory";
#endif
    testing::FLAGS_gtest_death_test_style = "threadsafe";
    const testing::ExitedWithCode enough(0);
    EXPECT_EXIT(load("<R>", "<x/>", "</R>"), enough, "refused");
    EXPECT_EXIT(load("<R>", "t<!---->", "</R>"), enough, "refused");
    EXPECT_EXIT(load("<R>", row(1000, ""), "</R>"), enough, "refused");
    EXPECT_EXIT(load("<R>", row(1, std::string(60, 't')), "</R>"), enough, "refused");
    EXPECT_EXIT(load("<R>", row(27, "letras"), "</R>"), enough, "refused");
    EXPECT_EXIT(load("<R>", row(27, "catorze letras"), "</R>"), enough, "loaded");
    EXPECT_EXIT(load("<R>", std::string(90, 't') + "<x/>", "</R>"), enough, "loaded");
    EXPECT_EXIT(load("<R>", "tttttttt", "</R>"), enough, "refused|loaded");
    EXPECT_EXIT(load("<R a='", "tttttttt", "'/>"), enough, "refused|loaded");
    EXPECT_EXIT(load("<R a='", "tttttt&amp;", "'/>"), enough, "refused|loaded");
}

}  // namespace
}  // namespace tarn::test
