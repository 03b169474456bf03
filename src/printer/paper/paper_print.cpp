#include "printer/paper/paper_print.h"

#include <QPageSize>
#include <QPainter>
#include <QPrinter>
#include <algorithm>

namespace tarn::dotmatrix {

namespace {

void paintPage(QPainter& painter, const QPrinter& printer, const PaperPainter& drawing,
               const FormPage& page) {
    const QSizeF wanted = pageSizeInPoints(drawing.sheetOf(page), page.shape);
    const QRectF there = printer.pageRect(QPrinter::Point);
    const double fit =
        std::min({1.0, there.width() / wanted.width(), there.height() / wanted.height()});
    const double dots = printer.resolution() / pointsPerInch * fit;
    painter.save();
    painter.scale(dots, dots);
    drawing.paintForm(painter, page);
    painter.restore();
}

}  // namespace

std::optional<QString> printPaper(QPrinter& printer, const PaperPages& paper, std::size_t first,
                                  std::size_t last, const PaintOptions& options,
                                  const WriteProgress& progress) {
    const PaperPainter drawing(options);
    printer.setFullPage(true);
    QPainter painter;
    for (std::size_t form = first; form <= last && form < paper.count; ++form) {
        if (progress && !progress(form)) {
            printer.abort();
            return QStringLiteral("interrompido");
        }
        const auto page = paper.page(form);
        printer.setPageSize(QPageSize(pageSizeInPoints(drawing.sheetOf(*page), page->shape),
                                      QPageSize::Point, QString(), QPageSize::FuzzyMatch));
        if (!(form == first ? painter.begin(&printer) : printer.newPage())) {
            return QStringLiteral("a impressora não aceitou a página");
        }
        paintPage(painter, printer, drawing, *page);
    }
    return painter.end() ? std::nullopt
                         : std::optional(QStringLiteral("a impressora não terminou o trabalho"));
}

}  // namespace tarn::dotmatrix
