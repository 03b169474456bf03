#include "printer/printer_window.h"

#include <QActionGroup>
#include <QApplication>
#include <QClipboard>
#include <QDockWidget>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPrintDialog>
#include <QPrinter>
#include <QProgressDialog>
#include <QStatusBar>
#include <QToolBar>
#include <chrono>

#include "printer/paper_print.h"

namespace tarn::dotmatrix {

namespace {

constexpr std::chrono::milliseconds repaintInterval(40);
constexpr std::size_t formsAStep = 40;
constexpr qint64 readAtOnce = 256LL * 1024;
constexpr double zoomStep = 1.25;
constexpr int progressAfter = 400;  // milliseconds

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
    view_->setObjectName(QStringLiteral("paper"));
    setCentralWidget(view_);
    makeActions();
    makeSearchBar();
    makeStatusBar();
    options_.rulerCell =
        PrintMode{.elite = roll_.dialect().elite, .condensed = roll_.dialect().condensed}
            .cellWidth();
    view_->setOptions(options_);

    changed_.setSingleShot(true);
    changed_.setInterval(repaintInterval);
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

void PrinterWindow::setWaitingText(const QString& text) {
    waitingText_->setText(text);
}

QWidget* PrinterWindow::errorBox() const {
    return findChild<QMessageBox*>(QStringLiteral("notice"));
}

void PrinterWindow::complain(const QString& text) {
    auto* box = new QMessageBox(QMessageBox::Warning, windowTitle(), text, QMessageBox::Ok, this);
    box->setObjectName(QStringLiteral("notice"));
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
    const QByteArray piece = file_->file().read(readAtOnce);
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
    progress.setObjectName(QStringLiteral("progress"));
    progress.setWindowTitle(windowTitle());
    progress.setWindowModality(Qt::WindowModal);
    progress.setMinimumDuration(progressAfter);
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
    const QString file = questions_.saveAs(
        QStringLiteral("Salvar PDF"), QStringLiteral("papel.pdf"), QStringLiteral("PDF (*.pdf)"));
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
        writeOut(QStringLiteral("Gravando o texto..."),
                 [&](const WriteProgress&) { return writeText(roll_.pages(), file); });
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
    const int to =
        printer.toPage() < from ? static_cast<int>(roll_.printedForms()) : printer.toPage();
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
    const PaperSearch::Step step = search_->step(formsAStep);
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
        if (job->y < top - unitsPerInch / 6) {
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
        if (job.y > top + unitsPerInch / 6) {
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
    view_->setZoom(view_->zoom() * zoomStep);
}

void PrinterWindow::zoomOut() {
    view_->setZoom(view_->zoom() / zoomStep);
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
    searching_.stop();
    search_.reset();
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
