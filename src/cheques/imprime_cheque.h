// One bank cheque, pre-printed by the bank, in a dot-matrix printer: only what varies
// is sent, each field placed by blanks and line ends of the condensed pitch.
#pragma once

#include <cstdint>
#include <string_view>

namespace tarn {

class RawChannel;
struct Environment;

inline constexpr std::int16_t chequeBank33 = 33;

// Official code of a bank, such as "033", as a 16-bit integer. Raises TypeMismatch
// for what is no number, Overflow for what doesn't fit.
std::int16_t bankCode(std::string_view nrOfiBan);

struct ChequeData {
    std::int16_t nNr_Ofi_Ban = 0;         // official code; 33 has a layout of its own
    std::string_view sValor = {};         // as the field shows it, such as 1.234,56
    std::string_view sFavorecido = {};    // in capitals; may be empty
    std::string_view sDataDeposito = {};  // dd/mm/yyyy
    std::string_view sNmMun = {};         // town of the establishment
};

// What the bank's form is called: "Cheque_33" or "Cheque", that of all others.
std::string_view chequeFormName(std::int16_t bank);

// Prints it as one raw job. The amount is read and the date taken apart before the job
// opens: TypeMismatch for an amount that is no number, OutOfRange for a date
// of less than three parts. A month outside 1 to 12 has no name.
void ImprimeCheque(Environment& environment, const ChequeData& cheque);
void printCheque(RawChannel& channel, const ChequeData& cheque);

}  // namespace tarn
