// A database of the practice server for each test that changes it.
#pragma once

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>
#include <string>
#include <vector>

#include "practice/database/database.h"
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

// The rows of a statement, values separated by "|".
inline std::vector<std::string> rowsIn(practice::Database& database, const std::string& sql,
                                       int columns) {
    practice::Rows rows = database.select(sql);
    std::vector<std::string> all;
    while (rows.next()) {
        std::string line = rows.text(0);
        for (int column = 1; column < columns; ++column) {
            line += "|" + rows.text(column);
        }
        all.push_back(line);
    }
    return all;
}

}  // namespace tarn::test
