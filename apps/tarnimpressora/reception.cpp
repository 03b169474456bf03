#include "apps/tarnimpressora/reception.h"

#include <QDir>
#include <QFile>
#include <QHostAddress>

namespace tarn::printer {

QString Reception::open(const Options& options) {
    if (options.port) {
        if (QString wrong = listen(options); !wrong.isEmpty()) {
            return wrong;
        }
    }
    return options.folder.empty() ? QString() : watch(options);
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

QString Reception::watch(const Options& options) {
    const QString folder = QFile::decodeName(options.folder.c_str());
    if (!QDir(folder).exists()) {
        return QStringLiteral("não há pasta \"%1\". Confira o nome e a permissão de leitura.")
            .arg(folder);
    }
    folder_ = std::make_unique<dotmatrix::FolderWatch>(intake_, folder);
    places_ += places_.isEmpty() ? QStringLiteral("Imprimindo da pasta %1").arg(folder)
                                 : QStringLiteral(" e da pasta %1").arg(folder);
    return {};
}

}  // namespace tarn::printer
