#include "platform/curl/redirect.h"

#include <gtest/gtest.h>

namespace tarn::test {
namespace {

TEST(Redirect, LeadsToTheServerThatWasAskedOrToItsHttpsDoor) {
    EXPECT_TRUE(mayFollow("http://s/p?a", "http://S/q?b"));
    EXPECT_TRUE(mayFollow("http://s/p?a", "http://s:80/q?b"));
    EXPECT_TRUE(mayFollow("http://s/p?a", "https://s/p?a"));
    EXPECT_FALSE(mayFollow("https://s/p?a", "http://s/p?a"));
    EXPECT_FALSE(mayFollow("http://s/p?a", "https://s:8443/p?a"));
    EXPECT_FALSE(mayFollow("http://s/p?a", "http://t/p?a"));
    EXPECT_FALSE(mayFollow("http://s/p?a", "nonsense"));
}

TEST(Moved, TheHttpsDoorOfThePageHoldsFromThenOn) {
    Moved moved;
    moved.learn("http://s/p?a=1", "https://s/p?a=1", 302);
    EXPECT_EQ(moved.addressNow("http://s/p?b=2"), "https://s/p?b=2");
    EXPECT_EQ(moved.addressNow("http://s/q?b=2"), "http://s/q?b=2");
}

TEST(Moved, AnotherPageOnlyWhereItHasMovedForGood) {
    Moved moved;
    moved.learn("http://s/p?a=1", "http://s/q?a=1", 302);
    moved.learn("http://s/p?a=1", "http://s/q?a=2", 301);
    moved.learn("http://s/p?a=1", "http://s/q", 308);
    EXPECT_EQ(moved.addressNow("http://s/p?b=2"), "http://s/p?b=2");
    moved.learn("http://s/p?a=1", "http://s/q?a=1", 308);
    EXPECT_EQ(moved.addressNow("http://s/p?b=2"), "http://s/q?b=2");
}

}  // namespace
}  // namespace tarn::test
