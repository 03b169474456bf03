// The desk with a queue of labels behind it, and the boxes that the label screens show.
#pragma once

#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <QWheelEvent>
#include <functional>

#include "desk/mdi_menu.h"
#include "tests/labels/label_answers.h"
#include "tests/support/boxes.h"
#include "tests/support/grid.h"
#include "tests/support/screen_test.h"

namespace tarn::test {

inline const Box printedBox = information(" Etiquetas impressas com sucesso!   ");

inline constexpr char branchesQuery[] =
    "comando=sel_filiais_remetente&ID_EMP_TARN=2161&nId_Pes_Usu=77&ServerName=SRV1";
inline constexpr char reasonsQuery[] =
    "comando=sel_motivos&ID_EMP_TARN=2161&ServerName=SRV1&sIc_Ver_Eti=C";
inline constexpr char deskQuery[] = "comando=sel_dados_empresa&Id_Etb_Tarn=6001&ServerName=SRV1";
inline std::string queueQuery(const std::string& reason, const std::string& from = "",
                              const std::string& to = "") {
    return "comando=sel_etiquetas&ID_EMP_TARN=2161&sDc_Mot_Imp=" + reason + "&nSeq_De=" + from +
           "&nSeq_Ate=" + to + "&ServerName=SRV1";
}
inline std::string senderQuery(const std::string& branch) {
    return "comando=sel_dados_remetente&nId_Emp_Tarn=2161&nId_Etb_Tarn=" + branch +
           "&ServerName=SRV1";
}

class LabelScreens : public ScreenTest {
protected:
    using Work = std::function<void(QWidget&)>;
    // Positions of the queue screen's lists.
    static constexpr int christmas = 1;
    static constexpr int easter = 2;
    static constexpr int south = 1;

    void SetUp() override {
        ScreenTest::SetUp();
        entered(2161, 6001);
        server.on("sel_dados_empresa", answers::branch("F"));
        server.on("sel_motivos", answers::rowset("<z:row DC_MOT_IMP='NATAL'/>"
                                                 "<z:row DC_MOT_IMP='PÁSCOA'/>"));
        server.on("sel_filiais_remetente", answers::rowset("<z:row FILIAL='SUL' ID_ETB='12'/>"
                                                           "<z:row FILIAL='NORTE' ID_ETB='13'/>"));
        server.on("sDc_Mot_Imp=--------", answers::rowset(""));
        server.on("sDc_Mot_Imp=NATAL", labelRows(2));
        server.on("sDc_Mot_Imp=PÁSCOA", answers::rowset(""));
        server.on("sel_dados_remetente", sender);
        menu.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&menu));
    }

    // Opens the queue from the menu, works in it and leaves by its button.
    void inQueue(const Work& work, const char* entry = "mnuImprClientes") {
        modals.then("frmPesqEtiquetas", [work](QWidget& queue) {
            work(queue);
            if (queue.isVisible()) {
                click(queue, "cmdVoltar");
            }
        });
        choose(menu, "mnuEtiquetas", entry);
    }
    // The queue with NATAL read and a form chosen, and nothing of that kept.
    void inReadQueue(int form, const Work& work) {
        inQueue([this, form, work](QWidget& queue) {
            pick(queue, "cboMotivo", christmas);
            pick(queue, "cboTp_Form", form);
            server.addresses.clear();
            work(queue);
        });
    }
    // Opens the print screen from the queue; the work gets it closed.
    void printing(QWidget& queue, const Work& work) {
        modals.then("frmImprimirEtiqueta", work);
        click(queue, "cmdImprimir");
    }
    void deleting(QWidget& queue, const Work& work) {
        modals.then("frmExcluirEtiqueta", work);
        click(queue, "cmdExcluir");
    }
    void inPrinting(int form, const Work& work) {
        inReadQueue(form, [this, work](QWidget& queue) { printing(queue, work); });
    }
    static void range(QWidget& screen, const char* from, const char* to) {
        type(screen, "txtDe", from);
        type(screen, "txtAte", to);
    }

    static std::vector<std::string> items(const QWidget& screen, const char* list) {
        std::vector<std::string> all;
        const auto& box = named<QComboBox>(screen, list);
        all.reserve(static_cast<std::size_t>(box.count()));
        for (int i = 0; i < box.count(); ++i) {
            all.push_back(box.itemText(i).toStdString());
        }
        return all;
    }
    static std::string text(const QWidget& screen, const char* field) {
        return named<QLineEdit>(screen, field).text().toStdString();
    }
    // One notch of the mouse wheel over a drop-down list.
    static void wheelDown(QWidget& list) {
        const QPointF middle = list.rect().center();
        QWheelEvent notch(middle, list.mapToGlobal(middle), {}, {0, -120}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&list, &notch);
    }
    // An impatient user: the next time that events are taken in, the button is pressed by
    // key, and the screen left by Esc and by its frame.
    static void press(QWidget& screen, const char* button) {
        for (const Qt::Key stroke : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Escape}) {
            for (QWidget* target : {&named<QWidget>(screen, button), &screen}) {
                for (const QEvent::Type way : {QEvent::KeyPress, QEvent::KeyRelease}) {
                    QCoreApplication::postEvent(target, new QKeyEvent(way, stroke, Qt::NoModifier));
                }
            }
        }
        QCoreApplication::postEvent(&screen, new QCloseEvent);
    }
    static void pressSoon(QWidget& screen, const char* button) {
        QTimer::singleShot(0, &screen, [&screen, button] { press(screen, button); });
    }
    // What the label beside a field says.
    static std::string labelOf(const QWidget& screen, const char* field) {
        for (const QLabel* label : screen.findChildren<QLabel*>()) {
            if (label->buddy() == &named<QWidget>(screen, field)) {
                return label->text().toStdString();
            }
        }
        return "no label";
    }
    static QTableView& gridOf(const QWidget& screen) {
        return named<QTableView>(screen, "sprDados");
    }
    static std::vector<std::string> headings(const QWidget& screen) {
        return grid::headings(gridOf(screen));
    }
    static int rows(const QWidget& screen) { return grid::rows(gridOf(screen)); }
    // From 1.
    static std::string cell(const QWidget& screen, int row, int column) {
        return grid::cell(gridOf(screen), row, column);
    }
    // What the window of a long run has said by the time a box stands, or the run is over.
    std::vector<std::string> watchProgress(const QWidget& screen,
                                           const std::function<void()>& run) {
        std::vector<std::string> told;
        QTimer watch;
        QObject::connect(&watch, &QTimer::timeout, &watch, [&told, &screen] {
            if (const auto* line = screen.findChild<QLabel*>(QStringLiteral("lblProgress"))) {
                told.push_back(line->text().toStdString());
            }
        });
        watch.start(0);
        boxes.onShow = [&screen](const Box&) {
            EXPECT_EQ(screen.findChild<QLabel*>(QStringLiteral("lblProgress")), nullptr)
                << "the box stands alone";
        };
        run();
        return told;
    }

    MDIMenu menu{desk};
};

}  // namespace tarn::test
