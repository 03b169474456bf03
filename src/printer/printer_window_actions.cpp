// The commands of the window: menus, tool bars, keys, and the bars around the paper.
#include <QActionGroup>
#include <QDockWidget>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QShortcut>
#include <QStatusBar>
#include <QToolBar>

#include "forms/layout_forms.h"
#include "printer/printer_window.h"

namespace tarn::dotmatrix {

namespace {

constexpr int logLines = 2000;

}  // namespace

QAction* PrinterWindow::command(const char* name, const QString& text, const QKeySequence& keys,
                                const QString& hint, void (PrinterWindow::*run)()) {
    auto* action = new QAction(text, this);
    action->setObjectName(QLatin1StringView(name));
    action->setShortcut(keys);
    const QString shown = keys.toString(QKeySequence::NativeText);
    action->setToolTip(shown.isEmpty() ? hint : QStringLiteral("%1 (%2)").arg(hint, shown));
    action->setStatusTip(hint);
    connect(action, &QAction::triggered, this, run);
    return action;
}

void PrinterWindow::makeActions() {
    tools_ = addToolBar(QStringLiteral("Comandos"));
    tools_->setObjectName(QStringLiteral("commands"));
    tools_->setMovable(false);
    tools_->setToolButtonStyle(Qt::ToolButtonTextOnly);
    logText_ = new QPlainTextEdit(this);
    logText_->setObjectName(QStringLiteral("log"));
    logText_->setAccessibleName(QStringLiteral("Registro da impressora"));
    logText_->setReadOnly(true);
    logText_->setMaximumBlockCount(logLines);
    logDock_ = new QDockWidget(QStringLiteral("Registro"), this);
    logDock_->setObjectName(QStringLiteral("logPanel"));
    logDock_->setWidget(logText_);
    addDockWidget(Qt::BottomDockWidgetArea, logDock_);
    logDock_->hide();
    makeFileActions();
    makePaperActions();
    makeViewActions();
    makeFormMenu();
}

void PrinterWindow::makeFileActions() {
    QMenu* menu = menuBar()->addMenu(QStringLiteral("&Arquivo"));
    menu->setObjectName(QStringLiteral("fileMenu"));
    menu->addAction(command("open", QStringLiteral("&Abrir trabalho..."), QKeySequence::Open,
                            QStringLiteral("Imprime trabalhos gravados (.prn) neste papel"),
                            &PrinterWindow::openJobs));
    menu->addSeparator();
    auto* pdf = command("savePdf", QStringLiteral("Salvar &PDF..."), QKeySequence::Save,
                        QStringLiteral("Grava todo o papel em PDF, uma página por formulário"),
                        &PrinterWindow::savePdf);
    menu->addAction(pdf);
    menu->addAction(command("savePng", QStringLiteral("Salvar &figuras (PNG)..."),
                            QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S),
                            QStringLiteral("Grava todo o papel em figuras, uma por formulário"),
                            &PrinterWindow::savePng));
    menu->addAction(command("saveText", QStringLiteral("Salvar &texto..."), {},
                            QStringLiteral("Grava todo o papel como texto"),
                            &PrinterWindow::saveText));
    auto* print = command("print", QStringLiteral("&Imprimir..."), QKeySequence::Print,
                          QStringLiteral("Imprime o papel em uma impressora da máquina"),
                          &PrinterWindow::printOut);
    menu->addAction(print);
    menu->addSeparator();
    auto* quit = new QAction(QStringLiteral("&Sair"), this);
    quit->setObjectName(QStringLiteral("quit"));
    quit->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Q));
    connect(quit, &QAction::triggered, this, &QWidget::close);
    menu->addAction(quit);
    tools_->addAction(pdf);
    tools_->addAction(print);
    tools_->addSeparator();

    QMenu* edit = menuBar()->addMenu(QStringLiteral("&Editar"));
    edit->setObjectName(QStringLiteral("editMenu"));
    auto* copy = command("copy", QStringLiteral("&Copiar"), QKeySequence::Copy,
                         QStringLiteral("Copia como texto a região marcada com o mouse"),
                         &PrinterWindow::copyText);
    copy->setEnabled(false);
    connect(view_, &PaperView::selected, copy, &QAction::setEnabled);
    edit->addAction(copy);
    edit->addAction(command("selectForm", QStringLiteral("&Marcar o formulário"),
                            QKeySequence::SelectAll,
                            QStringLiteral("Marca o formulário que está no meio da janela"),
                            &PrinterWindow::selectForm));
    edit->addSeparator();
    auto* search = command("find", QStringLiteral("&Localizar..."), QKeySequence::Find,
                           QStringLiteral("Procura um texto no papel"), &PrinterWindow::find);
    edit->addAction(search);
    edit->addAction(command("findNext", QStringLiteral("&Próxima ocorrência"),
                            QKeySequence(Qt::Key_F3), QStringLiteral("Procura dali para baixo"),
                            &PrinterWindow::findNext));
    edit->addAction(command("findPrevious", QStringLiteral("Ocorrência &anterior"),
                            QKeySequence(Qt::SHIFT | Qt::Key_F3),
                            QStringLiteral("Procura dali para cima"),
                            &PrinterWindow::findPrevious));
    tools_->addAction(copy);
    tools_->addAction(search);
    tools_->addSeparator();
}

void PrinterWindow::makePaperActions() {
    QMenu* menu = menuBar()->addMenu(QStringLiteral("&Papel"));
    menu->setObjectName(QStringLiteral("paperMenu"));
    auto* before = command("previousJob", QStringLiteral("Trabalho &anterior"),
                           QKeySequence(Qt::CTRL | Qt::Key_PageUp),
                           QStringLiteral("Mostra o começo do trabalho anterior"),
                           &PrinterWindow::previousJob);
    auto* next = command(
        "nextJob", QStringLiteral("&Próximo trabalho"), QKeySequence(Qt::CTRL | Qt::Key_PageDown),
        QStringLiteral("Mostra o começo do próximo trabalho"), &PrinterWindow::nextJob);
    auto* tear = command("tearOff", QStringLiteral("&Destacar"), QKeySequence(Qt::CTRL | Qt::Key_D),
                         QStringLiteral("Destaca o papel impresso na próxima picotagem; a "
                                        "impressora continua em um formulário novo"),
                         &PrinterWindow::tearOff);
    menu->addActions({before, next});
    menu->addSeparator();
    menu->addAction(tear);
    tools_->addActions({before, next, tear});
    tools_->addSeparator();
}

void PrinterWindow::makeViewActions() {
    QMenu* menu = menuBar()->addMenu(QStringLiteral("E&xibir"));
    menu->setObjectName(QStringLiteral("viewMenu"));
    auto* in = command("larger", QStringLiteral("&Aumentar"), QKeySequence::ZoomIn,
                       QStringLiteral("Mostra o papel maior"), &PrinterWindow::zoomIn);
    auto* out = command("smaller", QStringLiteral("&Diminuir"), QKeySequence::ZoomOut,
                        QStringLiteral("Mostra o papel menor"), &PrinterWindow::zoomOut);
    menu->addActions({in, out});
    menu->addAction(
        command("realSize", QStringLiteral("&Tamanho real"), QKeySequence(Qt::CTRL | Qt::Key_0),
                QStringLiteral("Mostra o papel em tamanho real"), &PrinterWindow::trueSize));
    menu->addAction(command(
        "windowWidth", QStringLiteral("&Largura da janela"), QKeySequence(Qt::CTRL | Qt::Key_1),
        QStringLiteral("Mostra a largura toda do papel"), &PrinterWindow::fitWidth));
    menu->addSeparator();
    auto* ruler = new QAction(QStringLiteral("&Régua"), this);
    ruler->setObjectName(QStringLiteral("ruler"));
    ruler->setCheckable(true);
    ruler->setChecked(options_.ruler);
    ruler->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_R));
    ruler->setToolTip(QStringLiteral("Mostra os números das linhas e das colunas (Ctrl+R)"));
    connect(ruler, &QAction::toggled, this, [this](bool on) {
        options_.ruler = on;
        view_->setOptions(options_);
    });
    auto* bands = new QAction(QStringLiteral("Papel &zebrado"), this);
    bands->setObjectName(QStringLiteral("bands"));
    bands->setCheckable(true);
    bands->setChecked(options_.bands);
    connect(bands, &QAction::toggled, this, [this](bool on) {
        options_.bands = on;
        view_->setOptions(options_);
    });
    menu->addActions({ruler, bands});
    menu->addAction(
        command("showLog", QStringLiteral("Re&gistro"), QKeySequence(Qt::Key_F8),
                QStringLiteral("Mostra o que a impressora não imprimiu, e os trabalhos"),
                &PrinterWindow::showLog));
    tools_->addActions({in, out, ruler});
}

void PrinterWindow::makeFormMenu() {
    QMenu* menu = menuBar()->addMenu(QStringLiteral("&Formulário"));
    menu->setObjectName(QStringLiteral("formMenu"));
    forms_ = new QActionGroup(this);
    const auto add = [this, menu](const QString& text, const QString& form) {
        QAction* action = menu->addAction(text);
        action->setCheckable(true);
        action->setData(form);
        action->setObjectName(QStringLiteral("form_") + form);
        forms_->addAction(action);
        return action;
    };
    QAction* blank = add(QStringLiteral("Papel em &branco"), QString());
    menu->addSeparator();
    for (const std::string& name : layoutFormNames()) {
        const QString form = QString::fromStdString(name);
        add(form, form);
    }
    menu->addSeparator();
    formOfFile_ = add(QStringLiteral("De um &arquivo..."), QStringLiteral("file"));
    chosenForm_ = blank;
    if (options_.design) {
        const QString present = QString::fromStdString(options_.design->name);
        chosenForm_ = formOfFile_;
        for (QAction* action : forms_->actions()) {
            chosenForm_ = action->data() == present && !present.isEmpty() ? action : chosenForm_;
        }
    }
    chosenForm_->setChecked(true);
    connect(forms_, &QActionGroup::triggered, this, [this](QAction* action) {
        action == formOfFile_ ? chooseFormFile() : chooseForm(action->data().toString());
    });
}

void PrinterWindow::makeSearchBar() {
    searchBar_ = new QToolBar(QStringLiteral("Localizar"), this);
    searchBar_->setObjectName(QStringLiteral("searchBar"));
    searchBar_->setMovable(false);
    auto* label = new QLabel(QStringLiteral(" &Localizar: "), this);
    searchText_ = new QLineEdit(this);
    searchText_->setObjectName(QStringLiteral("searchText"));
    searchText_->setMaximumWidth(280);
    searchText_->setClearButtonEnabled(true);
    label->setBuddy(searchText_);
    searchResult_ = new QLabel(this);
    searchResult_->setObjectName(QStringLiteral("searchResult"));
    searchResult_->setTextFormat(Qt::PlainText);
    searchResult_->setContentsMargins(8, 0, 0, 0);
    searchBar_->addWidget(label);
    searchBar_->addWidget(searchText_);
    searchBar_->addWidget(searchResult_);
    addToolBar(Qt::BottomToolBarArea, searchBar_);
    searchBar_->hide();
    connect(searchText_, &QLineEdit::returnPressed, this, &PrinterWindow::findNext);
    auto* hide = new QShortcut(QKeySequence(Qt::Key_Escape), searchBar_);
    hide->setContext(Qt::WidgetWithChildrenShortcut);
    connect(hide, &QShortcut::activated, this, [this] {
        searchBar_->hide();
        view_->mark(std::nullopt);
        view_->setFocus();
    });
}

void PrinterWindow::makeStatusBar() {
    waitingText_ = new QLabel(this);
    waitingText_->setObjectName(QStringLiteral("waiting"));
    waitingText_->setTextFormat(Qt::PlainText);
    spotText_ = new QLabel(this);
    spotText_->setObjectName(QStringLiteral("position"));
    countText_ = new QLabel(this);
    countText_->setObjectName(QStringLiteral("count"));
    statusBar()->addWidget(waitingText_, 1);
    statusBar()->addPermanentWidget(spotText_);
    statusBar()->addPermanentWidget(countText_);
    connect(view_, &PaperView::hovered, this, &PrinterWindow::showSpot);
    connect(view_, &PaperView::zoomed, this, &PrinterWindow::showCounts);
}

}  // namespace tarn::dotmatrix
