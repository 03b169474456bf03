// A clerk's day with the programs themselves: what it leaves in the server's database and
// on paper, row by row and job by job.
#include <gmock/gmock.h>

#include <QDir>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QTemporaryDir>
#include <algorithm>
#include <map>
#include <string>
#include <vector>

#include "tests/e2e/clerk_day.h"
#include "tests/e2e/programs.h"
#include "tests/support/texts.h"

namespace tarn::test {
namespace {
using testing::HasSubstr;
using testing::StartsWith;

using Rows = std::vector<std::string>;  // sorted; values separated by "|"
using Tables = std::map<std::string, Rows>;

// Reads a database file that nobody writes any more.
class Ledger {
public:
    explicit Ledger(const QString& file)
        : database_(QSqlDatabase::addDatabase("QSQLITE", "ledger")) {
        database_.setDatabaseName(file);
        database_.setConnectOptions("QSQLITE_OPEN_READONLY");
        EXPECT_TRUE(database_.open()) << database_.lastError().text().toStdString();
    }
    ~Ledger() {
        database_.close();
        database_ = {};
        QSqlDatabase::removeDatabase("ledger");
    }
    Ledger(const Ledger&) = delete;
    Ledger& operator=(const Ledger&) = delete;

    Rows rows(const QString& sql) const {
        QSqlQuery query(database_);
        EXPECT_TRUE(query.exec(sql)) << query.lastError().text().toStdString();
        Rows all;
        while (query.next()) {
            QStringList values;
            for (int i = 0; i < query.record().count(); ++i) {
                values += query.value(i).toString();
            }
            all.push_back(values.join('|').toStdString());
        }
        std::ranges::sort(all);
        return all;
    }
    Tables everything() const {
        Tables all;
        for (const QString& table : database_.tables()) {
            all[table.toStdString()] = rows("SELECT * FROM " + table);
        }
        return all;
    }

private:
    QSqlDatabase database_;
};

Rows without(const Rows& rows, const Rows& others) {
    Rows left;
    std::ranges::set_difference(rows, others, std::back_inserter(left));
    return left;
}

std::string paperOf(const QString& folder, const char* name) {
    return contentOf(QDir(folder).filePath(name));
}
std::string paper(const char* name) {
    return paperOf(clerk_day::dayFolder, name);
}
// The names of the tables that differ.
std::vector<std::string> changed(const Tables& before, const Tables& now) {
    std::vector<std::string> names;
    for (const auto& [name, rows] : now) {
        if (rows != before.at(name)) {
            names.push_back(name);
        }
    }
    return names;
}
Tables contentsOf(const QString& database) {
    Tables tables = Ledger(database).everything();
    EXPECT_FALSE(tables.empty());
    return tables;
}

TEST(ClerkDay, TheDatabaseHoldsWhatTheDayDidAndNothingElse) {
    const std::string number = paper("job-003.prn").substr(124, 6);
    const std::string trimmed = number.substr(number.find_first_not_of(" 0"));
    const Tables before = contentsOf(clerk_day::before);
    const Ledger ledger(clerk_day::after);
    const Tables now = ledger.everything();
    EXPECT_EQ(changed(before, now), (Texts{"billing_order", "cheque", "document", "label", "note",
                                           "note_parcel", "series"}));

    // The order that was corrected, and the one whose note was cancelled for good.
    EXPECT_EQ(without(now.at("billing_order"), before.at("billing_order")).size(), 2U);
    EXPECT_EQ(ledger.rows("SELECT packages, gross_weight, net_weight, state FROM billing_order"
                          " WHERE id = 45001"),
              (Texts{"12000|350500|325400|A"}));
    EXPECT_EQ(ledger.rows("SELECT state FROM billing_order WHERE id = 45006"), (Texts{"C"}));

    // One note, cancelled by whom issued it; its number won't be given again.
    EXPECT_EQ(now.at("note").size(), before.at("note").size() + 1);
    EXPECT_EQ(ledger.rows("SELECT series_code, order_id, issued_by, cancelled, cancelled_by,"
                          " cancel_reason_id FROM note WHERE number = " +
                          QString::fromStdString(trimmed)),
              (Texts{"1|45006|101|1|101|2"}));
    EXPECT_EQ(without(now.at("series"), before.at("series")).size(), 1U);
    EXPECT_EQ(without(now.at("note_parcel"), before.at("note_parcel")).size(), 1U);

    // Two slips with the numbers of their paper.
    EXPECT_EQ(without(now.at("document"), before.at("document")).size(), 2U);
    EXPECT_EQ(ledger.rows("SELECT slip_number, entered_by FROM document"
                          " WHERE slip_number IS NOT NULL"),
              (Texts{"1234|101", "1235|101"}));
    EXPECT_THAT(paper("job-009.prn"), HasSubstr("NOSSO NUMERO: 0000000001234/"));
    EXPECT_THAT(paper("job-011.prn"), HasSubstr("NOSSO NUMERO: 0000000001235/"));

    EXPECT_EQ(ledger.rows("SELECT bank_id, agency, account, number, series, amount, payee,"
                          " deposit_on, purpose, issued_by FROM cheque"),
              (Texts{"1016|1123|00912-0|1001|A1|123456|PAPELARIA TRÊS PONTES LTDA|"
                     "2012-09-05|MATERIAL DE ESCRITÓRIO|101"}));

    // Three labels went, the rest of the reason stays.
    EXPECT_THAT(without(now.at("label"), before.at("label")), testing::IsEmpty());
    EXPECT_EQ(without(before.at("label"), now.at("label")).size(), 3U);
    EXPECT_EQ(ledger.rows("SELECT COUNT(*), MIN(sequence) FROM label WHERE company_id = 1361"
                          " AND reason_id = 1"),
              (Texts{"597|4"}));
}

TEST(ClerkDay, EveryPaperIsListedByItsDocument) {
    EXPECT_EQ(paper("papel.txt"),
              "ordem job-001.prn\n"
              "nota job-002.prn\nnota job-003.prn\n"
              "reimpressao job-004.prn\nreimpressao job-005.prn\n"
              "duplicata job-006.pdf\nrecibo job-007.pdf\n"
              "boleto job-008.prn\nboleto job-009.prn\nboleto job-010.prn\nboleto job-011.prn\n"
              "cheque job-012.prn\n"
              "etiquetas job-013.pdf\n"
              "etiquetas-matriciais job-014.prn\netiquetas-matriciais job-015.prn\n");
}

TEST(ClerkDay, EveryPaperOfTheDayIsThere) {
    const QStringList jobs =
        QDir(clerk_day::dayFolder).entryList({"job-*.prn", "job-*.pdf"}, QDir::Files, QDir::Name);
    EXPECT_EQ(jobs.join(' ').toStdString(),
              "job-001.prn job-002.prn job-003.prn job-004.prn job-005.prn "  // sheet, note twice
              "job-006.pdf job-007.pdf "                                      // bills, receipt
              "job-008.prn job-009.prn job-010.prn job-011.prn "              // two slips
              "job-012.prn "                                                  // cheque
              "job-013.pdf job-014.prn job-015.prn");                         // labels
    for (const char* drawn : {"job-006.pdf", "job-007.pdf", "job-013.pdf"}) {
        EXPECT_THAT(paper(drawn), StartsWith("%PDF-")) << drawn;
    }
    EXPECT_EQ(paper("job-008.prn"), " \x0F\x1BM");
    EXPECT_EQ(paper("job-010.prn"), " \x0F\x1BM");
    EXPECT_EQ(paper("job-014.prn"), " \x0F\x1BM");
    EXPECT_THAT(paper("job-012.prn"), StartsWith(" \x0F\x1B\x1BG"));
    EXPECT_THAT(paper("job-012.prn"), HasSubstr("PAPELARIA TR\xCAS PONTES LTDA"));
    EXPECT_THAT(paper("job-015.prn"), HasSubstr("PANIFICADORA E CONFEITARIA"));
}

TEST(ClerkDay, EveryRawJobTellsItsForm) {
    std::string told;
    for (const QString& file :
         QDir(clerk_day::dayFolder).entryList({"job-*.kind"}, QDir::Files, QDir::Name)) {
        told += file.toStdString() + ": " + paper(file.toUtf8().constData());
    }
    // The form has 38 columns for "VENDA DE MERCADORIA ADQUIRIDA DE TERCEIROS" and 18 for
    // "(11) 3222-4411 / 3222-4412".
    const std::string note =
        "documento nota\nformulario ImprimeNF_1361\nitens 13\ncortes 2\n"
        "corta 7 2 NatOper: não cabe; perde \"IROS\"\n"
        "corta 14 59 FONEFAX: não cabe; perde \"222-4412\"\n";
    const std::string slip = "documento boleto\nformulario Boleto_1016_57\n";
    const std::string labels = "documento etiquetas\nformulario Etiquetas\n";
    EXPECT_EQ(told,
              "job-001.kind: documento ordem\nformulario OrdemFaturamento_1361\n"
              "job-002.kind: " +
                  note + "job-003.kind: " + note + "job-004.kind: " + note +
                  "job-005.kind: " + note + "job-008.kind: " + slip + "job-009.kind: " + slip +
                  "job-010.kind: " + slip + "job-011.kind: " + slip +
                  "job-012.kind: documento cheque\nformulario Cheque\n" +
                  "job-014.kind: " + labels + "job-015.kind: " + labels);
}

TEST(ClerkDay, ARefusedRightLeavesNothing) {
    EXPECT_EQ(changed(contentsOf(clerk_day::before), contentsOf(clerk_day::refused)), Texts{});
    EXPECT_TRUE(QDir(clerk_day::refusalFolder).exists());
    EXPECT_THAT(QDir(clerk_day::refusalFolder).entryList({"job-*"}), testing::IsEmpty());
}

TEST(ClerkDay, TheBulkSelectionPrintsItsLabelsAndChangesNothing) {
    const QTemporaryDir folder;
    const QString database = folder.filePath("empresa.sqlite");
    ASSERT_TRUE(QFile::copy(clerk_day::before, database));
    Server server;
    ASSERT_NO_FATAL_FAILURE(server.start(database));
    ASSERT_EQ(run(TARNROTEIRO, {"--servidor", server.address(), "--saida", folder.path(),
                                "--roteiro", "selecao"}),
              0);
    server.stop();
    EXPECT_EQ(changed(contentsOf(clerk_day::before), contentsOf(database)), Texts{});
    EXPECT_THAT(paperOf(folder.path(), "job-001.pdf"), StartsWith("%PDF-"));
}

}  // namespace
}  // namespace tarn::test
