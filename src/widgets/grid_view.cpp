#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <QTableView>

#include "widgets/grid_model.h"

namespace tarn {
namespace {

constexpr int larguraDaCaixa = 4;  // characters, when the column names no width
constexpr double parteDoMonitor = 0.9;

// A check box in the middle of its cell; the whole cell takes the click.
class CaixaNaCelula : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        QStyleOptionViewItem item = option;
        initStyleOption(&item, index);
        const QStyle& estilo = item.widget != nullptr ? *item.widget->style() : *qApp->style();
        estilo.drawPrimitive(QStyle::PE_PanelItemViewItem, &item, painter, item.widget);
        const QSize lado(estilo.pixelMetric(QStyle::PM_IndicatorWidth, &item, item.widget),
                         estilo.pixelMetric(QStyle::PM_IndicatorHeight, &item, item.widget));
        QStyleOptionButton caixa;
        caixa.rect = QStyle::alignedRect(item.direction, Qt::AlignCenter, lado, item.rect);
        caixa.state = QStyle::State_Enabled |
                      (item.checkState == Qt::Checked ? QStyle::State_On : QStyle::State_Off);
        caixa.palette = item.palette;
        estilo.drawPrimitive(QStyle::PE_IndicatorCheckBox, &caixa, painter, item.widget);
    }

protected:
    bool editorEvent(QEvent* event, QAbstractItemModel* model,
                     const QStyleOptionViewItem& /*option*/, const QModelIndex& index) override {
        const bool solta = event->type() == QEvent::MouseButtonRelease &&
                           static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton;
        if (!solta) {
            return false;
        }
        const bool marcada = index.data(Qt::CheckStateRole).toInt() == Qt::Checked;
        return model->setData(index, marcada ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
    }
};

// The space key in any column of a row is for its check box.
class TeclaEspaco : public QObject {
public:
    TeclaEspaco(QTableView& grade, GradeModel& modelo)
        : QObject(&grade), grade_(grade), modelo_(modelo) {
        grade.installEventFilter(this);
    }

protected:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        if (event->type() != QEvent::KeyPress ||
            static_cast<QKeyEvent*>(event)->key() != Qt::Key_Space) {
            return false;
        }
        const QModelIndex ativa = grade_.currentIndex();
        if (ativa.isValid() && !static_cast<QKeyEvent*>(event)->isAutoRepeat()) {
            modelo_.marca(ativa.row(), !modelo_.marcada(ativa.row()));
        }
        return true;
    }

private:
    QTableView& grade_;
    GradeModel& modelo_;
};

void preparaCaixa(QTableView& grade, GradeModel& modelo) {
    grade.setItemDelegateForColumn(0, new CaixaNaCelula(&grade));
    new TeclaEspaco(grade, modelo);
    if (!modelo.coluna(0).tituloMarcaTodas) {
        return;
    }
    QObject::connect(grade.horizontalHeader(), &QHeaderView::sectionClicked, &modelo,
                     [&modelo](int coluna) {
                         if (coluna == 0) {
                             modelo.alternaPelaUltima();
                         }
                     });
}

}  // namespace

void preparaGrade(QTableView& grade, GradeModel& modelo) {
    grade.setModel(&modelo);
    const int caractere = grade.fontMetrics().averageCharWidth();
    for (int coluna = 0; coluna < modelo.columnCount(); ++coluna) {
        const ColunaGrade& qual = modelo.coluna(coluna);
        const bool caixa = qual.tipo == TipoColuna::Caixa;
        grade.setColumnHidden(coluna, qual.largura == 0 && !caixa);
        grade.setColumnWidth(coluna,
                             (qual.largura == 0 ? larguraDaCaixa : qual.largura) * caractere);
    }
    grade.horizontalHeader()->setSectionsClickable(true);
    grade.horizontalHeader()->setHighlightSections(false);
    grade.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    grade.verticalHeader()->setDefaultSectionSize(grade.fontMetrics().height() * 3 / 2);
    if (modelo.temCaixa()) {
        preparaCaixa(grade, modelo);
    }
}

void ajustaAGrade(QWidget& tela, const QTableView& grade, int linhas) {
    tela.ensurePolished();
    const int moldura = 2 * grade.frameWidth();
    const int altura = grade.horizontalHeader()->sizeHint().height() +
                       grade.verticalHeader()->defaultSectionSize() * linhas + moldura;
    const int largura = grade.horizontalHeader()->length() +
                        grade.verticalHeader()->sizeHint().width() +
                        grade.verticalScrollBar()->sizeHint().width() + moldura;
    const QSize falta = QSize(largura, altura) - grade.sizeHint();
    tela.resize((tela.sizeHint() + falta)
                    .expandedTo(tela.sizeHint())
                    .boundedTo(tela.screen()->availableSize() * parteDoMonitor));
}

}  // namespace tarn
