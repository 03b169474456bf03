// What a note costs beside the parse that no client can do without: libxml2 alone
// over the answer's bytes, and parse and layout together, in one run. The counter
// `ratio` is the second over the first, `per_item` the time of an item.
#include <benchmark/benchmark.h>

#include <array>
#include <cstdint>
#include <cstdio>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "bench/support/measure.h"
#include "bench/support/parse_alone.h"
#include "common/raw_channel.h"
#include "gateway/xml_document.h"
#include "notes/layouts/layouts.h"
#include "notes/pipeline.h"
#include "notes/print_note.h"
#include "platform/environment.h"
#include "platform/printer.h"
#include "tests/support/test_environment.h"

namespace {

using tarn::bench::leastOf;
using tarn::bench::medianOf;
using tarn::bench::parseAlone;
using tarn::bench::ratioOf;
using tarn::bench::secondsOf;

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
        xml.append("<ITEM CD_PRO=\"P").append(n);
        xml.append("\" DESCRICAO=\"PARAFUSO SEXTAVADO A\xC7O INOX ").append(n);
        xml.append(
            "\" POS_NF=\"A\" CL_FISCAL=\"84811\" GF_AGRUP=\"1\" ID_CLA_FIS=\"84811\" "
            "CFOP_ITEM=\"5102\" IC_ORI_PRO=\"0\" SIT_TRI=\"00\" IC_TP_CAD=\"P\" "
            "UNIDADE=\"CX\" QTDE=\"12.5\" VALOR_UN=\"");
        xml.append(n).append(
            ".06\" VL_DSC=\"2.5\" ICMS=\"18\" AQ_IPI=\"5\" IPI=\"5\" VL_IPI=\"62.54\" "
            "PESO=\"0.35\" DC_TXT_LEG_NF=\"TEXTO LEGAL ");
        xml.append(std::to_string(i % 200));
        xml.append("\" AQ_ISS=\"0\" VL_ISS=\"0\" VL_LIQ_IT=\"0\"/>\r\n");
    }
    return xml + "</PRINCIPAL>\r\n";
}

struct Times {
    std::vector<double> bare;    // libxml2 alone
    std::vector<double> whole;   // parse and layout
    std::vector<double> layout;  // the layout of a note just parsed
};

void print(const tarn::XmlDocument& document) {
    CountingSpooler spooler;
    tarn::RawChannel channel(spooler, tarn::CodePage::Page1252);
    tarn::notes::printNote(tarn::notes::imprimeNF_1361.formFor(1), document, "4567", channel);
    benchmark::DoNotOptimize(spooler.bytes());
}

void parseAndPrint(const std::string& xml) {
    tarn::XmlDocument document;
    document.loadXML(xml);
    print(document);
}

void measureOnce(const std::string& xml, Times& times) {
    times.bare.push_back(secondsOf([&] { parseAlone(xml); }));
    times.whole.push_back(secondsOf([&] { parseAndPrint(xml); }));
    tarn::XmlDocument document;
    document.loadXML(xml);
    times.layout.push_back(secondsOf([&] { print(document); }));
}

constexpr std::array<int, 3> sizes{5, 50, 5000};

std::map<int, Times>& measured() {
    static std::map<int, Times> all;
    return all;
}

void note(benchmark::State& state) {
    const int items = static_cast<int>(state.range(0));
    const std::string xml = noteOf(items);
    Times& times = measured()[items];
    while (state.KeepRunning()) {
        measureOnce(xml, times);
    }
    const double layout = leastOf(times.layout);
    using benchmark::Counter;
    state.counters["parse_us"] = Counter(leastOf(times.bare) * 1e6);
    state.counters["parse_and_layout_us"] = Counter(leastOf(times.whole) * 1e6);
    state.counters["layout_us"] = Counter(layout * 1e6);
    state.counters["layout_ns_per_item"] = Counter(layout * 1e9 / items);
    state.counters["ratio"] = Counter(ratioOf(times.whole, times.bare));
}
BENCHMARK(note)->Arg(5)->Iterations(4000)->Unit(benchmark::kMicrosecond);
BENCHMARK(note)->Arg(50)->Iterations(1000)->Unit(benchmark::kMicrosecond);
BENCHMARK(note)->Arg(5000)->Iterations(41)->Unit(benchmark::kMicrosecond);

struct LadderForm {
    const char* name;
    std::int32_t company;
    std::int32_t establishment;
};

// Every form, by a company and an establishment whose notes go on it.
constexpr std::array<LadderForm, 24> forms{{{"1361", 1361, 1},
                                            {"2041", 2041, 1},
                                            {"Padrao", 1, 1},
                                            {"7", 7, 1},
                                            {"2161_3341", 2161, 3341},
                                            {"2161_3381", 2161, 3381},
                                            {"2161_3383", 2161, 3383},
                                            {"2321", 2321, 1},
                                            {"1581", 1581, 1},
                                            {"2801", 2801, 1},
                                            {"2421 at 3621", 2421, 3621},
                                            {"2421", 2421, 1},
                                            {"1521", 1521, 1},
                                            {"821", 821, 1},
                                            {"3301", 3301, 1},
                                            {"3881", 3881, 1},
                                            {"3601", 3601, 1},
                                            {"E6001", 1, 6001},
                                            {"3081", 3081, 1},
                                            {"E5282", 1, 5282},
                                            {"2541 (drawn)", 2541, 1},
                                            {"3681", 3681, 1},
                                            {"4621 at 7321", 4621, 7321},
                                            {"4621", 4621, 1}}};

// Takes every drawing operation and does nothing with it.
class CountingPrinter : public tarn::Printer {
public:
    std::optional<tarn::PrinterFailure> perform(const tarn::PrintOperation&) override {
        ++operations_;
        return std::nullopt;
    }

private:
    std::size_t operations_ = 0;
};

// Parse and layout of the same note on one form over the bare parse.
double ratioOfForm(const LadderForm& form, const std::string& xml) {
    tarn::test::TestEnvironment seams;
    CountingSpooler spooler;
    CountingPrinter printer;
    tarn::Environment environment{.http = seams.loader,
                                  .spooler = spooler,
                                  .printer = printer,
                                  .boxes = seams.boxes,
                                  .clock = seams.clock,
                                  .machine = seams.machine,
                                  .baseUrl = {}};
    tarn::Sessao session;
    session.NCOMPANYCODE = form.company;
    session.ID_ETB_TARN = form.establishment;
    Times times;
    constexpr int rounds = 401;
    for (int i = 0; i < rounds; ++i) {
        times.bare.push_back(secondsOf([&] { parseAlone(xml); }));
        times.whole.push_back(secondsOf([&] {
            tarn::XmlDocument document;
            document.loadXML(xml);
            tarn::printNote(tarn::Ladder::Reprint, environment, session, document, "4567");
        }));
    }
    return ratioOf(times.whole, times.bare);
}

// What an item more costs between two sizes of note.
double perItem(const std::vector<double> Times::*which, int from, int to) {
    const double less = medianOf(measured()[from].*which);
    const double more = medianOf(measured()[to].*which);
    return (more - less) / (to - from);
}

// How much more an item costs in a large note than in a small one; 1 is the same.
double growth(const std::vector<double> Times::*which) {
    return perItem(which, 50, 5000) / perItem(which, 5, 50);
}

}  // namespace

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    tarn::bench::Limits limits;
    for (const int items : sizes) {
        const Times& times = measured()[items];
        limits.check("note of " + std::to_string(items) + " items: parse and layout over parse",
                     ratioOf(times.whole, times.bare), 1.25);
    }
    // Larger trees leave the processor's caches, for libxml2 alone as well: what
    // counts is that the note's cost grows no faster than the bare parse's.
    const double bareGrowth = growth(&Times::bare);
    limits.check("cost of an item, 50 to 5000 over 5 to 50, beside that of parse",
                 growth(&Times::whole) / bareGrowth, 1.15);
    limits.check("the same of the layout alone", growth(&Times::layout) / bareGrowth, 1.15);
    std::printf("(growth of the bare parse itself: %.2f)\n", bareGrowth);
    // As many items as a form has lines for.
    const std::string fullForm = noteOf(32);
    for (const LadderForm& form : forms) {
        limits.check(std::string("form ") + form.name + ", 32 items: parse and layout over parse",
                     ratioOfForm(form, fullForm), 1.30);
    }
    return limits.exitStatus();
}
