#include <gtest/gtest.h>

#include <chrono>
#include <future>
#include <vector>

#include "tests/platform/curl_loader_fixture.h"
#include "tests/support/own_environment.h"

namespace tarn::test {
namespace {

TEST_F(CurlLoaderTest, OneRequestOneBody) {
    server_.on("comando=x", LoopbackReply::xml("<R/>"));
    const HttpAnswer answer = get("comando=x");
    EXPECT_TRUE(answer.loaded);
    EXPECT_EQ(answer.body, "<R/>");
    EXPECT_EQ(server_.requestLines(),
              std::vector<std::string>{"GET /Kestomain/TarnEmissao.asp?comando=x HTTP/1.1"});
    EXPECT_EQ(server_.heads()[0].find("Cookie"), std::string::npos);
}

TEST_F(CurlLoaderTest, WhateverIsTypedOneLineLeavesWithTheWholeText) {
    server_.on("", LoopbackReply::xml("<R/>"));
    const std::string typed =
        "DC=a b\r\nGET /x HTTP/1.1\r\n\r\n#c\t\"d\" 'e' <f> ção É € |x| \\y %41 &Z=1+1";
    EXPECT_TRUE(get(typed).loaded);
    EXPECT_EQ(server_.queries(),
              std::vector<std::string>{
                  "DC=a%20b%0D%0AGET%20/x%20HTTP/1.1%0D%0A%0D%0A%23c%09%22d%22%20'e'%20%3Cf%3E%20"
                  "%E7%E3o%20%C9%20%80%20%7Cx%7C%20%5Cy%20%41%20&Z=1+1"});
}

TEST_F(CurlLoaderTest, BytesAsTheyCame) {
    const std::string body("\xE7\x00\xFF\r\n", 5);
    server_.on("", LoopbackReply::xml(body));
    EXPECT_EQ(get("x").body, body);
}

TEST_F(CurlLoaderTest, AnEmptyBodyIsAnAnswer) {
    server_.on("", LoopbackReply::xml(""));
    EXPECT_TRUE(get("x").loaded);
}

TEST_F(CurlLoaderTest, CompressedAnswersAreUnpacked) {
    server_.on("", LoopbackReply::gzip("<R a='1'/>"));
    const HttpAnswer answer = get("x");
    EXPECT_TRUE(answer.loaded);
    EXPECT_EQ(answer.body, "<R a='1'/>");
    EXPECT_NE(server_.heads()[0].find("gzip"), std::string::npos);
}

TEST_F(CurlLoaderTest, NobodyListens) {
    server_.closePort();
    expectFailure("x");
}

TEST_F(CurlLoaderTest, HungUpBeforeAnAnswerAndNotAskedAgain) {
    server_.on("", LoopbackReply::hangUp());
    expectFailure("comando=SP_GERA_NF");
    expectFailure("comando=SP_GERA_NF");
    EXPECT_EQ(server_.requestLines().size(), 2U);
}

TEST_F(CurlLoaderTest, AKeptConnectionIsNotUsedForTheNextRequest) {
    server_.on("first", LoopbackReply::xml("<R/>")).on("second", LoopbackReply::hangUp());
    EXPECT_TRUE(get("first").loaded);
    expectFailure("second");
    EXPECT_EQ(server_.queries(), (std::vector<std::string>{"first", "second"}));
}

TEST_F(CurlLoaderTest, ABodyCutInTheMiddle) {
    server_.on("", LoopbackReply::cut("<R/>"));
    expectFailure("x");
    EXPECT_EQ(server_.requestLines().size(), 1U);
}

TEST_F(CurlLoaderTest, HttpErrorsAreFailures) {
    server_.on("a404", LoopbackReply::error(404, "<R/>"))
        .on("a500", LoopbackReply::error(500, "<R/>"))
        .on("a401", LoopbackReply::error(401, "<R/>"))
        .on("a304", LoopbackReply::error(304, ""))
        .on("a206", LoopbackReply::error(206, "<R/>"))
        .on("a203", LoopbackReply::error(203, "<R/>"));
    expectFailure("a404");
    expectFailure("a500");
    expectFailure("a401");
    expectFailure("a304");
    expectFailure("a206");
    expectFailure("a203");
}

TEST_F(CurlLoaderTest, RedirectsWithinTheServer) {
    server_.on("first", LoopbackReply::redirect("/outra?second", 301))
        .on("second", LoopbackReply::redirect(host() + "/outra?third", 307))
        .on("third", LoopbackReply::xml("<R/>"));
    const HttpAnswer answer = get("first");
    EXPECT_TRUE(answer.loaded);
    EXPECT_EQ(answer.body, "<R/>");
    EXPECT_EQ(server_.requestLines().size(), 3U);
}

TEST_F(CurlLoaderTest, RedirectsElsewhereAreFailures) {
    LoopbackServer other;
    other.on("", LoopbackReply::xml("<R/>"));
    const std::string otherPort = std::to_string(other.port());
    server_.on("port", LoopbackReply::redirect("http://127.0.0.1:" + otherPort + "/?x"))
        .on("host",
            LoopbackReply::redirect("http://localhost:" + std::to_string(server_.port()) + "/?x"))
        .on("user", LoopbackReply::redirect("http://127.0.0.1@localhost:" + otherPort + "/?x"))
        .on("file", LoopbackReply::redirect("file:///etc/passwd"))
        .on("ftp", LoopbackReply::redirect("ftp://127.0.0.1/x"))
        .on("bad", LoopbackReply::redirect("http://[x"));
    for (const char* query : {"port", "host", "user", "file", "ftp", "bad"}) {
        expectFailure(query);
    }
    EXPECT_EQ(other.requestLines().size(), 0U);
    EXPECT_EQ(server_.requestLines().size(), 6U);
}

TEST_F(CurlLoaderTest, AWriteIsSentOnNowhere) {
    server_.on("WRITE=1", LoopbackReply::redirect("/outra?WRITE=1", 307))
        .on("outra", LoopbackReply::xml("<R/>"));
    expectFailure("WRITE=1");
    EXPECT_EQ(server_.queries(), std::vector<std::string>{"WRITE=1"});
}

// Learned by a read, it holds for the writes behind it.
TEST_F(CurlLoaderTest, APageThatHasMovedForGoodIsAskedAtItsNewAddress) {
    server_.on("asp?READ=1", LoopbackReply::redirect("/nova?READ=1", 301))
        .on("asp?READ=2", LoopbackReply::redirect("/nova?READ=2", 302))
        .on("nova", LoopbackReply::xml("<R/>"));
    EXPECT_TRUE(get("READ=2").loaded);
    expectFailure("WRITE=3");
    EXPECT_TRUE(get("READ=1").loaded);
    EXPECT_TRUE(get("WRITE=4").loaded);
    EXPECT_EQ(server_.requestLines().back(), "GET /nova?WRITE=4 HTTP/1.1");
}

TEST_F(CurlLoaderTest, EndlessRedirectsEnd) {
    server_.on("", LoopbackReply::redirect("/again?x"));
    expectFailure("x");
    EXPECT_EQ(server_.requestLines().size(), 21U);
}

TEST_F(CurlLoaderTest, OtherSchemesAreRefused) {
    EXPECT_FALSE(loader_.get("file:///etc/passwd").loaded);
    EXPECT_FALSE(loader_.get("ftp://127.0.0.1/x").loaded);
    EXPECT_FALSE(loader_.get("").loaded);
    EXPECT_FALSE(loader_.get("http://").loaded);
}

TEST_F(CurlLoaderTest, GoesThroughTheEnvironmentsProxy) {
    server_.on("", LoopbackReply::xml("<R/>"));
    setVariable("http_proxy", host().c_str());
    EXPECT_TRUE(loader_.get("http://servidor.invalid/p?x").loaded);
    removeVariable("http_proxy");
    EXPECT_EQ(server_.requestLines(),
              std::vector<std::string>{"GET http://servidor.invalid/p?x HTTP/1.1"});
}

TEST_F(CurlLoaderTest, JustUnderTheLimitPasses) {
    server_.on("whole", LoopbackReply::huge("", largestAnswer))
        .on("more", LoopbackReply::huge("x", largestAnswer));
    EXPECT_EQ(get("whole").body.size(), largestAnswer);
    expectFailure("more");
}

TEST_F(CurlLoaderTest, AnEndlessHeadIsAFailure) {
    LoopbackReply reply = LoopbackReply::xml("<R/>");
    for (int i = 0; i < 40; ++i) {
        reply.headers.push_back("X-" + std::to_string(i) + ": " +
                                std::string(std::size_t{32} * 1024, 'x'));
    }
    server_.on("", reply);
    expectFailure("x");
}

TEST_F(CurlLoaderTest, WaitsForASlowAnswer) {
    LoopbackReply slow = LoopbackReply::xml("<R/>");
    slow.waits = true;
    server_.on("", slow);
    auto answer = std::async(std::launch::async, [this] { return get("x"); });
    server_.waitForRequests(1);
    EXPECT_EQ(answer.wait_for(std::chrono::seconds(0)), std::future_status::timeout);
    server_.release();
    EXPECT_TRUE(answer.get().loaded);
}

TEST_F(CurlLoaderTest, AServerThatTakesTheRequestAndNeverAnswersIsGivenUp) {
    LoopbackReply mute = LoopbackReply::xml("<R/>");
    mute.waits = true;
    server_.on("", mute);
    CurlLoader hasty({.silence = std::chrono::seconds(1)});
    const Stopwatch time;
    EXPECT_FALSE(hasty.get(server_.baseUrl() + "x").loaded);
    EXPECT_GE(time.elapsed(), 1000);
    EXPECT_LT(time.elapsed(), muchLater);
    EXPECT_EQ(server_.requestLines().size(), 1U);
}

TEST_F(CurlLoaderTest, AServerThatFallsSilentWithinTheAnswerIsGivenUp) {
    LoopbackReply half = LoopbackReply::cut("<R>");
    half.fallsSilent = true;
    server_.on("", half);
    CurlLoader hasty({.silence = std::chrono::seconds(1)});
    const Stopwatch time;
    EXPECT_FALSE(hasty.get(server_.baseUrl() + "x").loaded);
    EXPECT_GE(time.elapsed(), 1000);
    EXPECT_LT(time.elapsed(), muchLater);
}

LoopbackReply dripping(std::size_t bytes, int milliseconds) {
    LoopbackReply reply = LoopbackReply::huge("<R/>", bytes);
    reply.drip = std::chrono::milliseconds(milliseconds);
    return reply;
}

TEST_F(CurlLoaderTest, ADripIsNoSilence) {
    server_.on("", dripping(10, 200));
    CurlLoader hasty({.silence = std::chrono::seconds(1)});
    const Stopwatch time;
    EXPECT_EQ(hasty.get(server_.baseUrl() + "x").body, "<R/>          ");
    EXPECT_GE(time.elapsed(), 2000);
}

TEST_F(CurlLoaderTest, ClosingEndsADrip) {
    server_.on("", dripping(1'000'000, 20));
    auto answer = std::async(std::launch::async, [this] { return get("x"); });
    server_.waitForRequests(1);
    const Stopwatch time;
    loader_.close();
    EXPECT_FALSE(answer.get().loaded);
    EXPECT_LT(time.elapsed(), muchLater);
}

TEST_F(CurlLoaderTest, WaitsHalfAMinuteForAConnectionAndTwoForAByte) {
    EXPECT_EQ(TimeLimits().connect, std::chrono::seconds(30));
    EXPECT_EQ(TimeLimits().silence, std::chrono::minutes(2));
}

TEST_F(CurlLoaderTest, ClosingGivesTheRequestUnderWayUpAndAllLaterOnes) {
    LoopbackReply mute = LoopbackReply::xml("<R/>");
    mute.waits = true;
    server_.on("mute", mute).on("other", LoopbackReply::xml("<R/>"));
    auto answer = std::async(std::launch::async, [this] { return get("mute"); });
    server_.waitForRequests(1);
    const Stopwatch time;
    loader_.close();
    EXPECT_FALSE(answer.get().loaded);
    EXPECT_LT(time.elapsed(), muchLater);
    expectFailure("other");
    EXPECT_EQ(server_.requestLines().size(), 1U);
}

TEST_F(CurlLoaderTest, NothingOfTheAddressIsPrinted) {
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    server_.on("", LoopbackReply::error(500, "x"));
    expectFailure("SENHA=segredo");
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

}  // namespace
}  // namespace tarn::test
