// A practice session: starts the practice server, the virtual printer and the desk, and ends
// all of them when the desk is closed.
#include <QApplication>
#include <QMessageBox>
#include <QTimer>
#include <cstdio>
#include <memory>
#include <string>

#include "apps/tarnemissao-treino/notice_window.h"
#include "apps/tarnemissao-treino/session.h"
#include "apps/tarnemissao-treino/session_folder.h"
#include "cli/arguments.h"
#include "cli/command_line.h"
#include "cli/last_word.h"
#include "widgets/look.h"
#include "widgets/opening_display.h"

namespace {

using tarn::practice::NoticeWindow;
using tarn::practice::Session;
using tarn::practice::SessionFolder;

constexpr char noDisplay[] =
    "tarnemissao-treino: não há tela em que abrir o treino. Entre numa sessão gráfica e abra o "
    "programa de lá; as variáveis DISPLAY e WAYLAND_DISPLAY dizem qual é a tela.\n";

// On the error output too: from the desktop's menu nobody sees that, from a terminal it stays.
void complain(const QString& text) {
    std::fprintf(stderr, "tarnemissao-treino: %s\n", qPrintable(text));
    QMessageBox box(QMessageBox::Critical, QStringLiteral("Treino do TarnEmissao"), text,
                    QMessageBox::Ok);
    box.setTextFormat(Qt::PlainText);
    box.setTextInteractionFlags(Qt::TextSelectableByMouse);
    box.exec();
}

int practise(const SessionFolder& folder) {
    Session session(folder);
    NoticeWindow notice(folder);
    QObject::connect(&notice, &NoticeWindow::endWanted, &session, &Session::end);
    QObject::connect(&session, &Session::deskOpened, &notice, [&] {
        std::printf("%s\n", qPrintable(noticeText(folder)));
        std::fflush(stdout);
        notice.show();
    });
    QObject::connect(&session, &Session::troubled, &notice, complain);
    QObject::connect(&session, &Session::ended, &notice, [&](int status, const QString& trouble) {
        notice.hide();
        if (!trouble.isEmpty()) {
            complain(trouble);
        }
        QCoreApplication::exit(status);
    });
    QTimer::singleShot(0, &session, &Session::start);
    return QApplication::exec();
}

}  // namespace

int main(int argc, char** argv) {
    const tarn::cli::Arguments arguments(argc, argv);
    std::string path;
    tarn::cli::CommandLine line(
        "tarnemissao-treino",
        "Abre a mesa de emissão para treino, com dados inventados e impressora virtual.");
    line.text("--pasta", path,
              "pasta do papel e dos dados do treino; o que o treino anterior deixou nela é apagado "
              "(usual: ~/.local/share/tarnemissao/treino)")
        .called("PASTA");
    line.footer(
        "\nFim do programa: o da mesa; 1 quando o treino não abriu ou um programa dele parou.");
    if (const auto ending = line.read(arguments.count(), arguments.values())) {
        return tarn::cli::sayLast(*ending);
    }
    auto opening = std::make_unique<tarn::OpeningDisplay>(noDisplay);
    QApplication program(argc, argv);
    opening.reset();
    QApplication::setApplicationName(QStringLiteral("TarnEmissao (treino)"));
    QApplication::setQuitOnLastWindowClosed(false);
    tarn::applyLook(program);
    SessionFolder folder(QString::fromStdString(path));
    if (const QString obstacle = folder.open(); !obstacle.isEmpty()) {
        complain(obstacle);
        return tarn::cli::statusUsage;
    }
    return practise(folder);
}
