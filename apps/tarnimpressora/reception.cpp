#include "apps/tarnimpressora/reception.h"

#include <QDir>
#include <QHostAddress>

namespace tarn::printer {

QString Reception::open(const Options& options, bool patient) {
    if (options.port) {
        if (QString wrong = listen(options); !wrong.isEmpty()) {
            return wrong;
        }
    }
    return options.folder.empty() ? QString() : watch(options, patient);
}

QString Reception::listen(const Options& options) {
    const QHostAddress address(QString::fromStdString(options.address));
    if (address.isNull()) {
        return QStringLiteral("--escutar pede um endereço IP, como 127.0.0.1 ou 0.0.0.0.");
    }
    server_ = std::make_unique<dotmatrix::JobServer>(intake_);
    if (!server_->listen(address, *options.port)) {
        const QString why = server_->errorString();
        server_.reset();
        return QStringLiteral(
                   "não foi possível receber em %1, porta %2 (%3). Outro programa pode "
                   "estar usando a porta; escolha outra com --porta.")
            .arg(address.toString())
            .arg(*options.port)
            .arg(why);
    }
    places_ = QStringLiteral("Recebendo em %1, porta %2")
                  .arg(address.toString())
                  .arg(server_->serverPort());
    return {};
}

QString Reception::watch(const Options& options, bool patient) {
    const QString folder = QString::fromStdString(options.folder);
    const bool there = QDir().mkpath(folder);
    if (!there && !patient) {
        return QStringLiteral(
                   "não há pasta \"%1\", nem foi possível fazê-la. Confira o nome e a permissão.")
            .arg(folder);
    }
    folder_ = std::make_unique<dotmatrix::FolderWatch>(intake_, folder);
    const QString place = there ? QStringLiteral("da pasta %1").arg(folder)
                                : QStringLiteral("da pasta %1, que ainda não existe").arg(folder);
    places_ += (places_.isEmpty() ? QStringLiteral("Imprimindo ") : QStringLiteral(" e ")) + place;
    return {};
}

}  // namespace tarn::printer
