#include "apps/tarnemissao-treino/session.h"

#include <QUrl>

namespace tarn::practice {
namespace {

// What the server says when it serves, before its address.
constexpr QLatin1StringView serving("Servindo em ");
constexpr QLatin1StringView serverLog("servidor.txt");
constexpr QLatin1StringView printerLog("impressora.txt");
constexpr QLatin1StringView deskLog("mesa.txt");

}  // namespace

Session::Session(const SessionFolder& folder)
    : folder_(folder),
      server_(QStringLiteral("tarnservidor"), folder.file(serverLog), this),
      printer_(QStringLiteral("tarnimpressora"), folder.file(printerLog), this),
      desk_(QStringLiteral("tarnemissao"), folder.file(deskLog), this),
      paper_(folder, this) {
    connectPieces();
}

void Session::connectPieces() {
    connect(&server_, &Piece::said, this, &Session::serverSaid);
    connect(&server_, &Piece::ended, this, [this](int status) {
        finish(status == 0 ? 1 : status, troubleWith(server_, serverLog));
    });
    // A window that the user closed stays closed: the paper is in the folder all the same.
    connect(&printer_, &Piece::ended, this, [this](int status, bool broken) {
        if (broken || status != 0) {
            emit troubled(QStringLiteral("A janela da impressora virtual parou. O treino continua, "
                                         "e o papel fica na pasta %1.")
                              .arg(folder_.path()));
        }
    });
    connect(&desk_, &Piece::ended, this, [this](int status, bool broken) {
        finish(broken ? 1 : status,
               broken || status != 0 ? troubleWith(desk_, deskLog) : QString());
    });
}

void Session::start() {
    server_.start({QStringLiteral("--porta"), QStringLiteral("0"), QStringLiteral("--banco"),
                   folder_.file(QStringLiteral("treino.db"))});
}

// A server that broke opens at the same port, with the same database, and says so again.
void Session::serverSaid(const QString& line) {
    if (line.startsWith(serving) && !desk_.isRunning()) {
        openDesk(line.sliced(serving.size()));
    }
}

void Session::openDesk(const QString& address) {
    server_.startAgainWith({QStringLiteral("--porta"), QString::number(QUrl(address).port()),
                            QStringLiteral("--banco"), folder_.file(QStringLiteral("treino.db"))});
    printer_.start({QStringLiteral("--pasta"), folder_.path()});
    desk_.start({QStringLiteral("--servidor"), address, QStringLiteral("--impressora-virtual"),
                 folder_.path()});
    emit deskOpened();
}

void Session::end() {
    finish(0, QString());
}

void Session::finish(int status, const QString& trouble) {
    if (finished_) {
        return;
    }
    finished_ = true;
    for (Piece* piece : {&desk_, &printer_, &server_}) {
        piece->stop();
    }
    paper_.finish();
    emit ended(status, trouble);
}

QString Session::troubleWith(const Piece& piece, const QString& log) const {
    return QStringLiteral(
               "O treino terminou porque um programa dele (%1) parou. O que ele disse "
               "está em %2. Abra o treino de novo; se acontecer outra vez, mande esse "
               "arquivo ao suporte.")
        .arg(piece.program(), folder_.file(log));
}

}  // namespace tarn::practice
