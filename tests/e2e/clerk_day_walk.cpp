// Walks the day that the other tests of this folder look at; ctest runs it before them.
#include "tests/e2e/clerk_day.h"

#include <gtest/gtest.h>

#include <QFile>

#include "tests/e2e/programs.h"

namespace tarn::test {
namespace {

// A server over the day's database, a walk against it, and the database kept.
void walk(const QString& folder, const QStringList& more, const QString& keptAs) {
    Server server;
    ASSERT_NO_FATAL_FAILURE(server.start(clerk_day::file("pratica.sqlite")));
    if (!folder.isEmpty()) {
        ASSERT_TRUE(QDir().mkpath(folder));
        EXPECT_EQ(
            run(TARNROTEIRO, QStringList{"--servidor", server.address(), "--saida", folder} + more),
            0);
    }
    server.stop();
    ASSERT_TRUE(QFile::copy(clerk_day::file("pratica.sqlite"), keptAs));
}

TEST(ClerkDayWalk, ARefusedClerkThenTheWholeDay) {
    QDir folder(TARN_CLERK_DAY);
    ASSERT_TRUE(folder.removeRecursively());
    ASSERT_TRUE(folder.mkpath("."));
    ASSERT_NO_FATAL_FAILURE(walk({}, {}, clerk_day::before));
    ASSERT_NO_FATAL_FAILURE(walk(clerk_day::refusalFolder,
                                 {"--roteiro", "recusa", "--usuario", "otavio"},
                                 clerk_day::refused));
    ASSERT_NO_FATAL_FAILURE(walk(clerk_day::dayFolder, {}, clerk_day::after));
}

}  // namespace
}  // namespace tarn::test
