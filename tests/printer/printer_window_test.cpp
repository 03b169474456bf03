// The window of the virtual printer, by real keys and clicks.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QClipboard>
#include <QDockWidget>
#include <QFile>
#include <QImage>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPrinter>
#include <QPushButton>
#include <QScrollBar>
#include <QStatusBar>
#include <QTableWidget>
#include <QToolBar>
#include <QWheelEvent>

#include "tests/dotmatrix/note_streams.h"
#include "tests/dotmatrix/poppler.h"
#include "tests/printer/shown_printer.h"

namespace tarn::test {

using namespace dotmatrix;
namespace {

class Window : public ShownPrinter {
protected:
    void SetUp() override {
        window_.setQuestions(
            {[this](const QString& title, const QString& suggested, const QString&) {
                 asked_ << title;
                 suggested_ = suggested;
                 return saveAs_;
             },
             [this](const QString& title, const QString&) {
                 asked_ << title;
                 return open_;
             },
             [this](QPrinter& printer) { return print_(printer); },
             [this] { return chosenQueue_; }});
        ShownPrinter::SetUp();
    }

    void press(Qt::Key key, Qt::KeyboardModifiers with = {}) {
        QWidget* target = window_.focusWidget() != nullptr ? window_.focusWidget() : &window_;
        QTest::keyClick(target, key, with);
    }
    bool inSight(PaperUnits y) {
        const auto height = view_.viewport()->height() * unitsPerInch / 96;
        return y >= view_.topY() && y + 360 <= view_.topY() + height;
    }
    int scrolled() { return view_.verticalScrollBar()->value(); }
    QString complaint() {
        auto* box = qobject_cast<QMessageBox*>(window_.errorBox());
        if (box == nullptr) {
            return {};
        }
        EXPECT_EQ(box->textFormat(), Qt::PlainText);
        QString text = box->text();
        QTest::keyClick(box, Qt::Key_Return);
        EXPECT_TRUE(
            QTest::qWaitFor([this] { return window_.errorBox() == nullptr; }, printerLimit));
        return text;
    }
    bool searched() {
        return QTest::qWaitFor(
            [this] {
                return label("searchResult") != QStringLiteral("Procurando...") &&
                       !label("searchResult").startsWith(QStringLiteral("Contando..."));
            },
            printerLimit);
    }
    // Pixel of a place on the paper, in inches from the first print position and from the
    // top of the view.
    QPoint at(double x, double y) {
        const double width = 9.5 * 96 * view_.zoom();
        const double spare = std::max(0.0, std::floor((view_.viewport()->width() - width) / 2));
        return {qRound(spare + (x + 0.5) * 96 * view_.zoom()), qRound(y * 96 * view_.zoom())};
    }

    QStringList asked_;
    QString suggested_;
    QString saveAs_;
    QStringList open_;
    QString chosenQueue_;
    std::function<bool(QPrinter&)> print_ = [](QPrinter&) { return false; };
};

TEST_F(Window, TheViewFollowsThePrintUntilOneLooksElsewhere) {
    job("um\r\n");
    EXPECT_EQ(label("count"), QStringLiteral("1 trabalho(s), 1 formulário(s)  ·  100%"));
    EXPECT_EQ(scrolled(), 0);
    job("\f\f\fdois\r\n");
    EXPECT_EQ(label("count"), QStringLiteral("2 trabalho(s), 4 formulário(s)  ·  100%"));
    EXPECT_TRUE(inSight(33 * unitsPerInch + 360));
    // A job that begins where one sees it is shown from the top of its form.
    job("x\r\ny");
    EXPECT_EQ(scrolled(), 3 * 66);
    // Who looks further up is left in peace.
    press(Qt::Key_Home);
    EXPECT_EQ(scrolled(), 0);
    job("\f\ftrês");
    EXPECT_EQ(scrolled(), 0);
    press(Qt::Key_End);
    EXPECT_EQ(scrolled(), view_.verticalScrollBar()->maximum());
    job("\fquatro");
    EXPECT_TRUE(inSight(roll_.headY()));
}

// With its frame, and with the status bar in sight.
TEST_F(Window, ItOpensNoLargerThanTheScreen) {
    const PrinterWindow another{roll_, intake_, held_, {}};
    const QSize room = another.screen()->availableSize();
    EXPECT_LT(another.width(), room.width());
    EXPECT_LT(another.height(), room.height() - 30);
}

TEST_F(Window, ZoomByKeysAndWheel) {
    press(Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_DOUBLE_EQ(view_.zoom(), 1.25);
    EXPECT_TRUE(label("count").endsWith(QStringLiteral("125%")));
    press(Qt::Key_Minus, Qt::ControlModifier);
    press(Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_DOUBLE_EQ(view_.zoom(), 0.8);
    press(Qt::Key_0, Qt::ControlModifier);
    EXPECT_DOUBLE_EQ(view_.zoom(), 1.0);
    press(Qt::Key_1, Qt::ControlModifier);
    EXPECT_NEAR(view_.zoom() * 9.5 * 96, view_.viewport()->width(), 1);
    view_.setZoom(1);
    QWheelEvent wheel(QPointF(50, 50), view_.viewport()->mapToGlobal(QPointF(50, 50)), {},
                      QPoint(0, 120), Qt::NoButton, Qt::ControlModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(view_.viewport(), &wheel);
    EXPECT_DOUBLE_EQ(view_.zoom(), 1.15);
    view_.setZoom(100);
    EXPECT_DOUBLE_EQ(view_.zoom(), PaperView::mostZoom);
}

TEST_F(Window, FindsCapitalsAndAccentsAlikeDownUpAndAround) {
    job("nada\fA\xC7\xC3O aqui\r\n\f\f\fa\xE7\xE3o de novo a\xE7\xE3o\r\n");
    press(Qt::Key_Home);
    press(Qt::Key_F, Qt::ControlModifier);
    auto& text = named<QLineEdit>(window_, "searchText");
    EXPECT_TRUE(text.hasFocus());
    keys(text, "acao");
    QTest::keyClick(&text, Qt::Key_Return);
    ASSERT_TRUE(searched());
    EXPECT_EQ(label("searchResult"), QStringLiteral("1 de 3"));
    const int first = scrolled();
    EXPECT_GT(first, 0);
    EXPECT_LE(first, 66);
    press(Qt::Key_F3);
    ASSERT_TRUE(searched());
    const int second = scrolled();
    EXPECT_GT(second, 200);
    press(Qt::Key_F3);  // the second one of that line
    ASSERT_TRUE(searched());
    EXPECT_EQ(label("searchResult"), QStringLiteral("3 de 3"));
    press(Qt::Key_F3);
    ASSERT_TRUE(searched());
    EXPECT_EQ(label("searchResult"), QStringLiteral("1 de 3 · a busca deu a volta no papel"));
    EXPECT_LE(scrolled(), 66);
    press(Qt::Key_F3, Qt::ShiftModifier);
    ASSERT_TRUE(searched());
    EXPECT_GT(scrolled(), 200);
    // The buttons do what the keys do.
    const auto clickAction = [this](const char* name) {
        auto& bar = named<QToolBar>(window_, "searchBar");
        auto* button = bar.widgetForAction(&named<QAction>(window_, name));
        QTest::mouseClick(button, Qt::LeftButton);
        return searched();
    };
    ASSERT_TRUE(clickAction("searchPrevious"));
    EXPECT_EQ(label("searchResult"), QStringLiteral("2 de 3"));
    ASSERT_TRUE(clickAction("searchNext"));
    EXPECT_EQ(label("searchResult"), QStringLiteral("3 de 3"));
    text.clear();
    keys(text, "zebra");
    QTest::keyClick(&text, Qt::Key_Return);
    ASSERT_TRUE(searched());
    EXPECT_EQ(label("searchResult"), QStringLiteral("O papel não tem este texto."));
    QTest::keyClick(&text, Qt::Key_Escape);
    EXPECT_FALSE(named<QToolBar>(window_, "searchBar").isVisible());
    EXPECT_TRUE(view_.hasFocus());
}

TEST_F(Window, ARegionMarkedWithTheMouseIsCopiedAsText) {
    job("          primeira coluna   resto\r\n\r\n            terceira  linha   resto\r\n");
    press(Qt::Key_Home);
    EXPECT_FALSE(named<QAction>(window_, "copy").isEnabled());
    QTest::mousePress(view_.viewport(), Qt::LeftButton, {}, at(0.95, 0.01));
    QTest::mouseMove(view_.viewport(), at(2.0, 0.3));
    QTest::mouseRelease(view_.viewport(), Qt::LeftButton, {}, at(2.72, 0.49));
    QMouseEvent drag(QEvent::MouseMove, at(2.72, 0.49),
                     view_.viewport()->mapToGlobal(at(2.72, 0.49)), Qt::NoButton, Qt::LeftButton,
                     {});
    QApplication::sendEvent(view_.viewport(), &drag);
    EXPECT_TRUE(named<QAction>(window_, "copy").isEnabled());
    press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text().toStdString(),
              "primeira coluna\n\n  terceira  linha");
    press(Qt::Key_Escape);
    EXPECT_FALSE(view_.selection());
}

TEST_F(Window, TheFormInSightIsMarkedAndCopied) {
    job("um\fdois\r\nlinha\f");
    view_.showTop(11 * unitsPerInch);
    press(Qt::Key_A, Qt::ControlModifier);
    press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text().toStdString(), "dois\nlinha");
}

TEST_F(Window, JobsAreSteppedThrough) {
    job("a\f\f", "um");
    job("b\f\f", "dois");
    job("c\f\f", "três");
    press(Qt::Key_Home);
    press(Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(scrolled(), 2 * 66);
    press(Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(scrolled(), 4 * 66);
    press(Qt::Key_PageUp, Qt::ControlModifier);
    EXPECT_EQ(scrolled(), 2 * 66);
    press(Qt::Key_PageUp, Qt::ControlModifier);
    EXPECT_EQ(scrolled(), 0);
    press(Qt::Key_PageUp, Qt::ControlModifier);
    EXPECT_EQ(scrolled(), 0);
}

TEST_F(Window, TornOffPaperIsGone) {
    job("um\f\fdois");
    press(Qt::Key_Home);
    press(Qt::Key_PageDown);
    press(Qt::Key_PageDown);
    ASSERT_TRUE(QTest::qWaitFor([this] { return view_.unseenForms() == 0; }, printerLimit));
    choose(window_, "paperMenu", "tearOff");
    EXPECT_EQ(label("count"), QStringLiteral("0 trabalho(s), 1 formulário(s)  ·  100%"));
    EXPECT_EQ(view_.verticalScrollBar()->value(), 0);
    job("novo");
    ASSERT_EQ(roll_.page(0)->lines.size(), 1U);
    EXPECT_EQ(roll_.page(0)->lines[0].y, 0);
}

TEST_F(Window, PaperThatNobodySawIsTornOffAfterAQuestionOnly) {
    job("um\f\f\f\f\fdois");
    EXPECT_GT(view_.unseenForms(), 0U);
    choose(window_, "paperMenu", "tearOff");
    auto* question = &named<QMessageBox>(window_, "tearOffQuestion");
    EXPECT_TRUE(question->text().contains(QStringLiteral("ainda não foram vistos")));
    QTest::keyClick(question, Qt::Key_Return);  // the paper stays unless one says so
    EXPECT_EQ(roll_.shownJobs(), 1U);
    ASSERT_TRUE(QTest::qWaitFor(
        [this] { return window_.findChild<QMessageBox*>("tearOffQuestion") == nullptr; },
        printerLimit));
    choose(window_, "paperMenu", "tearOff");
    question = &named<QMessageBox>(window_, "tearOffQuestion");
    click(*question, "tearOffYes");
    EXPECT_EQ(roll_.jobs().size(), 0U);
    EXPECT_EQ(view_.unseenForms(), 0U);
}

TEST_F(Window, AJobThatComesWhileOneLooksElsewhereIsOffered) {
    auto& offer = named<QPushButton>(window_, "newJob");
    job("um\f\f\f");
    EXPECT_FALSE(offer.isVisible());
    press(Qt::Key_Home);
    job("dois\r\n");
    EXPECT_TRUE(offer.isVisible());
    EXPECT_EQ(offer.text(), QStringLiteral("Chegou um trabalho: ver"));
    job(" \x0F");  // sets the printer up for the one behind it
    job("\f\f\ftrês\r\n");
    EXPECT_EQ(offer.text(), QStringLiteral("Chegaram 2 trabalhos: ver o último"));
    EXPECT_EQ(scrolled(), 0);
    click(window_, "newJob");
    EXPECT_TRUE(inSight(roll_.headY() - 360));
    EXPECT_FALSE(offer.isVisible());
    EXPECT_TRUE(view_.hasFocus());
    job("quatro\r\n");
    EXPECT_FALSE(offer.isVisible());
}

// A note has two jobs: one sets its printer up.
TEST_F(Window, ANoteCountsAsOneJob) {
    for (const std::string& bytes : test::streamsOf(test::formNamed("1521"), {}, 15)) {
        job(QByteArray::fromStdString(bytes));
    }
    EXPECT_EQ(roll_.jobs().size(), 2U);
    EXPECT_TRUE(label("count").startsWith(QStringLiteral("1 trabalho(s)")));
}

TEST_F(Window, ASavedFileIsToldWithItsPathAndNamedByItsDocument) {
    job("um\r\n", "pasta/job-007.prn");
    saveAs_ = file("p.txt");
    choose(window_, "fileMenu", "saveText");
    EXPECT_EQ(suggested_, QStringLiteral("job-007.txt"));
    EXPECT_EQ(window_.statusBar()->currentMessage(),
              QStringLiteral("Gravado em ") + QDir::toNativeSeparators(file("p.txt")));
    job("dois\r\n", "rede 127.0.0.1, 10:32:05");
    saveAs_.clear();
    choose(window_, "fileMenu", "savePdf");
    EXPECT_EQ(suggested_, QStringLiteral("rede-127.0.0.1-10h32h05.pdf"));
}

TEST_F(Window, ANotesFileIsNamedByItsNumber) {
    for (const std::string& bytes : test::streamsOf(test::formNamed("1361"), {}, 15)) {
        job(QByteArray::fromStdString(bytes));
    }
    choose(window_, "formMenu", "form_ImprimeNF_1361");
    press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_TRUE(
        QRegularExpression(QStringLiteral("^nota-[0-9]+\\.pdf$")).match(suggested_).hasMatch())
        << suggested_.toStdString();
}

// Chosen in the window: what comes is held, shown, and goes when the button is clicked.
TEST_F(Window, JobsAreHeldAndPassedOnByClicks) {
    window_.onHold([this](const QString& queue) {
        if (QString wrong = held_.open(folder_.filePath("retidos")); !wrong.isEmpty()) {
            return wrong;
        }
        intake_.keepIn(&held_);
        held_.passTo(queue, std::nullopt);
        return QString();
    });
    chosenQueue_ = QStringLiteral("LX300");
    choose(window_, "queueMenu", "passTo");
    for (const char* bytes : {" \x0F", "um\r\n", "\f\f\fdois\r\n", "tres\r\n"}) {
        ASSERT_TRUE(intake_.begin("rede", JobIntake::Kind::Printed));
        ASSERT_TRUE(intake_.take(bytes));
        ASSERT_TRUE(intake_.end());
    }
    auto& table = named<QTableWidget>(window_, "heldJobs");
    ASSERT_TRUE(table.isVisible());
    ASSERT_EQ(table.rowCount(), 3) << "the note and its set-up are one row";
    EXPECT_TRUE(label("count").startsWith(QStringLiteral("3 retido(s)")));
    EXPECT_TRUE(label("heldQueue").startsWith(QStringLiteral("Fila LX300")));
    const auto state = [&table](int row) { return table.item(row, 4)->text(); };
    const auto clickRow = [&table](int row) {
        clickAt(*table.viewport(), table.visualItemRect(table.item(row, 4)).center());
    };
    const auto& release = named<QPushButton>(window_, "heldRelease");
    EXPECT_FALSE(release.isEnabled());
    view_.setZoom(0.5);
    clickRow(1);
    EXPECT_EQ(scrolled(), static_cast<int>(roll_.jobs()[2].y / 360)) << "its place on the paper";

    queue_.refuses = [](RecordingSpooler::Call call, std::size_t) {
        return call == RecordingSpooler::Call::Open;
    };
    click(window_, "heldRelease");
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return state(1) == QStringLiteral("retido: não há fila \"LX300\" nesta máquina"); },
        printerLimit))
        << state(1).toStdString();
    {
        const std::lock_guard lock(queue_.mutex);
        queue_.refuses = nullptr;
    }
    clickRow(0);
    click(window_, "heldRelease");
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return state(0) == QStringLiteral("repassado"); }, printerLimit));
    EXPECT_EQ(queue_.jobs(), (std::vector<std::string>{" \x0F", "um\r\n"}));
    clickRow(2);
    click(window_, "heldRefuse");
    EXPECT_EQ(state(2), QStringLiteral("recusado"));
    click(window_, "heldForget");
    click(named<QMessageBox>(window_, "forgetQuestion"), "forgetYes");
    EXPECT_EQ(table.rowCount(), 2);
    click(window_, "heldReleaseAll");
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return state(1) == QStringLiteral("repassado"); }, printerLimit));
    EXPECT_EQ(queue_.jobs().back(), "\f\f\fdois\r\n");
}

// After a crash the queue may be unable to tell: then the user does.
TEST_F(Window, OfADoubtfulJobTheUserIsAsked) {
    ASSERT_EQ(held_.open(folder_.filePath("retidos")), QString());
    intake_.keepIn(&held_);
    queue_.refuses = [](RecordingSpooler::Call call, std::size_t) {
        return call == RecordingSpooler::Call::EndDocument;
    };
    queue_.fate = [](int) { return JobFate::Doubtful; };
    held_.passTo("LX300", std::chrono::milliseconds(0));
    ASSERT_TRUE(intake_.begin("rede", JobIntake::Kind::Printed));
    ASSERT_TRUE(intake_.take("um\r\n"));
    ASSERT_TRUE(intake_.end());
    const auto& yes = named<QPushButton>(window_, "heldOnPaper");
    EXPECT_TRUE(QTest::qWaitFor([&] { return yes.isVisible(); }, printerLimit));
    const auto& table = named<QTableWidget>(window_, "heldJobs");
    EXPECT_TRUE(table.item(0, 4)->text().startsWith(QStringLiteral("em dúvida: ")));
    EXPECT_FALSE(named<QPushButton>(window_, "heldRelease").isEnabled());
    click(window_, "heldOnPaper");
    EXPECT_EQ(table.item(0, 4)->text(), QStringLiteral("repassado"));
    EXPECT_FALSE(yes.isVisible());
}

TEST_F(Window, TheHelpTellsTheVersion) {
    choose(window_, "helpMenu", "about");
    auto& box = named<QMessageBox>(window_, "aboutBox");
    EXPECT_TRUE(box.text().contains(QStringLiteral("Versão 1.17.0")));
    EXPECT_EQ(box.textFormat(), Qt::PlainText);
    QTest::keyClick(&box, Qt::Key_Return);
}

TEST_F(Window, ThePaperIsSavedAsPdfPicturesAndText) {
    job("um\f\r\ndois\r\n");
    saveAs_ = file("p.pdf");
    press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_TRUE(test::output(QStringLiteral("pdfinfo"), {saveAs_})
                    .contains(QRegularExpression(QStringLiteral("Pages: +2\\b"))));
    saveAs_ = file("p.png");
    press(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_FALSE(QImage(file("p.png")).isNull());
    EXPECT_FALSE(QImage(file("p-002.png")).isNull());
    saveAs_ = file("p.txt");
    choose(window_, "fileMenu", "saveText");
    QFile text(saveAs_);
    ASSERT_TRUE(text.open(QIODevice::ReadOnly));
    EXPECT_EQ(text.readAll(), QByteArray("um\n\f\ndois\n"));
    EXPECT_EQ(asked_, QStringList({"Salvar PDF", "Salvar figuras", "Salvar texto"}));
    EXPECT_EQ(window_.errorBox(), nullptr);
}

TEST_F(Window, AFileThatCannotBeWrittenIsToldAndThePaperStays) {
    job("um");
    saveAs_ = file("nada/p.pdf");
    press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_TRUE(complaint().startsWith(QStringLiteral("Não foi possível gravar o papel (")));
    EXPECT_EQ(roll_.page(0)->lines.size(), 1U);
    saveAs_.clear();  // the user wants no file after all
    press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(window_.errorBox(), nullptr);
}

TEST_F(Window, ThePaperIsPrintedFormByForm) {
    job("um\fdois\ftres\fquatro");
    print_ = [this](QPrinter& printer) {
        EXPECT_EQ(printer.toPage(), 4);
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(file("saida.pdf"));
        printer.setFromTo(2, 3);
        return true;
    };
    press(Qt::Key_P, Qt::ControlModifier);
    const QString info = test::output(QStringLiteral("pdfinfo"), {file("saida.pdf")});
    EXPECT_TRUE(info.contains(QRegularExpression(QStringLiteral("Pages: +2\\b"))));
    EXPECT_TRUE(info.contains(QStringLiteral("684 x 792"))) << info.toStdString();
    const QString text =
        test::output(QStringLiteral("pdftotext"), {file("saida.pdf"), QStringLiteral("-")});
    EXPECT_TRUE(text.contains(QStringLiteral("dois")));
    EXPECT_TRUE(text.contains(QStringLiteral("tres")));
    EXPECT_FALSE(text.contains(QStringLiteral("quatro")));
}

TEST_F(Window, JobFilesAreOpenedOneAfterTheOther) {
    for (const char* name : {"a.prn", "b.prn"}) {
        write(name, QByteArray("trabalho ") + name + "\r\n");
    }
    open_ = {file("a.prn"), file("nada.prn"), file("b.prn")};
    press(Qt::Key_O, Qt::ControlModifier);
    ASSERT_TRUE(QTest::qWaitFor([this] { return intake_.ended() == 2; }, printerLimit));
    ASSERT_TRUE(settled());
    EXPECT_TRUE(complaint().startsWith(QStringLiteral("Não foi possível ler o trabalho \"") +
                                       file("nada.prn")));
    ASSERT_EQ(roll_.jobs().size(), 2U);
    EXPECT_EQ(roll_.jobs()[1].name, "b.prn");
    EXPECT_EQ(textIn(roll_, regionOf(roll_, 0)).toStdString(), "trabalho a.prn\ntrabalho b.prn");
}

// With its form the note's printer is set up for it, and the boxes stand under the text.
TEST_F(Window, AFormIsChosenFromTheMenu) {
    for (const std::string& bytes : test::streamsOf(test::formNamed("1521"), {}, 15)) {
        job(QByteArray::fromStdString(bytes));
    }
    const QImage blank = view_.grab().toImage();
    choose(window_, "formMenu", "form_ImprimeNF_1521");
    EXPECT_TRUE(roll_.dialect().condensed);
    EXPECT_EQ(roll_.dialect().formHeight, 11 * unitsPerInch);
    EXPECT_EQ(roll_.printedForms(), 1U);
    EXPECT_NE(view_.grab().toImage(), blank);
    EXPECT_TRUE(named<QAction>(window_, "form_ImprimeNF_1521").isChecked());
    choose(window_, "formMenu", "form_");
    EXPECT_TRUE(named<QAction>(window_, "form_").isChecked());
}

TEST_F(Window, EachJobLiesOnItsOwnFormUntilOneIsChosen) {
    const JobKind note{.document = JobDocument::Note, .form = "ImprimeNF_1361", .itemLines = 13};
    const JobKind cheque{.document = JobDocument::Cheque, .form = "Cheque", .itemLines = {}};
    EXPECT_TRUE(named<QAction>(window_, "form_job").isChecked());
    EXPECT_EQ(label("paperName"), QStringLiteral("Papel em branco"));
    job("nota\r\n", "job", note);
    EXPECT_EQ(label("paperName"), QStringLiteral("Nota: 1361, 141, 761"));
    job("cheque\r\n", "job", cheque);
    EXPECT_EQ(label("paperName"), QStringLiteral("Cheque: outros bancos"));
    ASSERT_EQ(roll_.printedForms(), 2U);
    EXPECT_EQ(roll_.page(1)->shape.height, 3 * unitsPerInch);
    job("outro\r\n");
    EXPECT_EQ(label("paperName"),
              QStringLiteral("Cheque: outros bancos (o trabalho não diz o seu papel)"));

    choose(window_, "formMenu", "form_ImprimeNF_7");
    EXPECT_EQ(label("paperName"), QStringLiteral("Nota: 7"));
    EXPECT_EQ(roll_.printedForms(), 1U) << "one form under all";
    EXPECT_EQ(roll_.page(0)->design, nullptr);
    job("mais um\r\n", "job", cheque);
    EXPECT_EQ(roll_.printedForms(), 1U);

    choose(window_, "formMenu", "form_job");
    EXPECT_EQ(label("paperName"), QStringLiteral("Cheque: outros bancos"));
    ASSERT_EQ(roll_.printedForms(), 2U);
    EXPECT_EQ(roll_.page(0)->design->name, "ImprimeNF_1361");
    EXPECT_EQ(roll_.page(1)->design->name, "Cheque");
    EXPECT_EQ(roll_.page(1)->lines.size(), 3U);
}

// Not that of the job that came last: at the ends of the paper, where neither a short form can
// be brought to the middle, it is the first or the last.
TEST_F(Window, TheStatusBarTellsThePaperThatIsLookedAt) {
    job("cheque\r\n", "a", {.document = JobDocument::Cheque, .form = "Cheque", .itemLines = {}});
    job("nota\r\n", "b",
        {.document = JobDocument::Note, .form = "ImprimeNF_1361", .itemLines = 13});
    job("boleto\r\n", "c", {.document = JobDocument::Slip, .form = "Boleto_1084", .itemLines = {}});
    const QString slip = label("paperName");
    EXPECT_TRUE(slip.startsWith(QStringLiteral("Boleto")));
    press(Qt::Key_Home);
    EXPECT_EQ(label("paperName"), QStringLiteral("Cheque: outros bancos"));
    press(Qt::Key_PageDown);
    EXPECT_EQ(label("paperName"), QStringLiteral("Nota: 1361, 141, 761"));
    press(Qt::Key_End);
    EXPECT_EQ(label("paperName"), slip);
    press(Qt::Key_PageUp, Qt::ControlModifier);
    EXPECT_EQ(label("paperName"), QStringLiteral("Nota: 1361, 141, 761"));
}

TEST_F(Window, AWideDocumentLeavesTheOtherPapersTheirWidth) {
    job("nota\r\n", "a",
        {.document = JobDocument::Note, .form = "ImprimeNF_1361", .itemLines = 13});
    job(QByteArray(100, 'x') + "\r\n", "b",
        {.document = JobDocument::OrderSheet, .form = "OrdemFaturamento", .itemLines = {}});
    press(Qt::Key_Home);
    view_.setZoom(0.5);
    const auto paperAt = [this](int y) {
        const QImage image = view_.viewport()->grab().toImage();
        const QColor behind = image.pixelColor(0, y);
        int pixels = 0;
        for (int x = 0; x < image.width(); ++x) {
            pixels += image.pixelColor(x, y) != behind ? 1 : 0;
        }
        return pixels;
    };
    EXPECT_NEAR(paperAt(10), 9.5 * 48, 2);
    EXPECT_NEAR(paperAt(11 * 48 + 10), 14.875 * 48, 2);
    saveAs_ = file("dia.pdf");
    press(Qt::Key_S, Qt::ControlModifier);
    const QString pages = output(QStringLiteral("pdfinfo"), {"-l", "2", saveAs_});
    EXPECT_TRUE(pages.contains(QRegularExpression("Page +1 size: +684 x"))) << pages.toStdString();
    EXPECT_TRUE(pages.contains(QRegularExpression("Page +2 size: +1071 x"))) << pages.toStdString();
}

// Nobody tells what these jobs print: a note's bytes do, other text stays on the paper it is on.
TEST_F(Window, AJobThatDoesNotTellItsPaperIsKnownByItsBytes) {
    job("qualquer texto\r\n");
    EXPECT_EQ(label("paperName"),
              QStringLiteral("Papel em branco (o trabalho não diz o seu papel)"));
    for (const std::string& bytes : streamsOf(formNamed("1361"), {}, 13)) {
        job(QByteArray::fromStdString(bytes), "nota");
    }
    EXPECT_EQ(label("paperName"),
              QStringLiteral("Nota: 1361, 141, 761 (reconhecido pelo conteúdo)"));
    ASSERT_EQ(roll_.printedForms(), 2U);
    EXPECT_EQ(roll_.page(0)->design, nullptr);
    ASSERT_NE(roll_.page(1)->design, nullptr);
    EXPECT_EQ(roll_.page(1)->design->name, "ImprimeNF_1361");
    EXPECT_TRUE(named<QPlainTextEdit>(window_, "log")
                    .toPlainText()
                    .endsWith(QStringLiteral(
                        "nota: impresso. Papel reconhecido pelo conteúdo: Nota: 1361, 141, 761.")));
    // The next note follows on the next form of the same paper.
    for (const std::string& bytes : streamsOf(formNamed("1361"), {}, 13)) {
        job(QByteArray::fromStdString(bytes), "nota");
    }
    EXPECT_EQ(roll_.printedForms(), 3U);
    EXPECT_EQ(roll_.page(2)->design, roll_.page(1)->design);
}

TEST_F(Window, AFormOfAFileIsChosenOrRefused) {
    open_ = {file("nada.txt")};
    choose(window_, "formMenu", "form_file");
    EXPECT_TRUE(complaint().startsWith(QStringLiteral("não há formulário nem arquivo")));
    EXPECT_TRUE(named<QAction>(window_, "form_job").isChecked());
    write("meu.txt", "altura 33\ncaixa 3 3 10 2 Meu\n");
    open_ = {file("meu.txt")};
    choose(window_, "formMenu", "form_file");
    EXPECT_EQ(window_.errorBox(), nullptr);
    EXPECT_EQ(roll_.dialect().formHeight, 33 * 360);
    EXPECT_TRUE(named<QAction>(window_, "form_file").isChecked());
    open_.clear();
    choose(window_, "formMenu", "form_file");
    EXPECT_TRUE(named<QAction>(window_, "form_file").isChecked());
}

TEST_F(Window, RulerAndBandsAreSwitched) {
    const QImage plain = view_.grab().toImage();
    press(Qt::Key_R, Qt::ControlModifier);
    const QImage ruled = view_.grab().toImage();
    EXPECT_NE(ruled, plain);
    press(Qt::Key_R, Qt::ControlModifier);
    EXPECT_EQ(view_.grab().toImage(), plain);
    choose(window_, "viewMenu", "bands");
    EXPECT_NE(view_.grab().toImage(), plain);
}

TEST_F(Window, TheLogTellsWhatWasNotPrintedAndHowJobsEnded) {
    job(" \x1B#3", "mistério.prn");
    intake_.begin(QStringLiteral("rede"));
    intake_.end(QStringLiteral("a conexão foi interrompida."));
    auto& dock = named<QDockWidget>(window_, "logPanel");
    EXPECT_FALSE(dock.isVisible());
    press(Qt::Key_F8);
    EXPECT_TRUE(dock.isVisible());
    const auto& text = named<QPlainTextEdit>(window_, "log");
    EXPECT_TRUE(QTest::qWaitFor(
        [&] {
            return text.toPlainText().contains(
                QStringLiteral("trabalho 1, linha 1, coluna 2, bytes 1B 23: "));
        },
        printerLimit));
    const QString log = text.toPlainText();
    EXPECT_TRUE(log.contains(QStringLiteral("rede: a conexão foi interrompida.")));
    press(Qt::Key_F8);
    EXPECT_FALSE(dock.isVisible());
}

TEST_F(Window, TheStatusBarTellsLineAndColumnUnderTheMouse) {
    job("\x0F"
        "abcdefghij klm\r\n");
    press(Qt::Key_Home);
    const double cell = 126.0 / 2160;
    QMouseEvent move(QEvent::MouseMove, at(11.5 * cell, 0.08),
                     view_.viewport()->mapToGlobal(at(11.5 * cell, 0.08)), Qt::NoButton,
                     Qt::NoButton, {});
    QApplication::sendEvent(view_.viewport(), &move);
    EXPECT_EQ(label("position"), QStringLiteral("formulário 1, linha 1, coluna 12"));
    QMouseEvent below(QEvent::MouseMove, at(2.05, 1.05),
                      view_.viewport()->mapToGlobal(at(2.05, 1.05)), Qt::NoButton, Qt::NoButton,
                      {});
    QApplication::sendEvent(view_.viewport(), &below);
    EXPECT_EQ(label("position"), QStringLiteral("formulário 1, linha 7, coluna 21"));
}

// A job of 10,000 forms comes in pieces: the window takes keys and paints in between.
TEST_F(Window, StaysAwakeWhileTenThousandFormsComeIn) {
    QFile out(file("longo.prn"));
    ASSERT_TRUE(out.open(QIODevice::WriteOnly));
    const QByteArray form = QByteArray("uma linha do formulario, com algum texto\r\n").repeated(66);
    for (int i = 0; i < 10'000; ++i) {
        out.write(form);
    }
    out.close();
    open_ = {file("longo.prn")};
    int turns = 0;
    QTimer awake;
    QObject::connect(&awake, &QTimer::timeout, [&turns] { ++turns; });
    awake.start(0);
    press(Qt::Key_O, Qt::ControlModifier);
    press(Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_DOUBLE_EQ(view_.zoom(), 1.25);
    EXPECT_TRUE(intake_.busy());
    ASSERT_TRUE(QTest::qWaitFor([this] { return intake_.ended() == 1; }, 6 * printerLimit));
    // 28 MB in pieces of 256 KB, and the event loop turned between any two.
    EXPECT_GT(turns, 90);
    ASSERT_TRUE(settled());
    EXPECT_EQ(roll_.printedForms(), 10'000U);
    press(Qt::Key_End);
    EXPECT_GE(view_.presentForm(), 9'999U);
}

TEST_F(Window, EitherEnterOfTheKeyboardPassesAJobOn) {
    const auto& release = named<QAction>(window_, "release");
    EXPECT_TRUE(release.shortcuts().contains(QKeySequence(Qt::CTRL | Qt::Key_Return)));
    EXPECT_TRUE(release.shortcuts().contains(QKeySequence(Qt::CTRL | Qt::Key_Enter)));
    EXPECT_TRUE(release.toolTip().endsWith(QStringLiteral("(Ctrl+Enter)")));
}

TEST_F(Window, EveryCommandHasATextAndAHint) {
    int seen = 0;
    for (const QAction* action : window_.findChildren<QAction*>()) {
        if (!action->objectName().isEmpty() && !action->objectName().startsWith(u"form_") &&
            action->menu() == nullptr && !action->objectName().startsWith(u"_q_")) {
            EXPECT_FALSE(action->text().isEmpty()) << action->objectName().toStdString();
            EXPECT_FALSE(action->toolTip().isEmpty()) << action->objectName().toStdString();
            ++seen;
        }
    }
    EXPECT_GT(seen, 18);
}

TEST_F(Window, AReaderSpeaksOfThePaper) {
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&view_)->text(QAccessible::Name),
              QStringLiteral("Papel impresso"));
    job("\r\n  NOTA   FISCAL\r\nfim\r\n");
    const auto line = [this] {
        return QAccessible::queryAccessibleInterface(&view_)->text(QAccessible::Description);
    };
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return line() == QStringLiteral("formulário 1, linha 2: NOTA FISCAL"); },
        printerLimit))
        << line().toStdString();
}

}  // namespace
}  // namespace tarn::test
