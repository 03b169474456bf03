#include "practice/data/documents.h"

#include <array>

#include "practice/commands/document_commands.h"
#include "practice/data/companies.h"
#include "practice/data/finance.h"
#include "runtime/text.h"

namespace tarn::practice {
namespace {

constexpr int manyDocuments = 700;  // of each of its establishments
constexpr int someDocuments = 50;   // of every other one
constexpr int parcels = 3;          // of a note
constexpr int firstNote = 101;      // the notes that the server makes begin above 1000
constexpr int firstControl = 500001;

// Kinds in the order in which they come up; bills are the most.
constexpr std::array kindTurns = {1, 1,   12,  1, 201, 1, 341, 1,  202, 12,
                                  1, 203, 342, 1, 262, 1, 361, 12, 1,   1};

// Charges in the order in which they come up: every pair of some and none.
struct Charges {
    int fineRate;       // hundredths of a percent
    int dailyInterest;  // cents
};
constexpr std::array chargeTurns = {Charges{200, 33}, Charges{200, 0}, Charges{0, 150},
                                    Charges{0, 0}, Charges{1050, 1234}};

constexpr std::array dueDays = {0, 15, 28, 30, 42, 45, 60, 90};

// Lengths of the instruction text: short, as long as one line of a slip, as two,
// three and four lines, and beyond.
constexpr std::array referenceLengths = {0, 40, 79, 80, 158, 237, 316, 380};

constexpr const char* reference =
    "PROTESTAR APÓS 5 DIAS DO VENCIMENTO. NÃO RECEBER DEPOIS DE 30 DIAS. TÍTULO SUJEITO A "
    "REGISTRO. MERCADORIA ENTREGUE CONFORME CANHOTO ASSINADO EM PODER DO CEDENTE. DÚVIDAS SOBRE "
    "ESTA COBRANÇA PELO TELEFONE (11) 5555-0100, DAS 8:00 ÀS 17:30, OU NA LOJA ONDE A COMPRA FOI "
    "FEITA. DESCONTO DE 2% ATÉ 10 DIAS ANTES DO VENCIMENTO, SOMENTE COM AUTORIZAÇÃO. OS JUROS SÃO "
    "CONTADOS POR DIA CORRIDO & O PAGAMENTO PARCIAL NÃO É ACEITO.";

template <class T, std::size_t count>
T turn(const std::array<T, count>& turns, int i) {
    return turns[static_cast<std::size_t>(i) % count];
}

Bind referenceText(int i) {
    const int length = turn(referenceLengths, i);
    return length == 0 ? Bind(std::nullopt)
                       : Bind(leftOf(reference, static_cast<std::size_t>(length)));
}

std::string zeros(int number) {
    std::string digits = std::to_string(number);
    return digits.insert(0, digits.size() < 6 ? 6 - digits.size() : 0, '0');
}

// Amounts of one real, of half a million and of cents come first.
std::int64_t amountOf(int i, Dice& dice) {
    constexpr std::array<std::int64_t, 4> firstNumbers = {100, 50'000'000, 1, 123'456};
    const std::int64_t drawn = dice.between(1'000, 900'000);
    return static_cast<std::size_t>(i) < firstNumbers.size() ? turn(firstNumbers, i) : drawn;
}

// A third of the documents are in no portfolio, receipts never do.
std::optional<int> drawnPortfolio(int kind, Dice& dice) {
    const int count = static_cast<int>(portfolioRows().size());
    const int row = dice.below(count + count / 2);
    return kind == receiptKind || row >= count ? std::nullopt : std::optional(row);
}

void insertDocument(Database& database, int company, int establishment, int i,
                    const PracticeCustomer& customer, QDate today, Dice& dice) {
    const int kind = turn(kindTurns, i);
    const bool receivable = kind == receiptKind || kind > 300 || i % 8 == 5;
    const int note = firstNote + i / parcels;
    const QDate issued = today.addDays(-dice.below(90));
    const std::int64_t amount = amountOf(i, dice);
    const Charges charges = turn(chargeTurns, i);
    const std::optional<int> row = drawnPortfolio(kind, dice);
    const PortfolioRow* portfolio =
        row ? &portfolioRows()[static_cast<std::size_t>(*row)] : nullptr;
    const bool foreign = i % 11 == 4;  // collected by another bank than the portfolio's
    database.insert(
        "document",
        "establishment_id, kind_id, number, receivable, control_number, customer_id, note_number,"
        " issued_on, due_on, amount, reference, interest_rate, fine_rate, daily_interest,"
        " expenses, portfolio_id, bank_id, agency",
        {establishment, kind, zeros(note) + '/' + std::to_string(1 + i % parcels),
         receivable ? 1 : 0,
         receivable ? Bind(firstControl + establishment * 1000 + i) : Bind(std::nullopt),
         customer.id, i % 13 == 6 ? Bind(std::nullopt) : Bind(std::to_string(note)), issued,
         issued.addDays(turn(dueDays, dice.below(8))), amount, referenceText(i), 3,
         charges.fineRate, charges.dailyInterest, i % 4 == 0 ? Bind(250) : Bind(std::nullopt),
         row ? Bind(portfolioId(companyIndex(company), *row)) : Bind(std::nullopt),
         portfolio == nullptr ? Bind(std::nullopt) : Bind(foreign ? foreignBank : portfolio->bank),
         portfolio == nullptr ? Bind(std::nullopt) : Bind(portfolio->agency)});
}

}  // namespace

void insertDocuments(Database& database, const CompanyRow& company,
                     std::span<const PracticeCustomer> customers, QDate today, Dice& dice) {
    const Branches branches = branchesOf(company.id);
    const int count = company.id == manyCompany ? manyDocuments : someDocuments;
    for (int branch = 0; branch < branches.count; ++branch) {
        for (int i = 0; i < count; ++i) {
            // The customers of the orders' table have the first documents.
            const auto place = static_cast<std::size_t>(i);
            const PracticeCustomer& customer =
                place < 24 ? customers[place % 12] : dice.oneOf(customers);
            insertDocument(database, company.id, branches.first + branch, i, customer, today, dice);
        }
    }
}

}  // namespace tarn::practice
