#include "tests/practice/busy_desk.h"

#include "gateway/commands.h"
#include "platform/curl/curl_loader.h"
#include "tests/practice/practice_desk.h"

namespace tarn::practice::test {

BusyDesk::BusyDesk(std::string baseUrl, int place, DoneAtOnce& done)
    : loader_(std::make_unique<CurlLoader>()),
      baseUrl_(std::move(baseUrl)),
      place_(place),
      done_(done),
      random_(static_cast<std::uint64_t>(place)) {
    clerk_.NCOMPANYCODE = 1361;
    clerk_.ID_ETB_TARN = 1363;
    clerk_.UserCode = "103";
    clerk_.SERVERNAME = "DADOS1361";
}

void BusyDesk::workOnce() {
    ++turns_;
    switch (below(5)) {
        case 0:
        case 1:
            return makeNote();
        case 2:
            return maintainOrder();
        case 3:
            return recordCheque();
        default:
            return numberSlip();
    }
}

XmlDocument BusyDesk::ask(const std::string& query) {
    XmlDocument document;
    if (cutOff_) {
        return document;
    }
    const HttpAnswer answer = loader_->get(baseUrl_ + query);
    const bool loaded = answer.loaded && document.loadXML(answer.body);
    const std::lock_guard lock(done_.mutex);
    ++done_.requests;
    if (!loaded) {
        cutOff_ = true;
        done_.failures.push_back(query);
    }
    return document;
}

bool BusyDesk::accepted(const std::string& query) {
    const XmlDocument document = ask(query);
    const bool ok = !document.empty() && statusOf(document) == "OK";
    if (!ok) {
        const std::lock_guard lock(done_.mutex);
        ++done_.refusals;
    }
    return ok;
}

bool BusyDesk::isOwn(const std::string& number) const {
    return std::stoll(number) % busyDesks == place_;
}

std::size_t BusyDesk::below(std::size_t count) {
    return static_cast<std::size_t>(random_()) % count;
}

std::vector<std::string> BusyDesk::column(const std::string& query, const char* name) {
    const XmlDocument document = ask(query);
    std::vector<std::string> values;
    if (!document.empty()) {
        for (const XmlNode& row : rowsOf(document)) {
            values.push_back(field(row, name));
        }
    }
    return values;
}

// Any order of the list, so that several desks try the same one.
void BusyDesk::makeNote() {
    const std::vector<std::string> orders = column(commands::sel_ordem_fatu(clerk_), "ID_ORD_FAT");
    if (orders.empty()) {
        return;
    }
    const std::string& order = orders[below(std::min<std::size_t>(orders.size(), busyDesks))];
    const XmlDocument made = ask(commands::SP_GERA_NF(clerk_, order));
    if (made.empty() || statusOf(made) != "OK") {
        const std::lock_guard lock(done_.mutex);
        ++done_.refusals;
        return;
    }
    const XmlNode root = made.documentElement();
    const std::string note(root.child(0).attributes().item(0).text());
    const std::string series(root.child(1).attributes().item(0).text());
    {
        const std::lock_guard lock(done_.mutex);
        done_.notes.insert(series + '/' + note);
    }
    if (series == busySeries) {
        keepOrCancel(note);
    }
}

// Three of four are cancelled so that their orders can be billed again.
void BusyDesk::keepOrCancel(const std::string& note) {
    if (!accepted(commands::sel_gera_nf(clerk_, note, busySeries)) || below(4) == 0) {
        return;
    }
    if (accepted(commands::sp_can_nf(
            clerk_, {.noteKind = "S", .note = note, .series = busySeries, .reason = 1}))) {
        const std::lock_guard lock(done_.mutex);
        ++done_.cancelled;
    }
}

void BusyDesk::maintainOrder() {
    for (const std::string& order : column(commands::sel_ordem_fatu(clerk_), "ID_ORD_FAT")) {
        if (!isOwn(order) || below(4) != 0) {
            continue;
        }
        const std::string text =
            "mesa " + std::to_string(place_) + " vez " + std::to_string(turns_) + " 100% & mais";
        if (accepted(commands::MANUTENCAO_OFT(clerk_, {.order = order,
                                                       .observation = text,
                                                       .quantity = "1,000",
                                                       .grossWeight = "2,000",
                                                       .netWeight = "1,500"}))) {
            const std::lock_guard lock(done_.mutex);
            done_.observations[order] = text;
        }
        return;
    }
}

void BusyDesk::recordCheque() {
    const std::string number = std::to_string(done_.nextCheque++ / 2);
    if (accepted(commands::adiciona_controle_cheque_emitido(
            clerk_, {.bank = 1084,
                     .agency = "0384",
                     .account = "1300221-7",
                     .number = number,
                     .series = "AA",
                     .value = std::to_string(place_ + 1) + ",00",
                     .depositDate = "05/09/2012"}))) {
        const std::lock_guard lock(done_.mutex);
        done_.cheques.insert(number);
    }
}

void BusyDesk::numberSlip() {
    const XmlDocument list = ask(commands::sel_boleto(
        clerk_, {.branch = 1363, .dueTo = "31/12/2012", .issuedFrom = "01/01/2012"}, 101, true));
    if (list.empty()) {
        return;
    }
    for (const XmlNode& row : rowsOf(list)) {
        const std::string number = field(row, "NR_DOC");
        // A note of this run may be cancelled by another desk, and takes its bills along.
        const bool ofThisRun = number >= "001000";
        if (field(row, "TIPO_DOCTO") != "DOCTO_COBRANCA" || ofThisRun ||
            !isOwn(number.substr(0, 6)) || below(4) != 0) {
            continue;
        }
        const std::string kind = field(row, "ID_TIP_DOC");
        const std::string slip = std::to_string(place_ * 1000000 + turns_);
        if (accepted(commands::altera_docto_cob(clerk_, {.branch = "1363",
                                                         .documentKind = kind,
                                                         .document = number,
                                                         .bankNumber = slip}))) {
            const std::lock_guard lock(done_.mutex);
            done_.slips[std::string(kind).append(" ").append(number)] = slip;
        }
        return;
    }
}

}  // namespace tarn::practice::test
