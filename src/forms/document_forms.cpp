#include "forms/document_forms.h"

#include <algorithm>
#include <functional>
#include <utility>

#include "billing/order_sheet.h"
#include "cheques/imprime_cheque.h"
#include "common/raw_channel.h"
#include "forms/form_tracer.h"
#include "forms/headroom.h"
#include "gateway/xml_document.h"
#include "labels/label.h"
#include "labels/raw_form.h"
#include "slips/slip_layouts.h"
#include "slips/slip_search.h"

namespace tarn::dotmatrix {

namespace {

constexpr PaperUnits lineHeight = unitsPerInch / 6;
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
    form.setUp = tracer.setUp();
    form.height = tracer.height();
    form.boxes = tracer.boxes();
    return form;
}

FormDesign slipForm(bool wallet57) {
    FormDesign form = traced([wallet57](RawChannel& channel) {
        const GridRow document{.cells = std::vector<std::string>(slipGrid().size())};
        openSlipJob(channel);
        (wallet57 ? printWallet57Lines : printSevenDigitLines)(channel, document, {});
        channel.close();
    });
    giveHeadroom(form.boxes);
    return form;
}

// The longest of its kind: the amount in words takes both of its lines.
FormDesign chequeForm(std::int16_t bank) {
    FormDesign form = traced([bank](RawChannel& channel) {
        printCheque(channel, {.nNr_Ofi_Ban = bank,
                              .sValor = "999.999.999,99",
                              .sFavorecido = "-",
                              .sDataDeposito = "31/12/2012",
                              .sNmMun = "-"});
    });
    giveHeadroom(form.boxes);
    return form;
}

FormDesign plainSheet() {
    FormDesign form;
    form.height = sheetHeight;
    form.everyDocumentAtTop = true;
    return form;
}

// One item, whose columns go down to the end of the sheet: there may be any number of them,
// and the totals follow in the same columns.
FormDesign priceSheet() {
    FormDesign form = traced([](RawChannel& channel) {
        constexpr std::string_view order =
            "<?xml version='1.0'?><PRINCIPAL cod='0' status='OK'>"
            "<CAB RAZAO='' DT_EMS_NF='' VENDEDOR='' NR_CTRL_INT='1'/>"
            "<ITEM CD_PRO='' DESCRICAO='' QTDE='1' UNITARIO='1' VL_DSC='0' VL_IPI='0' "
            "VL_ICMS_RTD='0' VL_DSC_ICMS='0' VL_FRT='0' VL_DSP_ACS='0' VL_SEG='0'/></PRINCIPAL>";
        XmlDocument document;
        document.loadXML(std::string(order));
        printPriceSheet(channel, document);
    form.setUp = twoRows.setUp;
    });
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
    constexpr std::string_view eightLabels =
        "<?xml version='1.0'?><xml xmlns:rs='urn:schemas-microsoft-com:rowset' "
        "xmlns:z='#RowsetSchema'><rs:data><z:row/><z:row/><z:row/><z:row/><z:row/><z:row/>"
        "<z:row/><z:row/></rs:data></xml>";
    const FormDesign twoRows = traced([eightLabels](RawChannel& channel) {
        XmlDocument document;
        document.loadXML(std::string(eightLabels));
        labels::Labels queue(document);
        labels::printLabelRows(channel, queue, {});
    });
    const PaperUnits row = twoRows.height / 2;
    FormDesign form;
    form.height = sheetHeight;
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
