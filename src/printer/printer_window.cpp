#include "printer/printer_window.h"

#include <QApplication>
#include <QClipboard>
#include <QDockWidget>
#include <QLabel>
#include <QMenuBar>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStatusBar>
#include <chrono>

#include "forms/form_catalogue.h"
#include "forms/form_loader.h"
#include "printer/check_dock.h"
#include "printer/form_menu.h"
#include "printer/job_files.h"
#include "printer/new_job_offer.h"
#include "printer/paper_files.h"
#include "printer/paper_name.h"
#include "printer/paper_search_bar.h"
#include "printer/printer_menus.h"
#include "printer/sheet_dock.h"
#include "runtime/version.h"

namespace tarn::dotmatrix {

namespace {

constexpr std::chrono::milliseconds repaintInterval(40);
constexpr int logLines = 2000;

PaperUnits rulerCellOf(const Dialect& dialect) {
    return PrintMode{.elite = dialect.elite, .condensed = dialect.condensed}.cellWidth();
}

}  // namespace

PrinterWindow::PrinterWindow(PaperRoll& roll, JobIntake& intake, HoldDesk& desk,
                             const PaintOptions& options, std::optional<int> itemLines)
    : roll_(roll),
      intake_(intake),
      options_(options),
      panel_(roll.dialect()),
      itemLines_(itemLines) {
    setObjectName(QStringLiteral("PrinterWindow"));
    setWindowTitle(QStringLiteral("Impressora matricial virtual"));
    resize(1100, 780);
    questions_ = askTheUser(this);
    makeParts(desk);
    makeLog();
    makeMenus();
    addToolBar(Qt::BottomToolBarArea, search_);
    search_->hide();
    makeStatusBar();
    options_.rulerCell = rulerCellOf(roll_.dialect());
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
        if (roll_.jobs().empty() || roll_.jobs().back().shows) {
            offer_->jobCame();
        }
    });
    view_->setFocus();
    paperChanged();
}

void PrinterWindow::makeParts(HoldDesk& desk) {
    view_ = new PaperView(roll_, this);
    view_->setObjectName(QStringLiteral("paper"));
    view_->setAccessibleName(QStringLiteral("Papel impresso"));
    setCentralWidget(view_);
    search_ = new PaperSearchBar(roll_, *view_, this);
    files_ = new PaperFiles(roll_, options_, questions_, *this);
    files_->setProposal(
        [this] { return proposedName(roll_, view_->presentForm(), options_.design.get()); });
    connect(files_, &PaperFiles::saved, this, &PrinterWindow::tell);
    jobFiles_ = new JobFiles(intake_, this);
    offer_ = new NewJobOffer(*view_);
    holding_ = new HoldView(*this, desk, roll_, *view_, questions_);
    connect(holding_, &HoldView::complained, this, &PrinterWindow::complain);
    connect(holding_, &HoldView::told, this, &PrinterWindow::log);
    connect(holding_, &HoldView::changed, this, &PrinterWindow::showCounts);
    sheets_ = new SheetDock(roll_, *view_, *this);
    check_ = new CheckDock(roll_, *view_, options_, *this);
    connect(sheets_, &SheetDock::told, this, &PrinterWindow::log);
    connect(sheets_, &SheetDock::changed, this, &PrinterWindow::showCounts);
    connect(files_, &PaperFiles::failed, this, &PrinterWindow::complain);
    connect(jobFiles_, &JobFiles::failed, this, &PrinterWindow::complain);
}

void PrinterWindow::makeLog() {
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
}

void PrinterWindow::makeMenus() {
    auto* menus = new PrinterMenus(*this, *view_, *search_, *files_, *holding_, *sheets_, options_);
    connect(menus, &PrinterMenus::openWanted, this, &PrinterWindow::openJobs);
    connect(menus, &PrinterMenus::copyWanted, this, &PrinterWindow::copyText);
    connect(menus, &PrinterMenus::selectWanted, this, &PrinterWindow::selectForm);
    connect(menus, &PrinterMenus::previousWanted, this, &PrinterWindow::previousJob);
    connect(menus, &PrinterMenus::nextWanted, this, &PrinterWindow::nextJob);
    connect(menus, &PrinterMenus::tearOffWanted, this, &PrinterWindow::tearOffAsked);
    connect(menus, &PrinterMenus::checkWanted, check_, &CheckDock::check);
    connect(menus, &PrinterMenus::aboutWanted, this, &PrinterWindow::showAbout);
    connect(menus, &PrinterMenus::logWanted, this,
            [this] { logDock_->setVisible(!logDock_->isVisible()); });
    connect(menus, &PrinterMenus::rulerWanted, this, [this](bool on) {
        options_.ruler = on;
        view_->setOptions(options_);
    });
    connect(menus, &PrinterMenus::bandsWanted, this, [this](bool on) {
        options_.bands = on;
        view_->setOptions(options_);
    });
    makeFormMenu();
    menus->addHelp();
}

void PrinterWindow::makeFormMenu() {
    const auto present = options_.design
                             ? std::optional(QString::fromStdString(options_.design->name))
                             : std::nullopt;
    forms_ = new FormMenu(present, this);
    menuBar()->addMenu(forms_);
    connect(forms_, &FormMenu::formChosen, this, &PrinterWindow::layForm);
    connect(forms_, &FormMenu::fileWanted, this, &PrinterWindow::layFormOfFile);
    connect(forms_, &FormMenu::jobsChosen, this, &PrinterWindow::followJobs);
    connect(forms_, &FormMenu::blankChosen, this, [this] {
        options_.design.reset();
        options_.picture.reset();
        forms_->keepChoice();
        usePanel(roll_.dialect());
    });
}

void PrinterWindow::makeStatusBar() {
    waitingText_ = new QLabel(this);
    waitingText_->setObjectName(QStringLiteral("waiting"));
    waitingText_->setTextFormat(Qt::PlainText);
    paperText_ = new QLabel(this);
    paperText_->setObjectName(QStringLiteral("paperName"));
    paperText_->setTextFormat(Qt::PlainText);
    spotText_ = new QLabel(this);
    spotText_->setObjectName(QStringLiteral("position"));
    countText_ = new QLabel(this);
    countText_->setObjectName(QStringLiteral("count"));
    statusBar()->addWidget(waitingText_, 1);
    statusBar()->addPermanentWidget(paperText_);
    statusBar()->addPermanentWidget(spotText_);
    statusBar()->addPermanentWidget(countText_);
    connect(view_, &PaperView::hovered, this, &PrinterWindow::showSpot);
    connect(view_, &PaperView::zoomed, this, &PrinterWindow::showCounts);
}

void PrinterWindow::setWaitingText(const QString& text) {
    waitingText_->setText(text);
}

void PrinterWindow::watchSheets(const QString& folder) {
    sheets_->watch(folder);
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
    jobFiles_->add(
        questions_.open(QStringLiteral("Abrir trabalho"),
                        QStringLiteral("Trabalhos crus (*.prn);;Todos os arquivos (*)")));
}

void PrinterWindow::copyText() {
    if (view_->selection()) {
        QApplication::clipboard()->setText(textIn(roll_, *view_->selection()));
    }
}

void PrinterWindow::selectForm() {
    view_->select(regionOf(roll_, view_->presentForm()));
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

// A word that stays long enough to be read, and in the log for later.
void PrinterWindow::tell(const QString& text) {
    constexpr int longEnough = 15'000;  // milliseconds
    statusBar()->showMessage(text, longEnough);
    log(text);
}

void PrinterWindow::showAbout() {
    const auto text = [](std::string_view view) {
        return QString::fromUtf8(view.data(), static_cast<qsizetype>(view.size()));
    };
    auto* box = new QMessageBox(
        QMessageBox::Information, QStringLiteral("Sobre a impressora virtual"),
        QStringLiteral("Impressora matricial virtual do TarnEmissao\nVersão %1 (%2, %3)\n\n"
                       "Mostra no papel o que um trabalho cru imprime, antes que ele gaste "
                       "formulário. O manual conta o resto no capítulo \"Impressora virtual\".")
            .arg(text(productVersion), text(releaseName), text(versionDate)),
        QMessageBox::Ok, this);
    box->setObjectName(QStringLiteral("aboutBox"));
    box->setTextFormat(Qt::PlainText);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->open();
}

// Paper that nobody looked at isn't taken away without a word.
void PrinterWindow::tearOffAsked() {
    const std::size_t unseen = view_->unseenForms();
    if (unseen == 0) {
        return tearOff();
    }
    auto* box = new QMessageBox(
        QMessageBox::Question, windowTitle(),
        (unseen == 1
             ? QStringLiteral("Um formulário impresso ainda não foi visto.")
             : QStringLiteral("%1 formulários impressos ainda não foram vistos.").arg(unseen)) +
            QStringLiteral(" Destacar o papel assim mesmo?"),
        QMessageBox::NoButton, this);
    box->setObjectName(QStringLiteral("tearOffQuestion"));
    box->setTextFormat(Qt::PlainText);
    box->setAttribute(Qt::WA_DeleteOnClose);
    auto* yes = box->addButton(QStringLiteral("Destacar"), QMessageBox::AcceptRole);
    yes->setObjectName(QStringLiteral("tearOffYes"));
    box->setDefaultButton(
        box->addButton(QStringLiteral("Manter o papel"), QMessageBox::RejectRole));
    connect(box, &QMessageBox::buttonClicked, this, [this, yes](QAbstractButton* button) {
        if (button == yes) {
            tearOff();
        }
    });
    box->open();
}

void PrinterWindow::tearOff() {
    search_->forget();
    holding_->paperGone();
    roll_.tearOff(intake_.busy());
    noticesLogged_ = roll_.notices().total();
    view_->forgetSeen();
    offer_->withdraw();
    view_->followPrint();
    view_->select(std::nullopt);
    view_->mark(std::nullopt);
    log(QStringLiteral("papel destacado."));
    paperChanged();
}

void PrinterWindow::layForm(const QString& name) {
    auto loaded = loadForm(name, itemLines_);
    if (const auto* wrong = std::get_if<QString>(&loaded)) {
        forms_->undoChoice();
        return complain(*wrong);
    }
    forms_->keepChoice();
    const auto& form = std::get<LoadedForm>(loaded);
    lay(form, options_);
    usePanel(panelFor(*form.design, roll_.dialect()));
}

void PrinterWindow::layFormOfFile() {
    const QStringList files = questions_.open(
        QStringLiteral("Formulário"),
        QStringLiteral("Formulários (*.txt *.form *.png *.jpg *.jpeg);;Todos os arquivos (*)"));
    files.isEmpty() ? forms_->undoChoice() : layForm(files.front());
}

void PrinterWindow::followJobs() {
    options_.design.reset();
    options_.picture.reset();
    forms_->keepChoice();
    printAgain(panel_, [this] { roll_.followJobs(panel_); });
}

// The jobs so far are printed again, as the printer would have with this panel.
void PrinterWindow::usePanel(const Dialect& dialect) {
    printAgain(dialect, [this, &dialect] { roll_.setDialect(dialect); });
}

void PrinterWindow::printAgain(const Dialect& dialect, const std::function<void()>& print) {
    search_->forget();
    QApplication::setOverrideCursor(Qt::WaitCursor);
    print();
    QApplication::restoreOverrideCursor();
    options_.rulerCell = rulerCellOf(dialect);
    noticesLogged_ = roll_.notices().total();
    view_->setOptions(options_);
    paperChanged();
}

void PrinterWindow::paperChanged() {
    view_->refresh();
    showPaper();
    showCounts();
    check_->paperChanged();
    logNotices();
}

// What lies in the printer, and how it is known of the last job.
void PrinterWindow::showPaper() {
    QString text;
    if (options_.design) {
        text = QString::fromStdString(formTitle(options_.design->name));
    } else if (roll_.followsJobs()) {
        const auto present = roll_.presentDesign();
        text = present ? QString::fromStdString(formTitle(present->name))
                       : QStringLiteral("Papel em branco");
        const auto& jobs = roll_.jobs();
        if (!jobs.empty() && !jobs.back().paper.form) {
            text += QStringLiteral(" (o trabalho não diz o seu papel)");
        } else if (!jobs.empty() && !jobs.back().paper.told) {
            text += QStringLiteral(" (reconhecido pelo conteúdo)");
        }
    } else {
        text = QStringLiteral("Papel em branco");
    }
    paperText_->setText(text);
}

void PrinterWindow::showCounts() {
    const QString held = holding_->count();
    countText_->setText((held.isEmpty() ? QString() : held + QStringLiteral("  ·  ")) +
                        QStringLiteral("%1 trabalho(s), %2 formulário(s)%3  ·  %4%")
                            .arg(roll_.shownJobs())
                            .arg(roll_.printedForms())
                            .arg(sheets_->count())
                            .arg(qRound(view_->zoom() * 100)));
}

void PrinterWindow::showSpot(const PaperSpot& spot) {
    QString text = QStringLiteral("formulário %1, linha %2").arg(spot.form + 1).arg(spot.line);
    if (spot.column > 0) {
        text += QStringLiteral(", coluna %1").arg(spot.column);
    }
    if (!spot.box.isEmpty()) {
        text += QStringLiteral(" · ") + spot.box;
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
