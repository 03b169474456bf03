// A database of the practice server for each test that changes it.
#pragma once

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>
#include <string>

#include "tests/support/practice_page.h"

namespace tarn::test {

// A database file of the practice server in this folder; its data is made once a run.
inline std::string newDatabase(const QTemporaryDir& folder) {
    static const QTemporaryDir common;
    static const QString made = common.filePath("pratica.db");
    if (!QFile::exists(made)) {
        const PracticePage maker(made.toStdString());
    }
    const QString file = folder.filePath("pratica.db");
    EXPECT_TRUE(QFile::copy(made, file));
    return file.toStdString();
}

}  // namespace tarn::test
