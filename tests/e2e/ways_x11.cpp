#include "tests/e2e/ways_x11.h"

#include <QComboBox>
#include <QRadioButton>
#include <QTableView>

#include "widgets/grid_model.h"

namespace tarn::test::ways {
namespace {

// Rows of the practice data, counted from 0.
constexpr int plainOrder = 0;
constexpr int orderWithObservation = 5;
constexpr int orderWithoutStock = 6;
// Where a note's paper has its number.
constexpr std::size_t numberColumn = 124;
constexpr std::size_t numberWidth = 6;

void fill(QWidget& screen, const char* field, const char* text) {
    named<QLineEdit>(screen, field).setText(QString::fromUtf8(text));
}

void pickItem(QWidget& screen, const char* list, int row) {
    auto& items = named<QComboBox>(screen, list);
    items.setCurrentIndex(row);
    emit items.activated(row);
}

QTableView& grid(QWidget& screen) {
    return named<QTableView>(screen, "sprDados");
}

void tickRow(QWidget& screen, int row) {
    static_cast<GridModel*>(grid(screen).model())->tick(row, true);
}

QWidget& ordersAt(RunningDesk& desk, X11User& hands, int row) {
    QWidget& screen = desk.opens(hands, "mOFT", "FrmOFT");
    hands.inProgram([&] { grid(screen).setCurrentIndex(grid(screen).model()->index(row, 0)); });
    return screen;
}

// By a button of the order list.
QWidget& through(RunningDesk& desk, X11User& hands, int row, const char* button,
                 const char* opened) {
    RunningDesk::press(hands, ordersAt(desk, hands, row), button);
    return desk.appears(hands, opened);
}

// A note has come out, and its screen has found it.
QWidget& note(RunningDesk& desk, X11User& hands, const char* entry) {
    QWidget& list = ordersAt(desk, hands, plainOrder);
    hands.inProgram([&] { named<QPushButton>(list, "cmdSelecionar").click(); });
    hands.settle();
    hands.inProgram([&] { named<QPushButton>(list, "CmdFechar").click(); });
    QWidget& screen = desk.opens(hands, entry, "FrmReImprimeNF");
    hands.inProgram([&] {
        const std::string number =
            desk.spooler.jobs.back().bytes().substr(numberColumn, numberWidth);
        pickItem(screen, "cboSerie", 0);
        fill(screen, "txtNF", number.c_str());
        named<QPushButton>(screen, "cmdPesquisar").click();
    });
    return screen;
}

QWidget& customers(RunningDesk& desk, X11User& hands, QWidget& screen) {
    RunningDesk::press(hands, screen, "cmdPesqCli");
    QWidget& dialog = desk.appears(hands, "FrmPesqCliente");
    hands.inProgram([&] {
        fill(dialog, "txtNmCli", "pão");
        named<QPushButton>(dialog, "cmdPesquisar").click();
    });
    return dialog;
}

QWidget& labelRange(RunningDesk& desk, X11User& hands, const char* button, const char* opened) {
    RunningDesk::press(hands, labelQueue(desk, hands), button);
    QWidget& dialog = desk.appears(hands, opened);
    hands.inProgram([&] {
        fill(dialog, "txtDe", "1");
        fill(dialog, "txtAte", "3");
    });
    return dialog;
}

}  // namespace

QWidget& logon(RunningDesk& desk, X11User& hands) {
    hands.inProgram([&] { QTimer::singleShot(0, &desk.menu, [&desk] { desk.menu.load(); }); });
    QWidget& screen = desk.appears(hands, "FrmLogon");
    hands.inProgram([&] {
        fill(screen, "txtEmpresa", "1361");
        fill(screen, "txtUsuario", "clara");
        fill(screen, "txtSenha", "pratica");
    });
    return screen;
}

QWidget& orders(RunningDesk& desk, X11User& hands) {
    return ordersAt(desk, hands, plainOrder);
}

QWidget& maintenance(RunningDesk& desk, X11User& hands) {
    return through(desk, hands, plainOrder, "cmdDetOFT", "frmManutDetOFT");
}

QWidget& cancelQuestion(RunningDesk& desk, X11User& hands) {
    return through(desk, hands, plainOrder, "CmdCanOft", "MessageBox");
}

QWidget& observationAlert(RunningDesk& desk, X11User& hands) {
    return through(desk, hands, orderWithObservation, "cmdSelecionar", "frmMensagemAlerta");
}

QWidget& stockAlert(RunningDesk& desk, X11User& hands) {
    return through(desk, hands, orderWithoutStock, "cmdSelecionar", "frmMensagemAlerta");
}

QWidget& reprint(RunningDesk& desk, X11User& hands) {
    return note(desk, hands, "mRINF");
}

QWidget& cancellation(RunningDesk& desk, X11User& hands) {
    QWidget& screen = note(desk, hands, "mCNF");
    hands.inProgram([&] {
        named<QRadioButton>(screen, "OptionReimp_1").click();
        pickItem(screen, "CboMot_Can", 1);
    });
    return screen;
}

QWidget& bills(RunningDesk& desk, X11User& hands) {
    QWidget& screen = desk.opens(hands, "mnuDuplicata", "FrmPesqDupli");
    hands.inProgram([&] {
        pickItem(screen, "cboTpDocto", 1);
        fill(screen, "txtDtVncAte", "31/12/2099");
        named<QPushButton>(screen, "cmdPesquisar").click();
        tickRow(screen, 0);
    });
    return screen;
}

QWidget& slips(RunningDesk& desk, X11User& hands) {
    QWidget& screen = desk.opens(hands, "mnuBoleto", "frmPesqBoleto");
    hands.inProgram([&] {
        pickItem(screen, "cboCartCob", 1);
        fill(screen, "txtDtEmsDe", "01/01/2000");
        fill(screen, "txtDtVncAte", "31/12/2099");
        named<QPushButton>(screen, "cmdPesquisar").click();
        tickRow(screen, 0);
        fill(screen, "txtNr_Bol_Banc", "1234");
    });
    return screen;
}

QWidget& customersOfBills(RunningDesk& desk, X11User& hands) {
    return customers(desk, hands, desk.opens(hands, "mnuDuplicata", "FrmPesqDupli"));
}

QWidget& customersOfSlips(RunningDesk& desk, X11User& hands) {
    return customers(desk, hands, desk.opens(hands, "mnuBoleto", "frmPesqBoleto"));
}

QWidget& cheque(RunningDesk& desk, X11User& hands) {
    QWidget& screen = desk.opens(hands, "mnuChequeImpressao", "frmCheque");
    hands.inProgram([&] {
        pickItem(screen, "cboBancoAgConta", 1);
        fill(screen, "txtNumeroCheque", "1001");
        fill(screen, "txtSerie", "A1");
        fill(screen, "txtValor", "1.234,56");
        fill(screen, "txtFavorecido", "Papelaria");
    });
    return screen;
}

QWidget& labelQueue(RunningDesk& desk, X11User& hands) {
    QWidget& screen = desk.opens(hands, "mnuImprClientes", "frmPesqEtiquetas");
    hands.inProgram([&] {
        pickItem(screen, "cboMotivo", 1);
        pickItem(screen, "cboTp_Form", 2);
    });
    return screen;
}

QWidget& labelPrinting(RunningDesk& desk, X11User& hands) {
    return labelRange(desk, hands, "cmdImprimir", "frmImprimirEtiqueta");
}

QWidget& labelDeletion(RunningDesk& desk, X11User& hands) {
    return labelRange(desk, hands, "cmdExcluir", "frmExcluirEtiqueta");
}

QWidget& labelSelection(RunningDesk& desk, X11User& hands) {
    hands.inProgram(
        [&] { QTimer::singleShot(0, &desk.menu, [&desk] { desk.menu.openLabelSelection(); }); });
    QWidget& screen = desk.appears(hands, "FrmImprEtiq");
    hands.inProgram([&] {
        fill(screen, "txtCepDe", "01000000");
        fill(screen, "txtCepAte", "09999999");
    });
    RunningDesk::press(hands, screen, "cmdPesquisar");
    QWidget& query = desk.appears(hands, "MessageBox");
    hands.inProgram([&] { query.close(); });
    desk.appears(hands, "FrmImprEtiq");
    hands.inProgram([&] { tickRow(screen, 0); });
    return screen;
}

QWidget& help(RunningDesk& desk, X11User& hands) {
    return desk.opens(hands, "mnuAjuda", "frmAjuda");
}

}  // namespace tarn::test::ways
