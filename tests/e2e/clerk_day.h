// A clerk's day walked once for all tests that look at what it left: the server's database
// before it, after a clerk who may not issue, and after the whole day; the paper and the
// pictures of both in a folder each.
#pragma once

#include <QDir>
#include <QString>

namespace tarn::test::clerk_day {

inline QString file(const char* name) {
    return QDir(TARN_CLERK_DAY).filePath(name);
}

inline const QString before = file("before.sqlite");
inline const QString refused = file("refused.sqlite");
inline const QString after = file("after.sqlite");
inline const QString refusalFolder = file("refusal");
inline const QString dayFolder = file("day");

}  // namespace tarn::test::clerk_day
