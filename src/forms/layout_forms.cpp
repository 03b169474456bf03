#include "forms/layout_forms.h"

#include <algorithm>

#include "forms/drawing_pen.h"
#include "forms/headroom.h"
#include "notes/ladder.h"
#include "notes/layouts/layouts.h"

namespace tarn::dotmatrix {

namespace {

constexpr int sheetLines = 66;
// Of a customer who has no form by name.
constexpr std::int32_t anyCode = 1;

struct NamedForm {
    std::string name;
    const notes::Layout* layout;
    const notes::Form* form;
};

std::vector<NamedForm> namedForms() {
    std::vector<NamedForm> forms;
    for (const notes::Layout* layout : notes::allLayouts()) {
        if (layout->form == nullptr) {
            continue;  // it draws on blank paper
        }
        if (layout->other != nullptr) {
            forms.push_back({layout->formName(layout->establishment), layout, layout->form});
        }
        forms.push_back({std::string(layout->name), layout,
                         layout->other != nullptr ? layout->other : layout->form});
    }
    return forms;
}

struct Drawn {
    PaperUnits height = 0;
    PaperUnits reach = 0;
    std::vector<FormBox> boxes;
    std::vector<FormBox> ownWords;
};

Drawn drawn(const notes::Form& form, const FormPitch& pitch, int itemLines) {
    DrawingPen pen(pitch, itemLines);
    walkForm(form, pen);
    return {pen.height(), pen.reach(), std::move(pen.boxes()), std::move(pen.ownWords())};
}

FormDesign draw(const NamedForm& named, std::optional<int> itemLines) {
    FormDesign design;
    design.name = named.name;
    design.setUp = named.form->setUp.empty() ? "" : " " + std::string(named.form->setUp);
    // A form that selects no pitch and is wider than the carriage is for printers that
    // are set to condensed print at their panel.
    if (drawn(*named.form, design.pitch, 1).reach > carriage) {
        design.pitch.condensed = true;
    }
    const auto withOne = drawn(*named.form, design.pitch, 1).height / lineHeight;
    const int lines =
        itemLines ? *itemLines : std::max(1, sheetLines - static_cast<int>(withOne) + 1);
    Drawn form = drawn(*named.form, design.pitch, lines);
    design.height = std::max<PaperUnits>(form.height, unitsPerInch);
    design.boxes = std::move(form.boxes);
    design.ownWords = std::move(form.ownWords);
    giveHeadroom(design.boxes);
    return design;
}

bool fillsForm(const notes::Form& form) {
    return std::any_of(form.steps.begin(), form.steps.end(), [](const notes::Step& step) {
        const auto* items = std::get_if<notes::Items>(&step);
        return items != nullptr && items->fillsForm;
    });
}

// The first rung by which the reprint screen, which knows every form, comes to it.
LadderForm onTheLadder(const NamedForm& named) {
    for (const Rung& rung : rungs()) {
        const std::int32_t company = rung.company.value_or(anyCode);
        const std::int32_t own =
            named.form == named.layout->other ? anyCode : named.layout->establishment;
        const std::int32_t establishment = rung.establishment.value_or(own == 0 ? anyCode : own);
        if (rung.layout == named.layout &&
            layoutFor(Ladder::Reprint, company, establishment) == named.layout) {
            return {named.name, company, establishment, !fillsForm(*named.form)};
        }
    }
    return {named.name, 0, 0, false};
}

void add(std::string& list, const std::string& entry) {
    list += (list.empty() ? "" : ", ") + entry;
}

// Establishments of one company stand together behind it; who is on one screen's ladder alone
// comes last.
std::string holdersOf(const NamedForm& named) {
    std::string companies;
    std::string others;
    std::string establishments;
    std::int32_t grouped = 0;
    for (const Rung& rung : rungs()) {
        if (rung.layout != named.layout) {
            continue;
        }
        if (rung.company && rung.establishment) {
            grouped = *rung.company;
            add(establishments, std::to_string(*rung.establishment));
        } else if (rung.company) {
            const std::string code = std::to_string(*rung.company);
            if (!rung.only || companies.find(code) == std::string::npos) {
                add(rung.only ? others : companies, code);
            }
        } else if (rung.establishment) {
            add(companies, "estabelecimento " + std::to_string(*rung.establishment));
        } else {
            add(companies, "outras empresas");
        }
    }
    if (grouped != 0) {
        add(companies, std::to_string(grouped) + " (" + establishments + ")");
    }
    if (!others.empty() && companies.find(others) == std::string::npos) {
        add(companies, others);
    }
    return companies;
}

}  // namespace

std::string layoutFormTitle(std::string_view name) {
    for (const NamedForm& named : namedForms()) {
        if (named.name == name) {
            const bool ofItsOwn =
                named.layout->other != nullptr && named.form != named.layout->other;
            return "Nota: " + holdersOf(named) +
                   (ofItsOwn ? ", estabelecimento " + std::to_string(named.layout->establishment)
                             : "");
        }
    }
    return {};
}

std::vector<LadderForm> ladderForms() {
    std::vector<LadderForm> forms;
    for (const NamedForm& named : namedForms()) {
        forms.push_back(onTheLadder(named));
    }
    return forms;
}

std::vector<std::string> layoutFormNames() {
    std::vector<std::string> names;
    for (NamedForm& named : namedForms()) {
        names.push_back(std::move(named.name));
    }
    return names;
}

std::optional<FormDesign> layoutForm(std::string_view name, std::optional<int> itemLines) {
    for (const NamedForm& named : namedForms()) {
        if (named.name == name) {
            return draw(named, itemLines);
        }
    }
    return std::nullopt;
}

}  // namespace tarn::dotmatrix
