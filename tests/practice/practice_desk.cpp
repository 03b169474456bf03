#include "tests/practice/practice_desk.h"

#include <cmath>

namespace tarn::practice::test {
namespace {

std::int64_t scaledField(const XmlNode& row, std::string_view name, double scale) {
    return std::llround(std::stod(field(row, name)) * scale);
}

}  // namespace

XmlDocument Desk::ask(const std::string& query) {
    XmlDocument document;
    const std::string body = server_.answer(query);
    EXPECT_TRUE(document.loadXML(body)) << body;
    return document;
}

std::string Desk::status(const std::string& query) {
    return statusOf(ask(query));
}

std::vector<std::string> Desk::orders() {
    const XmlDocument document =
        ask("comando=sel_ordem_fatu&ID_ETB_TARN=1361&ServerName=DADOS1361");
    std::vector<std::string> numbers;
    for (const XmlNode& row : rowsOf(document)) {
        numbers.push_back(field(row, "ID_ORD_FAT"));
    }
    return numbers;
}

std::string Desk::generateQuery(const std::string& order) const {
    return "COMANDO=SP_GERA_NF&ID_ETB_TARN=1361&ID_ORD_FAT=" + order +
           "&ID_PES=101&ServerName=DADOS1361";
}

Generated Desk::generate(const std::string& order) {
    const XmlDocument document = ask(generateQuery(order));
    EXPECT_EQ(statusOf(document), "OK");
    const XmlNode root = document.documentElement();
    return {std::string(root.child(0).attributes().item(0).text()),
            std::string(root.child(1).attributes().item(0).text())};
}

XmlDocument Desk::note(const Generated& note) {
    return ask("comando=sel_gera_nf&ID_ETB_TARN=1361&ID_NF_KESTO=" + note.number +
               "&CD_SER_NF=" + note.series + "&ServerName=DADOS1361");
}

std::string statusOf(const XmlDocument& document) {
    return std::string(document.child(1).attributes().item(1).text());
}

std::vector<XmlNode> rowsOf(const XmlDocument& document) {
    std::vector<XmlNode> rows;
    const XmlNode data = document.selectSingleNode("xml/rs:data");
    EXPECT_TRUE(static_cast<bool>(data));
    for (std::size_t i = 0; data && i < data.childCount(); ++i) {
        rows.push_back(data.child(i));
    }
    return rows;
}

std::string field(const XmlNode& row, std::string_view name) {
    const XmlAttribute attribute = row.attributes().getNamedItem(name);
    return attribute ? std::string(attribute.text()) : "-";
}

std::int64_t cents(const XmlNode& row, std::string_view name) {
    return scaledField(row, name, 100);
}

std::int64_t thousandths(const XmlNode& row, std::string_view name) {
    return scaledField(row, name, 1000);
}

}  // namespace tarn::practice::test
