// The modal alert dialog as the billing flows see it.
#pragma once

namespace tarn {

// How frmMensagemAlerta shows itself: an observation to confirm (cmdOk and
// cmdCancelar), or a stock notice with nothing to decide (cmdVoltar alone).
enum class AlertMode { Confirm, OutOfStock };

class AlertDialog {
public:
    virtual ~AlertDialog() = default;
    // Shows Sessao::TextoMensagem and returns when the dialog has closed;
    // Sessao::ConfirmaMensagem is then "S", "N" or as the caller left it.
    virtual void show(AlertMode mode) = 0;
};

}  // namespace tarn
