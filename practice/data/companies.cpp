#include "practice/data/companies.h"

#include <algorithm>
#include <array>

namespace tarn::practice {
namespace {

// Item lines are those of a 66-line sheet that the form's other blocks leave.
// Forms are named after the first company, or the establishment, that uses them.
constexpr Form form1361{.itemLines = 13, .parcelLimit = 9};
constexpr Form form7{.itemLines = 20, .parcelLimit = 0};
constexpr Form form3381{.itemLines = 20, .parcelLimit = 9, .serviceLines = 6};
constexpr Form form3341{.itemLines = 19, .parcelLimit = 9, .serviceLines = 6};
constexpr Form form3383{.itemLines = 23, .parcelLimit = 9};
constexpr Form form2041{.itemLines = 16, .parcelLimit = 9};
constexpr Form form2321{.itemLines = 21, .parcelLimit = 9};
constexpr Form form1581{.itemLines = 17, .parcelLimit = 6};
constexpr Form form2801{.itemLines = 21, .parcelLimit = 6};
constexpr Form form3621{.itemLines = 17, .parcelLimit = 0};
constexpr Form form2421{.itemLines = 13, .parcelLimit = 0};
constexpr Form form1521{.itemLines = 15, .parcelLimit = 12};
constexpr Form form821{.itemLines = 19, .parcelLimit = 4, .parcelsInPairs = true};
constexpr Form form3301{.itemLines = 20, .parcelLimit = 0};
constexpr Form form3881{.itemLines = 17, .parcelLimit = 3};
constexpr Form form6001{.itemLines = 22, .parcelLimit = 3};
constexpr Form form3081{.itemLines = 15, .parcelLimit = 4, .parcelsInPairs = true};
constexpr Form form5282{.itemLines = 18, .parcelLimit = 12};
constexpr Form form3601{.itemLines = 19, .parcelLimit = 12};
constexpr Form form2541{.itemLines = 36, .parcelLimit = 4};  // a drawn page, not lines
constexpr Form form3681{.itemLines = 19, .parcelLimit = 9, .taxCredit = true};
constexpr Form form4621{.itemLines = 28, .parcelLimit = 6};
constexpr Form formDefault{.itemLines = 12, .parcelLimit = 4, .parcelsInPairs = true};

constexpr std::array companies = {
    CompanyRow{1361, "Comércio de Ferragens Três Irmãos Ltda", "DADOS1361"},
    CompanyRow{141, "Distribuidora São José de Alimentos S/A", "DADOS141"},
    CompanyRow{761, "Indústria de Confecções Açucena Ltda", "DADOS761"},
    CompanyRow{7, "Papelaria e Artes Gráficas Ipê-Amarelo Ltda", "DADOS7"},
    CompanyRow{2161, "Equipamentos e Assistência Técnica Jequitibá Ltda", "DADOS2161", true},
    CompanyRow{2041, "Metalúrgica Serra do Cipreste Ltda", "DADOS2041"},
    CompanyRow{2321, "Comercial Araponga de Ferramentas Ltda", "DADOS2321"},
    CompanyRow{1581, "Atacado Pedra Lascada Ltda", "DADOS1581"},
    CompanyRow{2801, "Madeireira Cumaru Dourado Ltda", "DADOS2801"},
    CompanyRow{2421, "Distribuidora Sabiá-Laranjeira Ltda", "DADOS2421"},
    CompanyRow{1521, "Casa de Materiais Vila Ametista Ltda", "DADOS1521"},
    CompanyRow{821, "Indústria de Esquadrias Lua Crescente Ltda", "DADOS821"},
    CompanyRow{3301, "Ferragista Doze Pinheiros Ltda", "DADOS3301"},
    CompanyRow{3881, "Hidráulica Fonte Serena Ltda", "DADOS3881"},
    CompanyRow{3081, "Tintas e Vernizes Arco-da-Velha Ltda", "DADOS3081"},
    CompanyRow{3141, "Vidraçaria Água Mansa Ltda", "DADOS3141"},
    CompanyRow{3601, "Instalações Elétricas Pirilampo Ltda", "DADOS3601", true},
    CompanyRow{2541, "Jardinagem Folha Miúda Ltda", "DADOS2541"},
    CompanyRow{3681, "Serralheria Irmãs Falcão Ltda ME", "DADOS3681"},
    CompanyRow{541, "Armarinhos Novelo Azul Ltda ME", "DADOS541"},
    CompanyRow{4621, "Couros e Selaria Trilha Antiga Ltda", "DADOS4621", true},
    CompanyRow{4901, "Armazém Geral Sete Colinas Ltda", "DADOS4901"},
};

constexpr std::array establishments = {
    EstablishmentRow{1361, 1361, "Três Irmãos - Matriz São Paulo", "MATRIZ SP", "123456780001",
                     "110.042.490.114", "Rua Voluntários da Pátria", "1250", "Santana", "02010000",
                     "São Paulo", "SP", "São Paulo", form1361},
    EstablishmentRow{1362, 1361, "Três Irmãos - Filial Campinas", "FILIAL CPS", "123456780002",
                     "244.091.280.110", "Avenida Francisco Glicério", "980", "Centro", "13012100",
                     "Campinas", "SP", "São Paulo", form1361},
    EstablishmentRow{1363, 1361, "Três Irmãos - Filial Florianópolis", "FILIAL FLN", "123456780003",
                     "254.118.002", "Rua Bocaiúva", "77", "Centro", "88015530", "Florianópolis",
                     "SC", "Santa Catarina", form1361},
    EstablishmentRow{142, 141, "São José Alimentos - Matriz", "SÃO JOSÉ", "045671230001",
                     "062.307.904.0081", "Avenida do Contorno", "4520", "Funcionários", "30110090",
                     "Belo Horizonte", "MG", "Minas Gerais", form1361},
    EstablishmentRow{143, 141, "São José Alimentos - Depósito Contagem", "DEP CONTAGEM",
                     "045671230002", "186.307.904.0162", "Via Expressa", "1001", "Cinco",
                     "32145900", "Contagem", "MG", "Minas Gerais", form1361},
    EstablishmentRow{762, 761, "Açucena Confecções - Fábrica", "FÁBRICA", "087654320001",
                     "095.220.118", "Rua Doutor Flores", "310", "Centro Histórico", "90020122",
                     "Porto Alegre", "RS", "Rio Grande do Sul", form1361},
    EstablishmentRow{763, 761, "Açucena Confecções - Loja Caxias", "LOJA CAXIAS", "087654320002",
                     "029.551.070", "Avenida Júlio de Castilhos", "2044", "Centro", "95010003",
                     "Caxias do Sul", "RS", "Rio Grande do Sul", form1361},
    EstablishmentRow{8, 7, "Ipê-Amarelo - Loja", "IPÊ-AMARELO", "201143170001", "101.22310-44",
                     "Rua XV de Novembro", "1404", "Centro", "80060000", "Curitiba", "PR", "Paraná",
                     form7},
    EstablishmentRow{3381, 2161, "Jequitibá - Matriz São Paulo", "JEQ SÃO PAULO", "232848280001",
                     "111.330.421.117", "Rua do Gasômetro", "318", "Brás", "03004000", "São Paulo",
                     "SP", "São Paulo", form3381},
    EstablishmentRow{3382, 2161, "Jequitibá - Filial Ribeirão Preto", "JEQ RIBEIRÃO",
                     "232848280002", "582.114.007.118", "Rua São Sebastião", "1055", "Centro",
                     "14015040", "Ribeirão Preto", "SP", "São Paulo", form3381},
    EstablishmentRow{3384, 2161, "Jequitibá - Filial Sorocaba", "JEQ SOROCABA", "232848280003",
                     "669.218.440.113", "Rua da Penha", "620", "Centro", "18010002", "Sorocaba",
                     "SP", "São Paulo", form3381},
    EstablishmentRow{3385, 2161, "Jequitibá - Filial Bauru", "JEQ BAURU", "232848280004",
                     "209.551.328.110", "Rua Batista de Carvalho", "433", "Centro", "17010001",
                     "Bauru", "SP", "São Paulo", form3381},
    EstablishmentRow{3341, 2161, "Jequitibá - Filial Rio de Janeiro", "JEQ RIO", "232848280005",
                     "77.123.450", "Rua do Senado", "87", "Centro", "20231000", "Rio de Janeiro",
                     "RJ", "Rio de Janeiro", form3341},
    EstablishmentRow{3383, 2161, "Jequitibá - Filial Vitória", "JEQ VITÓRIA", "232848280006",
                     "082.113.45-0", "Avenida Jerônimo Monteiro", "240", "Centro", "29010002",
                     "Vitória", "ES", "Espírito Santo", form3383},
    EstablishmentRow{3386, 2161, "Jequitibá - Depósito Niterói", "JEQ NITERÓI", "232848280007",
                     "77.123.531", "Rua da Conceição", "19", "Centro", "24020082", "Niterói", "RJ",
                     "Rio de Janeiro", form3381},
    EstablishmentRow{2042, 2041, "Serra do Cipreste - Fábrica", "CIPRESTE", "264553390001",
                     "251.440.318", "Rua Dona Francisca", "8300", "Zona Industrial Norte",
                     "89219600", "Joinville", "SC", "Santa Catarina", form2041},
    EstablishmentRow{2322, 2321, "Araponga Ferramentas - Loja", "ARAPONGA", "296258500001",
                     "10.223.118-4", "Avenida Anhangüera", "5110", "Setor Central", "74043011",
                     "Goiânia", "GO", "Goiás", form2321},
    EstablishmentRow{1582, 1581, "Pedra Lascada - Atacado", "PEDRA LASCADA", "327963610001",
                     "048.220.117", "Avenida Frederico Pontes", "102", "Calçada", "40460001",
                     "Salvador", "BA", "Bahia", form1581},
    EstablishmentRow{2802, 2801, "Cumaru Dourado - Pátio", "CUMARU", "359668720001", "15.201.332-9",
                     "Rodovia Arthur Bernardes", "4020", "Telégrafo", "66115000", "Belém", "PA",
                     "Pará", form2801},
    EstablishmentRow{3621, 2421, "Sabiá-Laranjeira - Matriz Londrina", "SABIÁ LONDRINA",
                     "391373830001", "601.17722-30", "Avenida Tiradentes", "2280",
                     "Jardim Shangri-lá", "86070000", "Londrina", "PR", "Paraná", form3621},
    EstablishmentRow{2422, 2421, "Sabiá-Laranjeira - Filial Maringá", "SABIÁ MARINGÁ",
                     "391373830002", "701.30914-15", "Avenida Mauá", "1190", "Zona 3", "87050020",
                     "Maringá", "PR", "Paraná", form2421},
    EstablishmentRow{1522, 1521, "Vila Ametista - Loja", "AMETISTA", "423078940001",
                     "18.1.001.0234567-8", "Rua da Palma", "250", "Santo Antônio", "50010460",
                     "Recife", "PE", "Pernambuco", form1521},
    EstablishmentRow{822, 821, "Lua Crescente - Fábrica", "LUA CRESCENTE", "454784050001",
                     "336.712.090.115", "Avenida Guinle", "700", "Cumbica", "07221070", "Guarulhos",
                     "SP", "São Paulo", form821},
    EstablishmentRow{3302, 3301, "Doze Pinheiros - Loja", "DOZE PINHEIROS", "486489160001",
                     "109.033.214", "Rua do Acampamento", "411", "Centro", "97050001",
                     "Santa Maria", "RS", "Rio Grande do Sul", form3301},
    EstablishmentRow{6001, 3881, "Fonte Serena - Loja Uberlândia", "FONTE UDI", "518194270001",
                     "702.418.330.0045", "Avenida Floriano Peixoto", "615", "Centro", "38400102",
                     "Uberlândia", "MG", "Minas Gerais", form6001},
    EstablishmentRow{3882, 3881, "Fonte Serena - Loja Juiz de Fora", "FONTE JF", "518194270002",
                     "702.418.330.0126", "Rua Halfeld", "820", "Centro", "36010003", "Juiz de Fora",
                     "MG", "Minas Gerais", form3881},
    EstablishmentRow{3082, 3081, "Arco-da-Velha - Loja", "ARCO-DA-VELHA", "549899380001",
                     "06.311.872-5", "Rua Floriano Peixoto", "930", "Centro", "60025130",
                     "Fortaleza", "CE", "Ceará", form3081},
    EstablishmentRow{3142, 3141, "Água Mansa - Oficina", "ÁGUA MANSA", "581604490001",
                     "20.044.318-7", "Avenida Rio Branco", "571", "Cidade Alta", "59025002",
                     "Natal", "RN", "Rio Grande do Norte", form3081},
    EstablishmentRow{3602, 3601, "Pirilampo - Loja e Obras", "PIRILAMPO", "613309600001",
                     "07.322.418/001-55", "SIA Trecho 3, Lote", "1240", "Guará", "71200030",
                     "Brasília", "DF", "Distrito Federal", form3601},
    EstablishmentRow{2542, 2541, "Folha Miúda - Viveiro", "FOLHA MIÚDA", "645014710001",
                     "190.220.341.118", "Estrada dos Pires", "55", "Caetetuba", "12951310",
                     "Atibaia", "SP", "São Paulo", form2541},
    EstablishmentRow{6001, 2541, "Folha Miúda - Loja Bragança", "FOLHA BRAGANÇA", "645014710002",
                     "225.310.448.110", "Rua Coronel Teófilo Leme", "1313", "Centro", "12900002",
                     "Bragança Paulista", "SP", "São Paulo", form6001},
    EstablishmentRow{3682, 3681, "Irmãs Falcão - Serralheria", "IRMÃS FALCÃO", "676719820001",
                     "254.771.309", "Rua Tijucas", "202", "Centro", "88301101", "Itajaí", "SC",
                     "Santa Catarina", form3681},
    EstablishmentRow{542, 541, "Novelo Azul - Loja", "NOVELO AZUL", "708424930001", "253.118.664",
                     "Rua Sete de Setembro", "967", "Centro", "89010201", "Blumenau", "SC",
                     "Santa Catarina", form4621},
    EstablishmentRow{7321, 4621, "Trilha Antiga - Matriz Franca", "TRILHA FRANCA", "740130040001",
                     "310.445.218.119", "Rua General Carneiro", "1480", "Centro", "14400500",
                     "Franca", "SP", "São Paulo", form4621},
    EstablishmentRow{4622, 4621, "Trilha Antiga - Filial Novo Hamburgo", "TRILHA NH",
                     "740130040002", "086.220.417", "Rua Joaquim Nabuco", "904", "Centro",
                     "93310002", "Novo Hamburgo", "RS", "Rio Grande do Sul", form4621},
    EstablishmentRow{4902, 4901, "Sete Colinas - Loja Palhoça", "COLINAS PALHOÇA", "771835150001",
                     "256.330.118", "Rua Barão do Rio Branco", "330", "Centro", "88130100",
                     "Palhoça", "SC", "Santa Catarina", formDefault},
    EstablishmentRow{5281, 4901, "Sete Colinas - Loja Brusque", "COLINAS BRUSQUE", "771835150002",
                     "256.330.207", "Avenida Cônsul Carlos Renaux", "41", "Centro", "88350002",
                     "Brusque", "SC", "Santa Catarina", form3601},
    EstablishmentRow{5282, 4901, "Sete Colinas - Loja Chapecó", "COLINAS CHAPECÓ", "771835150003",
                     "256.330.398", "Avenida Getúlio Vargas", "612", "Centro", "89801000",
                     "Chapecó", "SC", "Santa Catarina", form5282},
    EstablishmentRow{6001, 4901, "Sete Colinas - Loja Lages", "COLINAS LAGES", "771835150004",
                     "256.330.479", "Rua Correia Pinto", "88", "Centro", "88502000", "Lages", "SC",
                     "Santa Catarina", form6001},
};

}  // namespace

std::span<const CompanyRow> companyRows() {
    return companies;
}
std::span<const EstablishmentRow> establishmentRows() {
    return establishments;
}

int companyIndex(int company) {
    return static_cast<int>(std::ranges::find(companies, company, &CompanyRow::id) -
                            companies.begin());
}

int establishmentId(int company, int code) {
    int id = 0;
    for (const EstablishmentRow& row : establishments) {
        ++id;
        if (row.company == company && row.code == code) {
            return id;
        }
    }
    return 0;
}

Branches branchesOf(int company) {
    Branches branches;
    int id = 0;
    for (const EstablishmentRow& row : establishments) {
        ++id;
        if (row.company == company) {
            branches.first = branches.count++ == 0 ? id : branches.first;
        }
    }
    return branches;
}

}  // namespace tarn::practice
