#include "printer/window/printer_menus.h"

#include "printer/held/hold_view.h"
#include "printer/paper/paper_files.h"
#include "printer/paper/paper_search_bar.h"
#include "printer/paper/paper_view.h"
#include "printer/sheets/sheet_dock.h"
#include "printer/window_commands.h"

namespace tarn::dotmatrix {

namespace {

constexpr double zoomStep = 1.25;

}  // namespace

PrinterMenus::PrinterMenus(QMainWindow& window, PaperView& view, PaperSearchBar& search,
                           PaperFiles& files, HoldView& holding, SheetDock& sheets,
                           const PaintOptions& looks)
    : QObject(&window),
      window_(window),
      commands_(window),
      view_(view),
      search_(search),
      files_(files),
      sheets_(sheets) {
    makeFileMenu(commands_);
    makeEditMenu(commands_);
    makePaperMenu(commands_);
    holding.addMenu(commands_);
    makeViewMenu(commands_, looks);
}

void PrinterMenus::addHelp() {
    makeHelpMenu(commands_);
}

void PrinterMenus::makeHelpMenu(WindowCommands& commands) {
    commands.menu("helpMenu", QStringLiteral("A&juda"));
    commands.add({.name = "about",
                  .text = QStringLiteral("&Sobre a impressora virtual..."),
                  .hint = QStringLiteral("Mostra a versão do programa")},
                 [this] { emit aboutWanted(); });
}

void PrinterMenus::makeFileMenu(WindowCommands& commands) {
    commands.menu("fileMenu", QStringLiteral("&Arquivo"));
    commands.add({.name = "open",
                  .text = QStringLiteral("&Abrir trabalho..."),
                  .keys = QKeySequence::Open,
                  .hint = QStringLiteral("Imprime trabalhos gravados (.prn) neste papel; um PDF "
                                         "aparece como folha solta")},
                 [this] { emit openWanted(); });
    commands.separate();
    commands.add({.name = "savePdf",
                  .text = QStringLiteral("Salvar &PDF..."),
                  .keys = QKeySequence::Save,
                  .hint = QStringLiteral("Grava todo o papel em PDF, uma página por formulário"),
                  .inTools = true},
                 [this] { files_.savePdf(); });
    commands.add({.name = "savePng",
                  .text = QStringLiteral("Salvar &figuras (PNG)..."),
                  .keys = QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S),
                  .hint = QStringLiteral("Grava todo o papel em figuras, uma por formulário")},
                 [this] { files_.savePng(); });
    commands.add({.name = "saveText",
                  .text = QStringLiteral("Salvar &texto..."),
                  .hint = QStringLiteral("Grava todo o papel como texto")},
                 [this] { files_.saveText(); });
    commands.add({.name = "print",
                  .text = QStringLiteral("&Imprimir..."),
                  .keys = QKeySequence::Print,
                  .hint = QStringLiteral("Imprime o papel em uma impressora da máquina"),
                  .inTools = true},
                 [this] { files_.printOut(); });
    commands.separate();
    commands.add({.name = "quit",
                  .text = QStringLiteral("&Sair"),
                  .keys = QKeySequence(Qt::CTRL | Qt::Key_Q)},
                 [this] { window_.close(); });
}

void PrinterMenus::makeEditMenu(WindowCommands& commands) {
    commands.menu("editMenu", QStringLiteral("&Editar"));
    auto* copy =
        commands.add({.name = "copy",
                      .text = QStringLiteral("&Copiar"),
                      .keys = QKeySequence::Copy,
                      .hint = QStringLiteral("Copia como texto a região marcada com o mouse"),
                      .inTools = true},
                     [this] { emit copyWanted(); });
    copy->setEnabled(false);
    connect(&view_, &PaperView::selected, copy, &QAction::setEnabled);
    commands.add({.name = "selectForm",
                  .text = QStringLiteral("&Marcar o formulário"),
                  .keys = QKeySequence::SelectAll,
                  .hint = QStringLiteral("Marca o formulário que está no meio da janela")},
                 [this] { emit selectWanted(); });
    commands.separate();
    commands.add({.name = "find",
                  .text = QStringLiteral("&Localizar..."),
                  .keys = QKeySequence::Find,
                  .hint = QStringLiteral("Procura um texto no papel"),
                  .inTools = true},
                 [this] { search_.find(); });
    commands.add({.name = "findNext",
                  .text = QStringLiteral("&Próxima ocorrência"),
                  .keys = QKeySequence(Qt::Key_F3),
                  .hint = QStringLiteral("Procura dali para baixo")},
                 [this] { search_.findNext(); });
    commands.add({.name = "findPrevious",
                  .text = QStringLiteral("Ocorrência &anterior"),
                  .keys = QKeySequence(Qt::SHIFT | Qt::Key_F3),
                  .hint = QStringLiteral("Procura dali para cima")},
                 [this] { search_.findPrevious(); });
}

void PrinterMenus::makePaperMenu(WindowCommands& commands) {
    commands.menu("paperMenu", QStringLiteral("&Papel"));
    commands.add({.name = "previousJob",
                  .text = QStringLiteral("Trabalho &anterior"),
                  .keys = QKeySequence(Qt::CTRL | Qt::Key_PageUp),
                  .hint = QStringLiteral("Mostra o começo do trabalho anterior"),
                  .inTools = true},
                 [this] { emit previousWanted(); });
    commands.add({.name = "nextJob",
                  .text = QStringLiteral("&Próximo trabalho"),
                  .keys = QKeySequence(Qt::CTRL | Qt::Key_PageDown),
                  .hint = QStringLiteral("Mostra o começo do próximo trabalho"),
                  .inTools = true},
                 [this] { emit nextWanted(); });
    commands.separate();
    commands.add({.name = "checkPaper",
                  .text = QStringLiteral("&Conferir o papel"),
                  .keys = QKeySequence(Qt::Key_F6),
                  .hint = QStringLiteral("Lista o que o papel mostra cortado ou fora das caixas do "
                                         "formulário")},
                 [this] { emit checkWanted(); });
    commands.add({.name = "tearOff",
                  .text = QStringLiteral("&Destacar"),
                  .keys = QKeySequence(Qt::CTRL | Qt::Key_D),
                  .hint = QStringLiteral("Destaca o papel impresso na próxima picotagem; a "
                                         "impressora continua em um formulário novo"),
                  .inTools = true},
                 [this] { emit tearOffWanted(); });
    commands.add({.name = "takeSheets",
                  .text = QStringLiteral("&Recolher as folhas"),
                  .hint = QStringLiteral("Tira da janela as folhas soltas; os arquivos ficam na "
                                         "pasta")},
                 [this] { sheets_.clear(); });
}

void PrinterMenus::makeViewMenu(WindowCommands& commands, const PaintOptions& looks) {
    commands.menu("viewMenu", QStringLiteral("E&xibir"));
    commands.add({.name = "larger",
                  .text = QStringLiteral("&Aumentar"),
                  .keys = QKeySequence::ZoomIn,
                  .hint = QStringLiteral("Mostra o papel maior"),
                  .inTools = true},
                 [this] { view_.setZoom(view_.zoom() * zoomStep); });
    commands.add({.name = "smaller",
                  .text = QStringLiteral("&Diminuir"),
                  .keys = QKeySequence::ZoomOut,
                  .hint = QStringLiteral("Mostra o papel menor"),
                  .inTools = true},
                 [this] { view_.setZoom(view_.zoom() / zoomStep); });
    commands.add({.name = "realSize",
                  .text = QStringLiteral("&Tamanho real"),
                  .keys = QKeySequence(Qt::CTRL | Qt::Key_0),
                  .hint = QStringLiteral("Mostra o papel em tamanho real")},
                 [this] { view_.setZoom(1); });
    commands.add({.name = "windowWidth",
                  .text = QStringLiteral("&Largura da janela"),
                  .keys = QKeySequence(Qt::CTRL | Qt::Key_1),
                  .hint = QStringLiteral("Mostra a largura toda do papel")},
                 [this] { view_.fitWidth(); });
    commands.separate();
    commands.addSwitch({.name = "ruler",
                        .text = QStringLiteral("&Régua"),
                        .keys = QKeySequence(Qt::CTRL | Qt::Key_R),
                        .hint = QStringLiteral("Mostra os números das linhas e das colunas"),
                        .inTools = true},
                       looks.ruler, [this](bool on) { emit rulerWanted(on); });
    commands.addSwitch({.name = "bands", .text = QStringLiteral("Papel &zebrado")}, looks.bands,
                       [this](bool on) { emit bandsWanted(on); });
    marks_ = commands.addSwitch(
        {.name = "marks",
         .text = QStringLiteral("&Marcas da conferência"),
         .hint = QStringLiteral("Colore no papel o que aparece cortado ou fora das caixas")},
        false, [this](bool on) { emit marksWanted(on); });
    commands.add({.name = "showSheets",
                  .text = QStringLiteral("&Folhas soltas"),
                  .keys = QKeySequence(Qt::Key_F7),
                  .hint = QStringLiteral("Mostra ao lado do papel os documentos desenhados (PDF)")},
                 [this] { sheets_.setVisible(!sheets_.isVisible()); });
    commands.add({.name = "showLog",
                  .text = QStringLiteral("Re&gistro"),
                  .keys = QKeySequence(Qt::Key_F8),
                  .hint = QStringLiteral("Mostra o que a impressora não imprimiu, e os trabalhos")},
                 [this] { emit logWanted(); });
}

}  // namespace tarn::dotmatrix
