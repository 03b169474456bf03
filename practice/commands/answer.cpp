#include "practice/commands/answer.h"

namespace tarn::practice {
namespace {

Element schemaOf(const Rowset& rowset) {
    Element row{"s:ElementType", {{"name", "row"}, {"content", "eltOnly"}}, {}};
    int number = 0;
    for (const std::string& column : rowset.columns) {
        row.add(
            {"s:AttributeType",
             {{"name", column}, {"rs:number", std::to_string(++number)}, {"rs:nullable", "true"}},
             {}});
    }
    row.add({"s:extends", {{"type", "rs:rowbase"}}, {}});
    Element schema{"s:Schema", {{"id", "RowsetSchema"}}, {}};
    schema.add(std::move(row));
    return schema;
}

Element withStatus(std::string_view root, std::string status) {
    Element element{std::string(root), {}, {}};
    element.set("CODIGO", status == "OK" ? "0" : "1").set("STATUS", std::move(status));
    return element;
}

}  // namespace

Element& Element::set(std::string_view attribute, std::optional<std::string> value) {
    if (value) {
        attributes.emplace_back(std::string(attribute), std::move(*value));
    }
    return *this;
}

Element& Element::add(Element child) {
    children.push_back(std::move(child));
    return *this;
}

Element statusAnswer(std::string status) {
    return withStatus("RESPOSTA", std::move(status));
}

Element documentAnswer(std::string status) {
    return withStatus("PRINCIPAL", std::move(status));
}

Element versionAnswer(std::string status, std::optional<std::string> date) {
    Element version{"VERSAO", {}, {}};
    version.set("STATUS", std::move(status)).set("DATA", std::move(date));
    Element root{"RESPOSTA", {}, {}};
    root.add(std::move(version));
    return root;
}

Element rowsetAnswer(const Rowset& rowset) {
    Element data{"rs:data", {}, {}};
    for (const auto& values : rowset.rows) {
        Element row{"z:row", {}, {}};
        for (std::size_t i = 0; i < values.size(); ++i) {
            row.set(rowset.columns[i], values[i]);
        }
        data.add(std::move(row));
    }
    Element root{"xml",
                 {{"xmlns:s", "uuid:BDC6E3F0-6DA3-11d1-A2A3-00AA00C14882"},
                  {"xmlns:rs", "urn:schemas-microsoft-com:rowset"},
                  {"xmlns:z", "#RowsetSchema"}},
                 {}};
    root.add(schemaOf(rowset)).add(std::move(data));
    return root;
}

Element refusalAnswer(Shape shape, const std::string& text) {
    switch (shape) {
        case Shape::Document:
            return documentAnswer(text);
        case Shape::Rows:
            return rowsetAnswer({});
        case Shape::Version:
            return versionAnswer(text, std::nullopt);
        case Shape::Status:
            break;
    }
    return statusAnswer(text);
}

Element answerElement(Reply reply) {
    if (const auto* rowset = std::get_if<Rowset>(&reply)) {
        return rowsetAnswer(*rowset);
    }
    return std::get<Element>(std::move(reply));
}

}  // namespace tarn::practice
