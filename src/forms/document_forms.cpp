#include "forms/document_forms.h"

#include <algorithm>
#include <functional>
#include <utility>

#include "billing/order_sheet.h"
#include "cheques/imprime_cheque.h"
#include "common/raw_channel.h"
#include "forms/document_samples.h"
#include "forms/form_tracer.h"
#include "forms/headroom.h"
#include "labels/raw_form.h"
#include "slips/slip_layouts.h"

namespace tarn::dotmatrix {

namespace {

constexpr PaperUnits sheetHeight = 11 * unitsPerInch;

struct DocumentForm {
    NamedDocumentForm called;
    std::function<FormDesign()> draw;
};

// What the routine prints, as boxes; as high as it goes down.
template <typename Print>
FormDesign traced(const Print& print) {
    FormTracer tracer;
    RawChannel channel(tracer, CodePage::Page1252);
    channel.watch(tracer);
    print(channel);
    FormDesign form;
    form.height = tracer.height();
    form.boxes = tracer.boxes();
    form.setUp = tracer.setUp();
    return form;
}

FormDesign slipForm(bool wallet57) {
    FormDesign form = traced(wallet57 ? printSampleOfWallet57 : printSampleOfOtherWallets);
    giveHeadroom(form.boxes);
    return form;
}

FormDesign chequeForm(std::int16_t bank) {
    FormDesign form = traced([bank](RawChannel& channel) { printSampleCheque(channel, bank); });
    giveHeadroom(form.boxes);
    return form;
}

FormDesign plainSheet() {
    FormDesign form;
    form.height = sheetHeight;
    form.everyDocumentAtTop = true;
    return form;
}

// The columns of the sample's one item go down to the end of the sheet: there may be any number
// of items, and the totals follow in the same columns.
FormDesign priceSheet() {
    FormDesign form = traced(printSamplePriceSheet);
    form.height = sheetHeight;
    form.everyDocumentAtTop = true;
    const PaperUnits items = form.boxes.back().y;
    giveHeadroom(form.boxes);
    for (FormBox& box : form.boxes) {
        if (box.y <= items && items < box.y + box.height) {
            box.height = sheetHeight - lineHeight - box.y;
        }
    }
    form.texts.push_back({.x = form.boxes.front().x + form.boxes.front().width + lineHeight,
                          .y = form.boxes.front().y,
                          .text = std::string(orderSheetTitle)});
    return form;
}

// A sheet of labels, four across. The first line of a run stands a blank further right than
// all others, the one that its set-up job leaves: a box is where the second row prints.
FormDesign labelForm() {
    const FormDesign twoRows = traced(printSampleLabels);
    const PaperUnits row = twoRows.height / 2;
    FormDesign form;
    form.height = sheetHeight;
    form.setUp = twoRows.setUp;
    for (PaperUnits top = 0; top + row <= form.height; top += row) {
        for (FormBox box : twoRows.boxes) {
            box.y += top - row;
            if (box.y >= top) {
                form.boxes.push_back(std::move(box));
            }
        }
    }
    return form;
}

std::vector<DocumentForm> allForms() {
    std::vector<DocumentForm> forms;
    for (const std::int32_t bank : slipBanks) {
        const std::string title = "Boleto: banco " + std::to_string(bank);
        forms.push_back({{slipFormName(bank, true), title + ", carteira 57", JobDocument::Slip},
                         [] { return slipForm(true); }});
        forms.push_back(
            {{slipFormName(bank, false), title + ", outras carteiras", JobDocument::Slip},
             [] { return slipForm(false); }});
    }
    const std::string bank33 = std::to_string(chequeBank33);
    forms.push_back({{std::string(chequeFormName(chequeBank33)), "Cheque: banco " + bank33,
                      JobDocument::Cheque},
                     [] { return chequeForm(chequeBank33); }});
    forms.push_back({{std::string(chequeFormName(0)), "Cheque: outros bancos", JobDocument::Cheque},
                     [] { return chequeForm(0); }});
    const std::string company = std::to_string(priceSheetCompany);
    forms.push_back({{orderFormName(priceSheetCompany), "Ordem de faturamento: " + company,
                      JobDocument::OrderSheet},
                     priceSheet});
    forms.push_back(
        {{orderFormName(0), "Ordem de faturamento: outras empresas", JobDocument::OrderSheet},
         plainSheet});
    forms.push_back({{std::string(labels::labelFormOnPaper), "Etiquetas: quatro por linha",
                      JobDocument::Labels},
                     labelForm});
    return forms;
}

}  // namespace

std::vector<NamedDocumentForm> documentForms() {
    std::vector<NamedDocumentForm> names;
    for (DocumentForm& form : allForms()) {
        names.push_back(std::move(form.called));
    }
    return names;
}

std::optional<FormDesign> documentForm(std::string_view name) {
    for (const DocumentForm& form : allForms()) {
        if (form.called.name == name) {
            FormDesign design = form.draw();
            design.name = form.called.name;
            return design;
        }
    }
    return std::nullopt;
}

}  // namespace tarn::dotmatrix
