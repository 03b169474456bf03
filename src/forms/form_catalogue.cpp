#include "forms/form_catalogue.h"

#include <algorithm>

#include "forms/document_forms.h"
#include "forms/layout_forms.h"

namespace tarn::dotmatrix {

std::vector<CatalogueForm> formCatalogue() {
    std::vector<CatalogueForm> forms;
    for (const std::string& name : layoutFormNames()) {
        forms.push_back({name, layoutFormTitle(name), JobDocument::Note});
    }
    for (NamedDocumentForm& form : documentForms()) {
        forms.push_back({std::move(form.name), std::move(form.title), form.document});
    }
    return forms;
}

std::string formTitle(std::string_view name) {
    const std::vector<CatalogueForm> forms = formCatalogue();
    const auto known = std::ranges::find(forms, name, &CatalogueForm::name);
    return known == forms.end() ? std::string(name) : known->title;
}

std::optional<FormDesign> formDrawing(std::string_view name, std::optional<int> itemLines) {
    auto note = layoutForm(name, itemLines);
    return note ? std::move(note) : documentForm(name);
}

std::shared_ptr<const FormDesign> FormShelf::formOf(const JobKind& kind) {
    if (!kind.told() || kind.form.empty()) {
        return nullptr;
    }
    // Lines of items make another form of a note's alone.
    const auto lines = kind.document == JobDocument::Note ? kind.itemLines : std::nullopt;
    const auto known = drawn_.find({kind.form, lines});
    if (known != drawn_.end()) {
        return known->second;
    }
    auto drawing = formDrawing(kind.form, lines);
    if (!drawing) {
        return nullptr;
    }
    auto form = std::make_shared<const FormDesign>(std::move(*drawing));
    drawn_.emplace(std::pair(kind.form, lines), form);
    return form;
}

}  // namespace tarn::dotmatrix
