#include "dotmatrix/window/printer_window.h"

#include <QActionGroup>
#include <QApplication>
#include <QClipboard>
#include <QDockWidget>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPrintDialog>
#include <QPrinter>
#include <QProgressDialog>
#include <QShortcut>
#include <QStatusBar>
#include <QToolBar>
#include <chrono>

#include "dotmatrix/layout_forms.h"
#include "dotmatrix/window/paper_print.h"

namespace tarn::dotmatrix {

namespace {

constexpr std::chrono::milliseconds kRepaint(40);
constexpr std::size_t kFormsAStep = 40;
constexpr qint64 kReadAtOnce = 256 * 1024;
constexpr int kLogLines = 2000;
constexpr double kZoomStep = 1.25;
constexpr int kProgressAfter = 400;  // milliseconds

WindowQuestions askTheUser(QWidget* window) {
    return {[window](const QString& title, const QString& suggested, const QString& kinds) {
                return QFileDialog::getSaveFileName(window, title, suggested, kinds);
            },
            [window](const QString& title, const QString& kinds) {
                return QFileDialog::getOpenFileNames(window, title, QString(), kinds);
            },
            [window](QPrinter& printer) {
                return QPrintDialog(&printer, window).exec() == QDialog::Accepted;
            }};
}

}  // namespace

// A job file that is being taken, a piece at a time.
class JobFile {
public:
    explicit JobFile(const QString& name) : file_(name) {}
    bool open() { return file_.open(QIODevice::ReadOnly); }
    QFile& file() { return file_; }
    bool begun = false;

private:
    QFile file_;
};

PrinterWindow::PrinterWindow(PaperRoll& roll, JobIntake& intake, const PaintOptions& options,
                             std::optional<int> itemLines)
    : roll_(roll), intake_(intake), options_(options), itemLines_(itemLines) {
    setObjectName(QStringLiteral("PrinterWindow"));
    setWindowTitle(QStringLiteral("Impressora matricial virtual"));
    resize(1100, 780);
    questions_ = askTheUser(this);
    view_ = new PaperView(roll_, this);
    view_->setObjectName(QStringLiteral("papel"));
    setCentralWidget(view_);
    makeActions();
    makeSearchBar();
    makeStatusBar();
    options_.rulerCell = PrintMode{.elite = roll_.dialect().elite,
                                   .condensed = roll_.dialect().condensed}
                             .cellWidth();
    view_->setOptions(options_);

    changed_.setSingleShot(true);
    changed_.setInterval(kRepaint);
    connect(&changed_, &QTimer::timeout, this, &PrinterWindow::paperChanged);
    connect(&intake_, &JobIntake::changed, this, [this] {
        if (!changed_.isActive()) {
            changed_.start();
        }
    });
    connect(&intake_, &JobIntake::jobEnded, this, [this](const QString& name, const QString& why) {
        log(why.isEmpty() ? QStringLiteral("%1: impresso.").arg(name)
                          : QStringLiteral("%1: %2").arg(name, why));
    });
    connect(&intake_, &JobIntake::idle, this, &PrinterWindow::takeFile, Qt::QueuedConnection);
    searching_.setInterval(0);
    connect(&searching_, &QTimer::timeout, this, &PrinterWindow::searchOn);
    view_->setFocus();
    paperChanged();
}

PrinterWindow::~PrinterWindow() = default;

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
    tools_->setObjectName(QStringLiteral("comandos"));
    tools_->setMovable(false);
    tools_->setToolButtonStyle(Qt::ToolButtonTextOnly);
    logText_ = new QPlainTextEdit(this);
    logText_->setObjectName(QStringLiteral("registro"));
    logText_->setAccessibleName(QStringLiteral("Registro da impressora"));
    logText_->setReadOnly(true);
    logText_->setMaximumBlockCount(kLogLines);
    logDock_ = new QDockWidget(QStringLiteral("Registro"), this);
    logDock_->setObjectName(QStringLiteral("painelRegistro"));
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
    menu->setObjectName(QStringLiteral("menuArquivo"));
    menu->addAction(command("abrir", QStringLiteral("&Abrir trabalho..."), QKeySequence::Open,
                            QStringLiteral("Imprime trabalhos gravados (.prn) neste papel"),
                            &PrinterWindow::openJobs));
    menu->addSeparator();
    auto* pdf = command("salvarPdf", QStringLiteral("Salvar &PDF..."), QKeySequence::Save,
                        QStringLiteral("Grava todo o papel em PDF, uma página por formulário"),
                        &PrinterWindow::savePdf);
    menu->addAction(pdf);
    menu->addAction(command("salvarPng", QStringLiteral("Salvar &figuras (PNG)..."),
                            QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S),
                            QStringLiteral("Grava todo o papel em figuras, uma por formulário"),
                            &PrinterWindow::savePng));
    menu->addAction(command("salvarTexto", QStringLiteral("Salvar &texto..."), {},
                            QStringLiteral("Grava todo o papel como texto"),
                            &PrinterWindow::saveText));
    auto* print = command("imprimir", QStringLiteral("&Imprimir..."), QKeySequence::Print,
                          QStringLiteral("Imprime o papel em uma impressora da máquina"),
                          &PrinterWindow::printOut);
    menu->addAction(print);
    menu->addSeparator();
    auto* quit = new QAction(QStringLiteral("&Sair"), this);
    quit->setObjectName(QStringLiteral("sair"));
    quit->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Q));
    connect(quit, &QAction::triggered, this, &QWidget::close);
    menu->addAction(quit);
    tools_->addAction(pdf);
    tools_->addAction(print);
    tools_->addSeparator();

    QMenu* edit = menuBar()->addMenu(QStringLiteral("&Editar"));
    edit->setObjectName(QStringLiteral("menuEditar"));
    auto* copy = command("copiar", QStringLiteral("&Copiar"), QKeySequence::Copy,
                         QStringLiteral("Copia como texto a região marcada com o mouse"),
                         &PrinterWindow::copyText);
    copy->setEnabled(false);
    connect(view_, &PaperView::selected, copy, &QAction::setEnabled);
    edit->addAction(copy);
    edit->addAction(command("marcarFormulario", QStringLiteral("&Marcar o formulário"),
                            QKeySequence::SelectAll,
                            QStringLiteral("Marca o formulário que está no meio da janela"),
                            &PrinterWindow::selectForm));
    edit->addSeparator();
    auto* search = command("localizar", QStringLiteral("&Localizar..."), QKeySequence::Find,
                           QStringLiteral("Procura um texto no papel"), &PrinterWindow::find);
    edit->addAction(search);
    edit->addAction(command("proxima", QStringLiteral("&Próxima ocorrência"),
                            QKeySequence(Qt::Key_F3), QStringLiteral("Procura dali para baixo"),
                            &PrinterWindow::findNext));
    edit->addAction(command("anterior", QStringLiteral("Ocorrência &anterior"),
                            QKeySequence(Qt::SHIFT | Qt::Key_F3),
                            QStringLiteral("Procura dali para cima"),
                            &PrinterWindow::findPrevious));
    tools_->addAction(copy);
    tools_->addAction(search);
    tools_->addSeparator();
}

void PrinterWindow::makePaperActions() {
    QMenu* menu = menuBar()->addMenu(QStringLiteral("&Papel"));
    menu->setObjectName(QStringLiteral("menuPapel"));
    auto* before = command("trabalhoAnterior", QStringLiteral("Trabalho &anterior"),
                           QKeySequence(Qt::CTRL | Qt::Key_PageUp),
                           QStringLiteral("Mostra o começo do trabalho anterior"),
                           &PrinterWindow::previousJob);
    auto* next = command("proximoTrabalho", QStringLiteral("&Próximo trabalho"),
                         QKeySequence(Qt::CTRL | Qt::Key_PageDown),
                         QStringLiteral("Mostra o começo do próximo trabalho"),
                         &PrinterWindow::nextJob);
    auto* tear = command("destacar", QStringLiteral("&Destacar"),
                         QKeySequence(Qt::CTRL | Qt::Key_D),
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
    menu->setObjectName(QStringLiteral("menuExibir"));
    auto* in = command("aumentar", QStringLiteral("&Aumentar"), QKeySequence::ZoomIn,
                       QStringLiteral("Mostra o papel maior"), &PrinterWindow::zoomIn);
    auto* out = command("diminuir", QStringLiteral("&Diminuir"), QKeySequence::ZoomOut,
                        QStringLiteral("Mostra o papel menor"), &PrinterWindow::zoomOut);
    menu->addActions({in, out});
    menu->addAction(command("tamanhoReal", QStringLiteral("&Tamanho real"),
                            QKeySequence(Qt::CTRL | Qt::Key_0),
                            QStringLiteral("Mostra o papel em tamanho real"),
                            &PrinterWindow::trueSize));
    menu->addAction(command("larguraDaJanela", QStringLiteral("&Largura da janela"),
                            QKeySequence(Qt::CTRL | Qt::Key_1),
                            QStringLiteral("Mostra a largura toda do papel"),
                            &PrinterWindow::fitWidth));
    menu->addSeparator();
    auto* ruler = new QAction(QStringLiteral("&Régua"), this);
    ruler->setObjectName(QStringLiteral("regua"));
    ruler->setCheckable(true);
    ruler->setChecked(options_.ruler);
    ruler->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_R));
    ruler->setToolTip(QStringLiteral("Mostra os números das linhas e das colunas (Ctrl+R)"));
    connect(ruler, &QAction::toggled, this, [this](bool on) {
        options_.ruler = on;
        view_->setOptions(options_);
    });
    auto* bands = new QAction(QStringLiteral("Papel &zebrado"), this);
    bands->setObjectName(QStringLiteral("zebrado"));
    bands->setCheckable(true);
    bands->setChecked(options_.bands);
    connect(bands, &QAction::toggled, this, [this](bool on) {
        options_.bands = on;
        view_->setOptions(options_);
    });
    menu->addActions({ruler, bands});
    menu->addAction(command("verRegistro", QStringLiteral("Re&gistro"), QKeySequence(Qt::Key_F8),
                            QStringLiteral("Mostra o que a impressora não imprimiu, e os trabalhos"),
                            &PrinterWindow::showLog));
    tools_->addActions({in, out, ruler});
}

void PrinterWindow::makeFormMenu() {
    QMenu* menu = menuBar()->addMenu(QStringLiteral("&Formulário"));
    menu->setObjectName(QStringLiteral("menuFormulario"));
    forms_ = new QActionGroup(this);
    const auto add = [this, menu](const QString& text, const QString& form) {
        QAction* action = menu->addAction(text);
        action->setCheckable(true);
        action->setData(form);
        action->setObjectName(QStringLiteral("formulario_") + form);
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
    formOfFile_ = add(QStringLiteral("De um &arquivo..."), QStringLiteral("arquivo"));
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
    searchBar_->setObjectName(QStringLiteral("barraLocalizar"));
    searchBar_->setMovable(false);
    auto* label = new QLabel(QStringLiteral(" &Localizar: "), this);
    searchText_ = new QLineEdit(this);
    searchText_->setObjectName(QStringLiteral("textoLocalizar"));
    searchText_->setMaximumWidth(280);
    searchText_->setClearButtonEnabled(true);
    label->setBuddy(searchText_);
    searchResult_ = new QLabel(this);
    searchResult_->setObjectName(QStringLiteral("resultadoLocalizar"));
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
    waitingText_->setObjectName(QStringLiteral("espera"));
    waitingText_->setTextFormat(Qt::PlainText);
    spotText_ = new QLabel(this);
    spotText_->setObjectName(QStringLiteral("posicao"));
    countText_ = new QLabel(this);
    countText_->setObjectName(QStringLiteral("contagem"));
    statusBar()->addWidget(waitingText_, 1);
    statusBar()->addPermanentWidget(spotText_);
    statusBar()->addPermanentWidget(countText_);
    connect(view_, &PaperView::hovered, this, &PrinterWindow::showSpot);
    connect(view_, &PaperView::zoomed, this, &PrinterWindow::showCounts);
}

void PrinterWindow::setWaitingText(const QString& text) {
    waitingText_->setText(text);
}

QWidget* PrinterWindow::errorBox() const {
    return findChild<QMessageBox*>(QStringLiteral("aviso"));
}

void PrinterWindow::complain(const QString& text) {
    auto* box = new QMessageBox(QMessageBox::Warning, windowTitle(), text, QMessageBox::Ok, this);
    box->setObjectName(QStringLiteral("aviso"));
    box->setTextFormat(Qt::PlainText);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->open();
}

void PrinterWindow::openJobs() {
    files_ += questions_.open(QStringLiteral("Abrir trabalho"),
                              QStringLiteral("Trabalhos crus (*.prn);;Todos os arquivos (*)"));
    takeFile();
}

// A piece each time round the event loop.
void PrinterWindow::takeFile() {
    if (!file_) {
        if (files_.isEmpty() || intake_.busy()) {
            return;
        }
        file_ = std::make_unique<JobFile>(files_.takeFirst());
        if (!file_->open()) {
            complain(QStringLiteral("Não foi possível ler o trabalho \"%1\" (%2). Confira o nome "
                                    "do arquivo e a permissão de leitura.")
                         .arg(file_->file().fileName(), file_->file().errorString()));
            file_.reset();
            return takeFile();
        }
        intake_.begin(QFileInfo(file_->file()).fileName());
    }
    const QByteArray piece = file_->file().read(kReadAtOnce);
    if (piece.isEmpty()) {
        file_.reset();
        intake_.end();
        return;
    }
    if (!intake_.take(piece)) {
        file_.reset();
        return;
    }
    QMetaObject::invokeMethod(this, &PrinterWindow::takeFile, Qt::QueuedConnection);
}

void PrinterWindow::writeOut(
    const QString& what, const std::function<std::optional<QString>(const WriteProgress&)>& write) {
    QProgressDialog progress(what, QStringLiteral("Interromper"), 0,
                             static_cast<int>(roll_.printedForms()), this);
    progress.setObjectName(QStringLiteral("andamento"));
    progress.setWindowTitle(windowTitle());
    progress.setWindowModality(Qt::WindowModal);
    progress.setMinimumDuration(kProgressAfter);
    const auto failure = write([&progress](std::size_t form) {
        progress.setValue(static_cast<int>(form));
        return !progress.wasCanceled();
    });
    const bool stopped = progress.wasCanceled();
    progress.reset();
    if (failure && !stopped) {
        complain(QStringLiteral("Não foi possível gravar o papel (%1). Confira a pasta, a "
                                "permissão e o espaço em disco, e tente de novo.")
                     .arg(*failure));
    }
}

void PrinterWindow::savePdf() {
    const QString file = questions_.saveAs(QStringLiteral("Salvar PDF"),
                                           QStringLiteral("papel.pdf"), QStringLiteral("PDF (*.pdf)"));
    if (!file.isEmpty()) {
        writeOut(QStringLiteral("Gravando o PDF..."), [&](const WriteProgress& progress) {
            return writePdf(roll_.pages(), options_, file, progress);
        });
    }
}

void PrinterWindow::savePng() {
    const QString file =
        questions_.saveAs(QStringLiteral("Salvar figuras"), QStringLiteral("papel.png"),
                          QStringLiteral("Figuras (*.png)"));
    if (!file.isEmpty()) {
        writeOut(QStringLiteral("Gravando as figuras..."), [&](const WriteProgress& progress) {
            return writePng(roll_.pages(), options_, file, progress);
        });
    }
}

void PrinterWindow::saveText() {
    const QString file =
        questions_.saveAs(QStringLiteral("Salvar texto"), QStringLiteral("papel.txt"),
                          QStringLiteral("Texto (*.txt)"));
    if (!file.isEmpty()) {
        writeOut(QStringLiteral("Gravando o texto..."), [&](const WriteProgress&) {
            return writeText(roll_.pages(), file);
        });
    }
}

void PrinterWindow::printOut() {
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(QStringLiteral("Papel da impressora virtual"));
    printer.setFromTo(1, static_cast<int>(roll_.printedForms()));
    if (!questions_.print(printer)) {
        return;
    }
    const int from = std::max(1, printer.fromPage());
    const int to = printer.toPage() < from ? static_cast<int>(roll_.printedForms())
                                           : printer.toPage();
    writeOut(QStringLiteral("Imprimindo..."), [&](const WriteProgress& progress) {
        return printPaper(printer, roll_.pages(), static_cast<std::size_t>(from - 1),
                          static_cast<std::size_t>(to - 1), options_, progress);
    });
}

void PrinterWindow::copyText() {
    if (view_->selection()) {
        QApplication::clipboard()->setText(textIn(roll_, *view_->selection()));
    }
}

void PrinterWindow::selectForm() {
    view_->select(regionOf(roll_, view_->presentForm()));
}

void PrinterWindow::find() {
    searchBar_->show();
    searchText_->setFocus();
    searchText_->selectAll();
}

void PrinterWindow::findNext() {
    search(PaperSearch::Direction::Down);
}

void PrinterWindow::findPrevious() {
    search(PaperSearch::Direction::Up);
}

void PrinterWindow::search(PaperSearch::Direction direction) {
    const QString text = searchText_->text();
    if (text.isEmpty()) {
        return find();
    }
    searchBar_->show();
    if (text != foundText_) {
        found_.reset();
        foundText_ = text;
    }
    search_ = std::make_unique<PaperSearch>(roll_, text, direction, found_);
    searchResult_->setText(QStringLiteral("Procurando..."));
    searching_.start();
}

void PrinterWindow::searchOn() {
    const PaperSearch::Step step = search_->step(kFormsAStep);
    if (step == PaperSearch::Step::Searching) {
        return;
    }
    searching_.stop();
    if (step == PaperSearch::Step::NotThere) {
        searchResult_->setText(QStringLiteral("O papel não tem este texto."));
        view_->mark(std::nullopt);
        return;
    }
    found_ = search_->found();
    searchResult_->setText(search_->wrapped() ? QStringLiteral("A busca deu a volta no papel.")
                                              : QString());
    view_->mark(found_);
    view_->reveal(*found_);
}

void PrinterWindow::previousJob() {
    const PaperUnits top = view_->topY();
    const auto& jobs = roll_.jobs();
    for (auto job = jobs.rbegin(); job != jobs.rend(); ++job) {
        if (job->y < top - kUnitsPerInch / 6) {
            view_->showTop(job->y);
            statusBar()->showMessage(QString::fromStdString(job->name), 4000);
            return;
        }
    }
    view_->showTop(0);
}

void PrinterWindow::nextJob() {
    const PaperUnits top = view_->topY();
    for (const RollJob& job : roll_.jobs()) {
        if (job.y > top + kUnitsPerInch / 6) {
            view_->showTop(job.y);
            statusBar()->showMessage(QString::fromStdString(job.name), 4000);
            return;
        }
    }
}

void PrinterWindow::tearOff() {
    searching_.stop();
    search_.reset();
    found_.reset();
    roll_.tearOff(intake_.busy());
    noticesLogged_ = roll_.notices().total();
    view_->select(std::nullopt);
    view_->mark(std::nullopt);
    log(QStringLiteral("papel destacado."));
    paperChanged();
}

void PrinterWindow::zoomIn() {
    view_->setZoom(view_->zoom() * kZoomStep);
}

void PrinterWindow::zoomOut() {
    view_->setZoom(view_->zoom() / kZoomStep);
}

void PrinterWindow::trueSize() {
    view_->setZoom(1);
}

void PrinterWindow::fitWidth() {
    view_->fitWidth();
}

void PrinterWindow::showLog() {
    logDock_->setVisible(!logDock_->isVisible());
}

void PrinterWindow::chooseForm(const QString& name) {
    if (name.isEmpty()) {
        options_.design.reset();
        options_.picture.reset();
        chosenForm_ = forms_->checkedAction();
        return usePanel(roll_.dialect());
    }
    auto loaded = loadForm(name, itemLines_);
    if (const auto* wrong = std::get_if<QString>(&loaded)) {
        chosenForm_->setChecked(true);
        return complain(*wrong);
    }
    chosenForm_ = forms_->checkedAction();
    const auto& form = std::get<LoadedForm>(loaded);
    lay(form, options_);
    usePanel(panelFor(*form.design, roll_.dialect()));
}

void PrinterWindow::chooseFormFile() {
    const QStringList files = questions_.open(
        QStringLiteral("Formulário"),
        QStringLiteral("Formulários (*.txt *.form *.png *.jpg *.jpeg);;Todos os arquivos (*)"));
    if (files.isEmpty()) {
        chosenForm_->setChecked(true);
        return;
    }
    chooseForm(files.front());
}

// The jobs so far are printed again, as the printer would have with this panel.
void PrinterWindow::usePanel(const Dialect& dialect) {
    QApplication::setOverrideCursor(Qt::WaitCursor);
    roll_.setDialect(dialect);
    QApplication::restoreOverrideCursor();
    options_.rulerCell =
        PrintMode{.elite = dialect.elite, .condensed = dialect.condensed}.cellWidth();
    found_.reset();
    noticesLogged_ = roll_.notices().total();
    view_->setOptions(options_);
    paperChanged();
}

void PrinterWindow::paperChanged() {
    view_->refresh();
    showCounts();
    logNotices();
}

void PrinterWindow::showCounts() {
    countText_->setText(QStringLiteral("%1 trabalho(s), %2 formulário(s)  ·  %3%")
                            .arg(roll_.jobs().size())
                            .arg(roll_.printedForms())
                            .arg(qRound(view_->zoom() * 100)));
}

void PrinterWindow::showSpot(const PaperSpot& spot) {
    QString text = QStringLiteral("formulário %1, linha %2").arg(spot.form + 1).arg(spot.line);
    if (spot.column > 0) {
        text += QStringLiteral(", coluna %1").arg(spot.column);
    }
    spotText_->setText(text);
}

void PrinterWindow::logNotices() {
    const NoticeLog& notices = roll_.notices();
    for (; noticesLogged_ < notices.total(); ++noticesLogged_) {
        if (noticesLogged_ >= notices.kept().size()) {
            log(QStringLiteral("e mais %1 avisos.").arg(notices.total() - noticesLogged_));
            noticesLogged_ = notices.total();
            return;
        }
        log(QString::fromStdString(describe(notices.kept()[noticesLogged_])));
    }
}

void PrinterWindow::log(const QString& line) {
    logText_->appendPlainText(line);
}

}  // namespace tarn::dotmatrix
