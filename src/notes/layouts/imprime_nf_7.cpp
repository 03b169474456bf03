// Form of company 7: neither parcels nor carrier, and two fixed texts in the box of
// the legal text. The date of issue is there twice.
#include "notes/form_check.h"
#include "notes/form_rows.h"
#include "notes/layouts/layouts.h"

namespace tarn::notes {
namespace {

using enum Source;

constexpr Step steps[] = {
    Control{"\x1B\x0F\x0F"},
    Control{"\x1B\x17", 1},
    row(1, bare(NoteNumber, 132)),
    row(6, mark(94, 114)),
    row(3, left(NatOper, 2, 41), as(Rule::AsText, left(CFOP, 46, 7))),
    row(2, left(RAZAO, 2, 83), left(CGC_CPF, 88, 30), left(DT_EMS_NF, 126, 10)),
    row(2, left(ENDERECO, 2, 66), left(BAIRRO, 71, 29), left(CEP, 103, 15),
        left(DT_EMS_NF, 126, 10)),
    row(4, left(MUNICIPIO, 2, 33), left(FONEFAX, 38, 42), left(UF, 83, 2), left(INSC_EST, 88, 30)),

    Items{.line =
              row(1, left(CD_PRO, 2, 7), left(DESCRICAO, 10, 66), left(CL_FISCAL, 77, 2),
                  left(SIT_TRI, 80, 2), left(UNIDADE, 84, 4), as(Rule::General, right(QTDE, 89, 5)),
                  right(VALOR_UN, 95, 15), right(LineTotal, 114, 16), left(ICMS, 134, 4)),
          .productsOnly = false,
          .legalTexts = false,
          .constant = 1,
          .lineEnds = 1},

    row(2, right(VALOR_BASE_ICMS, 2, 27), right(VALOR_ICMS, 32, 21), right(VALOR_ICMS_RTD, 55, 27),
        right(VALOR_ICMS_RTD, 85, 20), right(VALOR_TOTAL, 107, 30)),
    row(13, right(VALOR_FRETE, 2, 27), right(VALOR_SEGURO, 32, 21), right(VALOR_DES_ASC, 55, 27),
        right(VALOR_TOT_IPI, 85, 20), right(VALOR_TOT_NF, 107, 30)),

    row(1, text("ESTE DOCUMENTO NÃO TRANSFERE CREDITO DE ICMS", 2)),
    row(5, text("ARQUIVO 10 - ANEXO XX DO RICMS/2000", 2)),
    row(4, bare(NoteNumber, 127)),
};

constexpr Form form{.setUp = "", .length = 46, .steps = steps};
static_assert(flawOf(form) == Flaw::None);

}  // namespace

constinit const Layout imprimeNF_7{.name = "ImprimeNF_7", .form = &form};

}  // namespace tarn::notes
