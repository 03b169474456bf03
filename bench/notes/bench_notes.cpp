// What a note costs beside the parse that no client can do without: libxml2 alone
// over the answer's bytes, and parse and layout together, in one run. The counter
// `ratio` is the second over the first, `per_item` the time of an item.
#include <benchmark/benchmark.h>
#include <libxml/parser.h>

#include <algorithm>
#include <ctime>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "common/raw_channel.h"
#include "notes/layouts/layouts.h"
#include "notes/pipeline.h"
#include "session/xml_document.h"

namespace {

// Processor time of this thread: what else the machine does doesn't count.
double processorSeconds() {
    std::timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

class CountingSpooler : public tarn::Spooler {
public:
    std::string defaultPrinter() override { return "nenhuma"; }
    bool openPrinter(const std::string&) override { return true; }
    bool startDocument(const tarn::JobDescription&) override { return true; }
    bool startPage() override { return true; }
    std::size_t write(std::string_view bytes) override {
        bytes_ += bytes.size();
        return bytes.size();
    }
    bool endPage() override { return true; }
    bool endDocument() override { return true; }
    bool closePrinter() override { return true; }

    std::size_t bytes() const { return bytes_; }

private:
    std::size_t bytes_ = 0;
};

// A note as the server writes it: every attribute of a row, used or not.
std::string noteOf(int items) {
    std::string xml =
        "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>\r\n<PRINCIPAL ID=\"1\" STATUS=\"OK\">\r\n"
        "<NOTA Ent_Sai=\"S\" NatOper=\"VENDA DE MERCADORIA\" CFOP=\"5102\" RAZAO=\"COM\xC9RCIO DE "
        "PE\xC7"
        "AS S\xC3O JO\xC3O LTDA\" IC_TIP_PES=\"J\" CGC_CPF=\"12345678000195\" "
        "DT_EMS_NF=\"07/01/2009\" ENDERECO=\"RUA DAS FLORES, 100\" COMPLEMENTO=\"SALA 2\" "
        "BAIRRO=\"CENTRO\" CEP=\"1310100\" MUNICIPIO=\"S\xC3O PAULO\" FONEFAX=\"(11) 5555-0000\" "
        "UF=\"SP\" INSC_EST=\"110.042.490.114\" ENDERECO_COB=\"RUA DAS FLORES, 100\" "
        "COMPLEMENTO_COB=\"\" BAIRRO_COB=\"CENTRO\" CEP_COB=\"1310100\" MUNICIPIO_COB=\"S\xC3O "
        "PAULO\" UF_COB=\"SP\" ENDERECO_ETG=\"RUA DAS FLORES, 100\" COMPLEMENTO_ETG=\"\" "
        "BAIRRO_ETG=\"CENTRO\" CEP_ETG=\"1310100\" MUNICIPIO_ETG=\"S\xC3O PAULO\" UF_ETG=\"SP\" "
        "QTDE_PARC=\"3\" NR_DOC1=\"4567/1\" VL_PRN_DOC1=\"100.5\" DT_VNC_DOC1=\"07/02/2009\" "
        "NR_DOC2=\"4567/2\" VL_PRN_DOC2=\"200\" DT_VNC_DOC2=\"07/03/2009\" NR_DOC3=\"4567/3\" "
        "VL_PRN_DOC3=\"1300.25\" DT_VNC_DOC3=\"07/04/2009\" DC_CND_PAG=\"30/60/90\" "
        "DC_TRP=\"TRANSPORTES R\xC1PIDOS\" IC_RESP_FRT=\"1\" CD_PLC_VEI_TRP=\"ABC1234\" "
        "UF_PLACA_TRP=\"SP\" NR_CGC_CPL_TRP=\"12345678000110\" DC_LG_TRP=\"AV. BRASIL, 2000\" "
        "NM_MUN_TRP=\"CAMPINAS\" SG_UF_TRP=\"SP\" CD_ICR_EST_TRP=\"ISENTO\" QT_ESP=\"12\" "
        "PESO_BRU=\"1234.5\" PESO_LIQ=\"1200\" ID_VND_DIR=\"98765\" NR_PED_CLI=\"PC-77\" "
        "VENDEDOR=\"MARIA\" DC_OBS=\"ENTREGAR PELA MANH\xC3\" ID_EMP_TARN=\"1361\"/>\r\n"
        "<TOTAIS VALOR_BASE_ICMS=\"1600.75\" VALOR_ICMS=\"288.14\" VALOR_BAS_ICMS_RTD=\"0\" "
        "VALOR_ICMS_RTD=\"0\" VALOR_TOTAL=\"1650.75\" VALOR_TOTAL_DESC=\"50\" VALOR_FRETE=\"10\" "
        "VALOR_SEGURO=\"5.5\" VALOR_DES_ASC=\"0.25\" VALOR_TOT_IPI=\"80.04\" "
        "VALOR_TOT_NF=\"1696.54\" VL_IMPOSTO_CREDITAR=\"0\"/>\r\n"
        "<FORMULARIO QT_MAX_IT=\"32\" QT_MAX_IT_NF_SRV=\"6\"/>\r\n";
    for (int i = 0; i < items; ++i) {
        const std::string n = std::to_string(i + 1);
        xml += "<ITEM CD_PRO=\"P" + n + "\" DESCRICAO=\"PARAFUSO SEXTAVADO A\xC7O INOX " + n +
               "\" POS_NF=\"A\" CL_FISCAL=\"84811\" GF_AGRUP=\"1\" ID_CLA_FIS=\"84811\" "
               "CFOP_ITEM=\"5102\" IC_ORI_PRO=\"0\" SIT_TRI=\"00\" IC_TP_CAD=\"P\" "
               "UNIDADE=\"CX\" QTDE=\"12.5\" VALOR_UN=\"" +
               n +
               ".06\" VL_DSC=\"2.5\" ICMS=\"18\" AQ_IPI=\"5\" IPI=\"5\" VL_IPI=\"62.54\" "
               "PESO=\"0.35\" DC_TXT_LEG_NF=\"TEXTO LEGAL " +
               std::to_string(i % 200) + "\" AQ_ISS=\"0\" VL_ISS=\"0\" VL_LIQ_IT=\"0\"/>\r\n";
    }
    return xml + "</PRINCIPAL>\r\n";
}

void parseAlone(const std::string& xml) {
    constexpr int options =
        XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING | XML_PARSE_COMPACT;
    const std::unique_ptr<xmlDoc, void (*)(xmlDoc*)> document(
        xmlReadMemory(xml.data(), static_cast<int>(xml.size()), nullptr, nullptr, options),
        xmlFreeDoc);
    benchmark::DoNotOptimize(document.get());
}

std::size_t parseAndPrint(const std::string& xml) {
    tarn::XmlDocument document;
    document.loadXML(xml);
    CountingSpooler spooler;
    tarn::RawChannel channel(spooler, tarn::CodePage::Page1252);
    tarn::notes::printNote(tarn::notes::imprimeNF_1361.formFor(1), document, "4567", channel);
    return spooler.bytes();
}

template <typename Work>
double secondsOf(const Work& work) {
    const double start = processorSeconds();
    work();
    return processorSeconds() - start;
}

double medianOf(std::vector<double>& values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

// Both by turns, so that a busy machine slows them alike; medians, so that a
// pause of the machine counts for neither.
void note(benchmark::State& state) {
    const std::string xml = noteOf(static_cast<int>(state.range(0)));
    std::vector<double> bare;
    std::vector<double> whole;
    std::size_t bytes = 0;
    for (auto _ : state) {
        bare.push_back(secondsOf([&] { parseAlone(xml); }));
        whole.push_back(secondsOf([&] { bytes += parseAndPrint(xml); }));
    }
    const double parse = medianOf(bare);
    const double both = medianOf(whole);
    using benchmark::Counter;
    state.counters["parse_us"] = Counter(parse * 1e6);
    state.counters["parse_and_layout_us"] = Counter(both * 1e6);
    state.counters["ratio"] = Counter(both / parse);
    state.counters["layout_per_item_ns"] =
        Counter((both - parse) * 1e9 / static_cast<double>(state.range(0)));
    state.counters["printed_bytes"] =
        Counter(static_cast<double>(bytes) / static_cast<double>(whole.size()));
}
BENCHMARK(note)->Arg(5)->Arg(50)->Arg(500)->Arg(5000)->Unit(benchmark::kMicrosecond);

}  // namespace

BENCHMARK_MAIN();
