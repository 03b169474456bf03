// The job of a clerk in the real screens, without anybody at the keys. Leaves a picture
// of every step and the printed jobs in a folder.
#include <QCursor>
#include <QDir>
#include <QScreen>
#include <algorithm>
#include <array>
#include <cstdio>

#include "apps/tarnroteiro/cheque_walk.h"
#include "apps/tarnroteiro/collection_walk.h"
#include "apps/tarnroteiro/gestures.h"
#include "apps/tarnroteiro/labels_walk.h"
#include "apps/tarnroteiro/note_walk.h"
#include "apps/tarnroteiro/printer_picture.h"
#include "cli/arguments.h"
#include "cli/command_line.h"
#include "desk/desk_assembly.h"
#include "desk/server_address.h"

namespace tarn {
namespace {

// The desk as a clerk's screen shows it, whatever the size of the screen that is lacking.
constexpr int deskWidth = 1060;
constexpr int deskHeight = 690;

void walkDay(Walk& walk, const WalkLogon& input) {
    walkIssuing(walk);
    walkReprint(walk, input);
    walkCancellation(walk, input);
    walkBills(walk);
    walkSlips(walk);
    walkCheque(walk);
    walkLabels(walk);
}

// Whose user may not issue.
void walkRefusal(Walk& walk, const WalkLogon&) {
    walk.when("MDIMenu", "",
              [](QWidget& window) {
                  openMenu(window, "mnuNF");
                  choose(window, "mnuNF", "mOFT");
              })
        .when("MessageBox", "direito-recusado", accept);
}

void walkSelection(Walk& walk, const WalkLogon&) {
    walkLabelSelection(walk);
}

struct NamedWalk {
    const char* name;
    void (*write)(Walk& walk, const WalkLogon& input);
};
constexpr std::array namedWalks{NamedWalk{"dia", walkDay}, NamedWalk{"recusa", walkRefusal},
                                NamedWalk{"selecao", walkSelection}};

int advance(DeskApplication& program, const WalkLogon& input, const std::string& name) {
    const auto namedWalk = std::ranges::find(namedWalks, name, &NamedWalk::name);
    Options options;
    options.baseUrl = serverAddress(input.server).url;
    options.virtualPrinter = input.folder;
    options.serverReplaced = true;
    options.labelSelection = name == "selecao";
    Desk desk(program, options, printersOf(options));
    Walk walk(QString::fromStdString(input.folder));
    walkLogon(walk, input);
    namedWalk->write(walk, input);
    walk.when("MDIMenu", "fim", [](QWidget& window) { window.close(); });
    QObject::connect(&walk, &Walk::finished, [](const QString& reason) {
        if (!reason.isEmpty()) {
            std::fprintf(stderr, "tarnroteiro: %s.\n", qPrintable(reason));
            QCoreApplication::exit(1);
        }
    });
    // Neither the pointer nor the beat of the cursor is to be on a picture.
    QCursor::setPos(QGuiApplication::primaryScreen()->geometry().bottomRight());
    QApplication::setCursorFlashTime(0);
    desk.menu().resize(deskWidth, deskHeight);
    desk.open();
    walk.start();
    const int status = program.exec();
    if (status == 0 && !walk.complete()) {
        std::fputs("tarnroteiro: a mesa fechou antes do fim do roteiro.\n", stderr);
        return 1;
    }
    return status;
}

}  // namespace
}  // namespace tarn

// The off-screen platform complains of what it can't do; only what ends the walk counts.
static void fatalOnly(QtMsgType kind, const QMessageLogContext&, const QString& text) {
    if (kind == QtFatalMsg) {
        std::fprintf(stderr, "tarnroteiro: %s\n", qPrintable(text));
    }
}

int main(int argc, char** argv) {
    qInstallMessageHandler(fatalOnly);
    const tarn::cli::Arguments arguments(argc, argv);
    tarn::WalkLogon input;
    std::string name = "dia";
    tarn::cli::CommandLine line(
        "tarnroteiro",
        "Percorre o trabalho principal nas telas reais e guarda as imagens e o papel.");
    line.text("--servidor", input.server, "endereço do servidor de treino").called("URL");
    line.text("--saida", input.folder, "pasta das imagens e do papel").called("PASTA").required();
    line.text("--empresa", input.company, "empresa do logon de treino");
    line.text("--usuario", input.user, "usuário do logon de treino");
    // As by text(), whose help would tell the usual one.
    line.value("--senha", "senha do logon de treino",
               [&input](const std::string& text) { input.password = text; });
    line.oneOf("--roteiro", name, {"dia", "recusa", "selecao", "impressora"},
               "dia, recusa (de quem não pode emitir), selecao (de etiquetas) ou impressora (a "
               "janela da impressora virtual com a nota que já está na pasta)");
    if (const auto ending = line.read(arguments.count(), arguments.values())) {
        return tarn::cli::say(*ending);
    }
    if (!QDir().mkpath(QString::fromStdString(input.folder))) {
        std::fprintf(stderr, "tarnroteiro: não foi possível criar a pasta \"%s\".\n",
                     input.folder.c_str());
        return tarn::cli::statusUsage;
    }
    tarn::DeskApplication program(argc, argv);
    if (name == "impressora") {
        return tarn::pictureOfPrinter(input.folder) ? 0 : 1;
    }
    return tarn::advance(program, input, name);
}
