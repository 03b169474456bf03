#include "desk/desk_application.h"

#include "platform/message_boxes.h"
#include "widgets/desk_context.h"
#include "widgets/look.h"

namespace tarn {

DeskApplication::DeskApplication(int& argc, char** argv) : QApplication(argc, argv) {
    setApplicationName(QStringLiteral("TarnEmissao"));
    setQuitOnLastWindowClosed(false);  // the program ends where it says so, nowhere else
    aplicaAparencia(*this);
}

bool DeskApplication::notify(QObject* receiver, QEvent* event) {
    try {
        return QApplication::notify(receiver, event);
    } catch (...) {
        if (!relato_) {
            throw;
        }
        relato_(std::current_exception());
        return false;
    }
}

void relataErro(const DeskContext& desk, const std::exception_ptr& erro) {
    Box box;
    box.icon = BoxIcon::Critical;
    try {
        std::rethrow_exception(erro);
    } catch (const ErroExecucao& conhecido) {
        box.text =
            textoDoRelatorio(conhecido, dynamic_cast<const ErroComNota*>(&conhecido) != nullptr);
    } catch (const std::exception& outro) {
        box.text = std::string(
                       "Aconteceu um erro inesperado e o programa será encerrado. Anote o "
                       "texto abaixo e fale com o suporte.\r\r") +
                   outro.what();
    }
    if (!desk.fim.encerrado()) {
        desk.ambiente.boxes.show(box);
    }
    desk.fim.encerra(statusErroExecucao);
}

}  // namespace tarn
