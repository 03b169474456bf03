#include "practice/data/tables.h"

#include <array>

namespace tarn::practice {
namespace {

constexpr std::array customers = {
    CustomerRow{
        "PANIFICADORA E CONFEITARIA PÃO DE ARAÇÁS LTDA",
        false,
        "221133440001",
        "114.556.778.119",
        "(11) 3222-4411 / 3222-4412",
        {"RUA DAS PALMEIRAS, 45", "LOJA B", "SANTA CECÍLIA", "01226010", "SÃO PAULO", "SP"}},
    CustomerRow{"MARIA DA CONCEIÇÃO ALBUQUERQUE D'ÁVILA",
                true,
                "012345678",
                nullptr,
                "(19) 98111-2020",
                {"TRAVESSA DO ROSÁRIO, 7", "FUNDOS", "VILA NOVA", "1310100", "JUNDIAÍ", "SP"}},
    CustomerRow{
        "SUPERMERCADO BOA PRAÇA S/A",
        false,
        "334455660001",
        "ISENTO",
        "(31) 3344-5566",
        {"AVENIDA AFONSO PENA, 3111", nullptr, "CENTRO", "30130009", "BELO HORIZONTE", "MG"}},
    CustomerRow{
        "ASSOCIAÇÃO BENEFICENTE E CULTURAL DOS TRABALHADORES NAS INDÚSTRIAS DE CERÂMICAS "
        "DE SÃO BERNARDO DO CAMPO E REGIÃO DO GRANDE ABC",
        false,
        "998877660001",
        "635.123.456.789",
        "(11) 4330-1000 RAMAL 2040 FAX 4330-1001",
        {"RUA MARECHAL DEODORO DA FONSECA, 1.457, ESQUINA COM A AVENIDA BRIGADEIRO FARIA "
         "LIMA",
         "BLOCO ADMINISTRATIVO, 3º ANDAR, SALAS 301 A 309",
         "JARDIM DO MAR - SETOR INDUSTRIAL NORTE", "09710010", "SÃO BERNARDO DO CAMPO", "SP"}},
    CustomerRow{"JOSÉ ANTÔNIO DOS SANTOS FILHO",
                true,
                "987654321",
                nullptr,
                nullptr,
                {"SÍTIO SÃO JOÃO, KM 12", nullptr, "ZONA RURAL", "37500000", "ITAJUBÁ", "MG"}},
    CustomerRow{"OFICINA MECÂNICA IRMÃOS MUÑOZ & CIA LTDA",
                false,
                "556677880001",
                "244.998.120.337",
                "(13) 3219-0000",
                {"AVENIDA ANA COSTA, 200", nullptr, "GONZAGA", "11060000", "SANTOS", "SP"}},
    CustomerRow{
        "LOJAS ARAÇÁ DE DEPARTAMENTOS LTDA",
        false,
        "112233440001",
        "082.041.556",
        "(48) 3222-7788",
        {"RUA FELIPE SCHMIDT, 515", "SOBRELOJA", "CENTRO", "88010001", "FLORIANÓPOLIS", "SC"},
        true},
    CustomerRow{
        "HOTEL ESTÂNCIA DAS ÁGUAS LTDA",
        false,
        "667788990001",
        "562.334.118.003",
        "(35) 3332-1010",
        {"PRAÇA VENCESLAU BRÁS, 1", nullptr, "CENTRO", "37440000", "CAXAMBU", "MG"},
        false,
        {"RUA DA CONTABILIDADE, 80", "SALA 12", "SAVASSI", "30140080", "BELO HORIZONTE", "MG"},
        {"ESTRADA DO PARQUE, KM 3", "PORTÃO DE SERVIÇO", "PARQUE DAS ÁGUAS", "37440000", "CAXAMBU",
         "MG"}},
    CustomerRow{"COOPERATIVA AGRÍCOLA DO VALE DO TAPIRÍ",
                false,
                "443322110009",
                "250.019.887",
                "(47) 3336-4000",
                {"RODOVIA BR 470, KM 140", nullptr, "PASSO MANSO", "89160000", "RIO DO SUL", "SC"}},
    CustomerRow{"ZONA NORTE IMPORTAÇÃO E EXPORTAÇÃO LTDA",
                false,
                "778899000001",
                "04.123.456-7",
                "(92) 3633-5000",
                {"AVENIDA EDUARDO RIBEIRO, 620", nullptr, "CENTRO", "69010001", "MANAUS", "AM"}},
    CustomerRow{"RESTAURANTE \"CANTINHO D’ALÉM–MAR\" <MATRIZ> & FILHOS",
                false,
                "101010100001",
                "110.110.110.110",
                "(11) 5055-1212",
                {"RUA DO OUVIDOR, 10 “FUNDOS”", nullptr, "CENTRO", "01005010", "SÃO PAULO", "SP"}},
    CustomerRow{"GRÁFICA E EDITORA ÊXITO LTDA ME",
                false,
                "202020200001",
                "117.200.300.400",
                "(11) 3105-9090",
                {"RUA CONSELHEIRO CRISPINIANO, 29", "2º ANDAR", "REPÚBLICA", "01037001",
                 "SÃO PAULO", "SP"}},
};

constexpr std::array carriers = {
    CarrierRow{"TRANSPORTADORA RÁPIDO IPÊ-ROXO LTDA", "61223344000155", "RODOVIA ANHANGUERA, KM 15",
               "SÃO PAULO", "SP", "108.900.123.110", "BXR-4521", "SP"},
    CarrierRow{"EXPRESSO CORAÇÃO DE MINAS TRANSPORTES RODOVIÁRIOS DE CARGAS LTDA", "01987654000132",
               "AVENIDA BRASIL, 900", "CONTAGEM", "MG", "186.445.001.0020", "GKQ-0097", "MG"},
    CarrierRow{"CARRETEIRO AUTÔNOMO SEBASTIÃO", "ISENTO", nullptr, "LAGES", "SC", "ISENTO",
               "MDB-7710", "SC"},
    CarrierRow{"O MESMO", nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr},
};

constexpr const char* reduced = "BASE DE CÁLCULO REDUZIDA CONF. ART. 51 DO ANEXO II DO RICMS";
constexpr const char* taxWithheldText =
    "ICMS RETIDO POR SUBSTITUIÇÃO TRIBUTÁRIA - ART. 313 DO RICMS";
constexpr const char* taxExemptText = "ISENTO DE ICMS CONF. ART. 8 DO ANEXO I DO RICMS";
constexpr const char* imported = "MERCADORIA IMPORTADA - IPI RECOLHIDO NO DESEMBARAÇO ADUANEIRO";
constexpr const char* deferred = "ICMS DIFERIDO PARA A SAÍDA SEGUINTE";

constexpr std::array products = {
    ProductRow{"1001", "PARAFUSO SEXTAVADO ZINCADO 1/4\" X 2\"", "CT", "73181500", 850, 4250,
               Tax::Plain, false, nullptr},
    ProductRow{"1002", "PORCA SEXTAVADA 1/4\"", "CT", "73181600", 320, 1890, Tax::Plain, false,
               nullptr},
    ProductRow{"1003", "FECHADURA EXTERNA INOX COM MAÇANETA", "PC", "83014000", 1200, 8990,
               Tax::Plain, false, nullptr},
    ProductRow{"1004", "DOBRADIÇA DE LATÃO 3\"", "PAR", "83021000", 240, 1275, Tax::Reduced, false,
               reduced},
    ProductRow{"1005", "TINTA ACRÍLICA FOSCA BRANCO GELO 18 L", "LT", "32091010", 24500, 18900,
               Tax::Withheld, false, taxWithheldText},
    ProductRow{"1006", "CIMENTO PORTLAND CP II 50 KG", "SC", "25232910", 50000, 2480, Tax::Withheld,
               false, taxWithheldText},
    ProductRow{"1007", "PREGO 18 X 27 COM CABEÇA", "KG", "73170090", 1000, 1240, Tax::Plain, true,
               nullptr},
    ProductRow{"1008", "ARAME GALVANIZADO Nº 18", "KG", "72172010", 1000, 1560, Tax::Plain, true,
               nullptr},
    ProductRow{"1009", "FURADEIRA DE IMPACTO 1/2\" 650 W 220 V", "PC", "84672100", 2300, 32990,
               Tax::Imported, false, imported},
    ProductRow{"1010", "SERRA MÁRMORE 4.3/8\" 1.300 W PROFISSIONAL COM MALETA E DOIS DISCOS", "PC",
               "84672200", 3400, 41950, Tax::Imported, false, imported},
    ProductRow{"1011", "MANGUEIRA DE JARDIM SILICONE 30 M", "RL", "39173900", 3900, 7450,
               Tax::Plain, false, nullptr},
    ProductRow{"1012", "SEMENTE DE MILHO HÍBRIDO", "KG", "10051000", 1000, 2200, Tax::Exempt, true,
               taxExemptText},
    ProductRow{"1013", "MUDA DE LARANJEIRA", "UN", "06022000", 1500, 1450, Tax::Exempt, false,
               deferred},
    ProductRow{"1014", "TORNEIRA DE BÓIA 3/4\"", "PC", "84818019", 180, 1990, Tax::Plain, false,
               nullptr},
    ProductRow{"1015", "LÂMPADA FLUORESCENTE COMPACTA 15 W", "PC", "85393100", 90, 990,
               Tax::Withheld, false, taxWithheldText},
    ProductRow{"1016", "CABO FLEXÍVEL 2,5 MM² AZUL 100 M", "RL", "85444900", 3100, 11900,
               Tax::Reduced, false, reduced},
    ProductRow{"1017", "CALHA GALVANIZADA CORTE 33", "M", "73089090", 1400, 3480, Tax::Plain, true,
               nullptr},
    ProductRow{"1018", "ENXADA LARGA 2,5 LIBRAS SEM CABO", "PC", "82013000", 1150, 2390, Tax::Plain,
               false, nullptr},
    ProductRow{"1019", "CARRINHO DE MÃO CAÇAMBA PLÁSTICA", "PC", "87168000", 14000, 15900,
               Tax::Plain, false, nullptr},
    ProductRow{"1020", "LUVA DE RASPA CANO CURTO", "PAR", "42032900", 160, 1190, Tax::Plain, false,
               nullptr},
};

constexpr std::array services = {
    ServiceRow{"9001", "MONTAGEM E INSTALAÇÃO DE EQUIPAMENTO NO LOCAL", 500, 48000},
    ServiceRow{"9002", "VISITA TÉCNICA", 500, 12500},
    ServiceRow{"9003", "AFINAÇÃO E CALIBRAÇÃO DE FURADEIRAS COM EMISSÃO DE CERTIFICADO", 300, 7850},
    ServiceRow{"9004", "LOCAÇÃO DE ANDAIME, POR DIA", 200, 3520},
    ServiceRow{"9005", "TREINAMENTO DE OPERADORES", 200, 60000},
    ServiceRow{"9006", "REPARO EM GARANTIA ESTENDIDA", 500, 9999},
    ServiceRow{"9007", "AFIAÇÃO DE DISCOS DE SERRA", 300, 1805},
    ServiceRow{"9008", "CORTE E DOBRA DE CHAPAS SOB MEDIDA", 500, 15025},
};

}  // namespace

std::span<const CustomerRow> customerRows() {
    return customers;
}
std::span<const CarrierRow> carrierRows() {
    return carriers;
}
std::span<const ProductRow> productRows() {
    return products;
}
std::span<const ServiceRow> serviceRows() {
    return services;
}

}  // namespace tarn::practice
