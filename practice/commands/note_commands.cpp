// The commands of fiscal notes: generation, fetch, search, cancellation, and
// the lists of series and reasons.
#include <array>

#include "practice/commands/amounts.h"
#include "practice/commands/command.h"
#include "practice/commands/document_commands.h"
#include "practice/commands/fields.h"
#include "practice/commands/note_document.h"
#include "practice/commands/order.h"

namespace tarn::practice {
namespace {

Refusal whyNotGenerated(const std::optional<Order>& order, const std::string& text) {
    if (!order) {
        return Refusal{"A Ordem de Faturamento nº " + text +
                       " não existe neste estabelecimento. Atualize a lista."};
    }
    return Refusal{"A Ordem de Faturamento nº " + text +
                   (order->state == "C" ? " já foi cancelada" : " já virou Nota Fiscal") +
                   ". Atualize a lista."};
}

// Notes of one establishment are made and cancelled one after the other: what the
// stock holds is looked at before it is taken. The update changes nothing and locks
// the row until the transaction ends.
void takeTurn(Database& database, std::int64_t establishment) {
    database.execute("UPDATE establishment SET item_lines = item_lines WHERE id = ?",
                     {establishment});
}

// The series' next number, taken by the update itself: the row stays locked
// until the transaction ends, so that no two notes get the same one.
std::int64_t takeNumber(Database& database, std::int64_t establishment, const std::string& series) {
    database.execute(
        "UPDATE series SET next_number = next_number + 1 WHERE establishment_id = ? AND code = ?",
        {establishment, series});
    Rows rows = database.select(
        "SELECT next_number - 1 FROM series WHERE establishment_id = ? AND code = ?",
        {establishment, series});
    if (!rows.next()) {
        throw DatabaseError("A série " + series + " não está cadastrada no estabelecimento " +
                            std::to_string(establishment) + ".");
    }
    return rows.integer(0);
}

// `sign` is -1 when the goods of a sale leave, 1 when they come back; an entry
// moves the other way.
void moveStock(Database& database, std::int64_t establishment, std::int64_t orderId, int sign) {
    database.execute(
        "UPDATE stock SET quantity = quantity + ? *"
        " (SELECT SUM(CASE o.entry WHEN 1 THEN -i.quantity ELSE i.quantity END)"
        "  FROM order_item i JOIN billing_order o ON o.id = i.order_id"
        "  WHERE i.order_id = ? AND i.product_id = stock.product_id)"
        " WHERE establishment_id = ?"
        " AND product_id IN (SELECT product_id FROM order_item WHERE order_id = ?)",
        {sign, orderId, establishment, orderId});
}

std::string parcelDocument(std::int64_t number, std::size_t position) {
    std::string digits = std::to_string(number);
    digits.insert(0, digits.size() < 6 ? 6 - digits.size() : 0, '0');
    return digits + '/' + std::to_string(position);
}

void insertNote(CommandContext& context, const NoteKey& key, const Order& order,
                const std::string& user) {
    context.database.execute(
        "INSERT INTO note (establishment_id, series_code, number, order_id, issued_on, issued_by,"
        " cancelled) VALUES (?, ?, ?, ?, ?, ?, 0)",
        {key.establishment, key.series, key.number, order.id, context.today, user});
    std::size_t position = 0;
    for (const Parcel& parcel : parcelsOf(order, context.today)) {
        ++position;
        context.database.execute(
            "INSERT INTO note_parcel (establishment_id, series_code, number, position, document,"
            " due_on, amount) VALUES (?, ?, ?, ?, ?, ?, ?)",
            {key.establishment, key.series, key.number, static_cast<std::int64_t>(position),
             parcelDocument(key.number, position), parcel.due, parcel.amount});
    }
}

// What the note's recipient owes is found by the bill search from then on, and what
// was sold by the label selection. Goods that come back leave neither.
void insertSaleOf(CommandContext& context, const NoteKey& key, const Order& order) {
    if (order.entry) {
        return;
    }
    context.database.execute(
        "INSERT INTO document (establishment_id, kind_id, number, receivable, customer_id,"
        " series_code, note_number, issued_on, due_on, amount, interest_rate, fine_rate,"
        " daily_interest)"
        " SELECT n.establishment_id, ?, p.document, 0, o.customer_id, n.series_code, ?,"
        " n.issued_on, p.due_on, p.amount, 0, 0, 0"
        " FROM note n JOIN billing_order o ON o.id = n.order_id"
        " JOIN note_parcel p ON p.establishment_id = n.establishment_id"
        " AND p.series_code = n.series_code AND p.number = n.number"
        " WHERE n.establishment_id = ? AND n.series_code = ? AND n.number = ?",
        {billKind, std::to_string(key.number), key.establishment, key.series, key.number});
    for (const OrderItem& item : order.items) {
        context.database.execute(
            "INSERT INTO sale (customer_id, product_id, sold_on, quantity, amount, order_id)"
            " VALUES (?, ?, ?, ?, ?, ?)",
            {order.customerId, item.productId, context.today, item.quantity, item.net(), order.id});
    }
}

void deleteSaleOf(CommandContext& context, const NoteKey& key, std::int64_t order) {
    context.database.execute(
        "DELETE FROM document WHERE establishment_id = ? AND series_code = ? AND note_number = ?",
        {key.establishment, key.series, std::to_string(key.number)});
    context.database.execute("DELETE FROM sale WHERE order_id = ?", {order});
}

Reply generatedAnswer(const NoteKey& key) {
    Element number{"NOTA", {}, {}};
    number.set("ID_NF_KESTO", std::to_string(key.number));
    Element series{"SERIE", {}, {}};
    series.set("CD_SER_NF", key.series);
    Element root = statusAnswer();
    root.add(std::move(number)).add(std::move(series));
    return root;
}

void checkHindrances(CommandContext& context, std::int64_t establishment, const Order& order) {
    if (order.creditBlocked) {
        throw Refusal{"Cliente com crédito bloqueado. A Nota Fiscal da Ordem de Faturamento nº " +
                      std::to_string(order.id) +
                      " não foi gerada. Procure o departamento financeiro."};
    }
    if (const std::string missing = missingStock(context.database, establishment, order.id);
        !missing.empty()) {
        throw Refusal{"Produto(s) sem saldo no estoque. A Nota Fiscal não foi gerada.\n" + missing};
    }
}

Reply generateNote(const Query& query, CommandContext& context) {
    const auto establishment = requestedEstablishment(query, context);
    const auto user = requestedUser(query, "ID_PES", establishment.company, context);
    const std::string& text = query.value("ID_ORD_FAT");
    const std::int64_t id = wholeNumber(text).value_or(-1);
    Transaction transaction(context.database);
    takeTurn(context.database, establishment.id);
    const int taken = context.database.execute(
        "UPDATE billing_order SET state = 'F'"
        " WHERE id = ? AND establishment_id = ? AND state = 'A'",
        {id, establishment.id});
    const std::optional<Order> order = loadOrder(context.database, establishment.id, id);
    if (taken != 1 || !order) {
        throw whyNotGenerated(order, text);
    }
    checkHindrances(context, establishment.id, *order);
    const NoteKey key{establishment.id, order->seriesCode,
                      takeNumber(context.database, establishment.id, order->seriesCode)};
    insertNote(context, key, *order, user);
    insertSaleOf(context, key, *order);
    moveStock(context.database, establishment.id, id, -1);
    transaction.commit();
    return generatedAnswer(key);
}

NoteKey requestedNote(const Query& query, CommandContext& context) {
    const auto establishment = requestedEstablishment(query, context);
    return NoteKey{establishment.id, query.value("CD_SER_NF"),
                   wholeNumber(query.value("ID_NF_KESTO")).value_or(-1)};
}

Refusal noSuchNote(const Query& query) {
    return Refusal{"A Nota Fiscal nº " + query.value("ID_NF_KESTO") + " da série " +
                   query.value("CD_SER_NF") + " não existe ou foi cancelada."};
}

Reply fetchNote(const Query& query, CommandContext& context) {
    const auto key = requestedNote(query, context);
    auto document = noteDocument(context.database, key);
    if (!document) {
        throw noSuchNote(query);
    }
    return std::move(*document);
}

constexpr std::array noteFields = {
    Field{"DC_TIP_NF", "o.note_kind_text"},
    Field{"IC_TIP_NF", "o.note_kind"},
    Field{"DT_EMS_NF", "n.issued_on", Format::Date},
    Field{"NM_PES_CPL", "c.name"},
};

Reply findNote(const Query& query, CommandContext& context) {
    const auto key = requestedNote(query, context);
    return readRowset(context.database, noteFields,
                      "FROM note n JOIN billing_order o ON o.id = n.order_id"
                      " JOIN customer c ON c.id = o.customer_id"
                      " WHERE n.establishment_id = ? AND n.series_code = ? AND n.number = ?"
                      " AND n.cancelled = 0",
                      {key.establishment, key.series, key.number});
}

void checkCancellation(const Query& query, std::int64_t company, CommandContext& context) {
    Rows reasons =
        context.database.select("SELECT 1 FROM cancel_reason WHERE company_id = ? AND id = ?",
                                {company, wholeNumber(query.value("id_mot_can")).value_or(-1)});
    if (!reasons.next()) {
        throw Refusal{"O motivo do cancelamento não está cadastrado. Escolha outro motivo."};
    }
    const std::string& kind = query.value("Tipo_Can");
    if (kind != "S" && kind != "C") {
        throw Refusal{
            "O tipo do cancelamento não foi informado. Escolha COM ou SEM a opção de novo "
            "faturamento da venda."};
    }
}

// With the option of billing the sale anew (Tipo_Can C) the order goes back on
// the list; without it the order ends with its note.
void releaseOrder(CommandContext& context, const NoteKey& key, std::int64_t order, bool again) {
    context.database.execute("UPDATE billing_order SET state = ? WHERE id = ?",
                             {again ? "A" : "C", order});
    moveStock(context.database, key.establishment, order, 1);
    deleteSaleOf(context, key, order);
}

Reply cancelNote(const Query& query, CommandContext& context) {
    const auto establishment = requestedEstablishment(query, context);
    const std::int64_t company = establishment.company;
    const auto user = requestedUser(query, "id_pes_usu", company, context);
    checkCancellation(query, company, context);
    const auto key = requestedNote(query, context);
    Transaction transaction(context.database);
    takeTurn(context.database, key.establishment);
    const int touched = context.database.execute(
        "UPDATE note SET cancelled = 1, cancelled_by = ?, cancel_reason_id = ?"
        " WHERE establishment_id = ? AND series_code = ? AND number = ? AND cancelled = 0",
        {user, *wholeNumber(query.value("id_mot_can")), key.establishment, key.series, key.number});
    Rows rows = context.database.select(
        "SELECT n.order_id, o.note_kind FROM note n JOIN billing_order o ON o.id = n.order_id"
        " WHERE n.establishment_id = ? AND n.series_code = ? AND n.number = ?",
        {key.establishment, key.series, key.number});
    if (touched != 1 || !rows.next() || rows.text(1) != query.value("IC_TIP_NF")) {
        throw noSuchNote(query);
    }
    releaseOrder(context, key, rows.integer(0), query.value("Tipo_Can") == "C");
    transaction.commit();
    return statusAnswer();
}

constexpr std::array seriesFields = {
    Field{"DC_SER_NF", "s.description"},
    Field{"CD_SER_NF", "s.code"},
};

Reply listSeries(const Query& query, CommandContext& context) {
    const auto company = requestedCompany(query, context);
    return readRowset(context.database, seriesFields,
                      "FROM series s JOIN establishment e ON e.id = s.establishment_id"
                      " WHERE e.company_id = ? GROUP BY s.description, s.code ORDER BY s.code",
                      {company});
}

constexpr std::array cancelReasonFields = {
    Field{"DC_MOT_CAN", "description"},
    Field{"ID_MOT_CAN", "id"},
};

Reply listCancelReasons(const Query& query, CommandContext& context) {
    const auto establishment = requestedEstablishment(query, context);
    return readRowset(context.database, cancelReasonFields,
                      "FROM cancel_reason WHERE company_id = ? ORDER BY id",
                      {establishment.company});
}

constexpr std::array noteTable = {
    Command{"SP_GERA_NF", Shape::Status, generateNote},
    Command{"sel_gera_nf", Shape::Document, fetchNote},
    Command{"SEL_NF", Shape::Rows, findNote},
    Command{"sp_can_nf", Shape::Status, cancelNote},
    Command{"SEL_SERIE_NF", Shape::Rows, listSeries},
    Command{"SEL_MOT_CAN", Shape::Rows, listCancelReasons},
};

}  // namespace

std::span<const Command> noteCommands() {
    return noteTable;
}

}  // namespace tarn::practice
