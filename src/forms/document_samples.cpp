#include "forms/document_samples.h"

#include <string>
#include <vector>

#include "billing/order_sheet.h"
#include "cheques/imprime_cheque.h"
#include "common/raw_channel.h"
#include "gateway/xml_document.h"
#include "labels/label.h"
#include "labels/raw_form.h"
#include "slips/slip_layouts.h"
#include "slips/slip_search.h"

namespace tarn::dotmatrix {

namespace {

template <typename Print>
void printSlip(RawChannel& channel, Print print) {
    const GridRow document{.cells = std::vector<std::string>(slipGrid().size())};
    openSlipJob(channel);
    print(channel, document, SlipNumber{});
    channel.close();
}

}  // namespace

void printSampleOfWallet57(RawChannel& channel) {
    printSlip(channel, printWallet57Lines);
}

void printSampleOfOtherWallets(RawChannel& channel) {
    printSlip(channel, printSevenDigitLines);
}

void printSampleCheque(RawChannel& channel, std::int16_t bank) {
    printCheque(channel, {.nNr_Ofi_Ban = bank,
                          .sValor = "999.999.999,99",
                          .sFavorecido = "-",
                          .sDataDeposito = "31/12/2012",
                          .sNmMun = "-"});
}

void printSamplePriceSheet(RawChannel& channel) {
    constexpr std::string_view order =
        "<?xml version='1.0'?><PRINCIPAL cod='0' status='OK'>"
        "<CAB RAZAO='' DT_EMS_NF='' VENDEDOR='' NR_CTRL_INT='1'/>"
        "<ITEM CD_PRO='' DESCRICAO='' QTDE='1' UNITARIO='1' VL_DSC='0' VL_IPI='0' "
        "VL_ICMS_RTD='0' VL_DSC_ICMS='0' VL_FRT='0' VL_DSP_ACS='0' VL_SEG='0'/></PRINCIPAL>";
    XmlDocument document;
    document.loadXML(std::string(order));
    printPriceSheet(channel, document);
}

void printSampleLabels(RawChannel& channel) {
    constexpr std::string_view eightLabels =
        "<?xml version='1.0'?><xml xmlns:rs='urn:schemas-microsoft-com:rowset' "
        "xmlns:z='#RowsetSchema'><rs:data><z:row/><z:row/><z:row/><z:row/><z:row/><z:row/>"
        "<z:row/><z:row/></rs:data></xml>";
    XmlDocument document;
    document.loadXML(std::string(eightLabels));
    labels::Labels queue(document);
    labels::printLabelRows(channel, queue, {});
}

}  // namespace tarn::dotmatrix
