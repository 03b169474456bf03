// Loose sheets below each other. Only what is seen is drawn.
#pragma once

#include <QAbstractScrollArea>
#include <QImage>
#include <QTimer>
#include <functional>
#include <map>
#include <optional>
#include <vector>

#include "printer/sheets/sheet_painter.h"
#include "printer/sheets/sheet_pile.h"

namespace tarn::dotmatrix {

class SheetView : public QAbstractScrollArea {
    Q_OBJECT

public:
    // `pile` must outlive this.
    SheetView(SheetPile& pile, const PdfPrograms& programs, QWidget* parent = nullptr);

    // What a file's caption says behind its name: when it came, behind what.
    void setStory(std::function<QString(const SheetFile&)> story);
    // 1 is true size on a screen of 96 dots an inch.
    void setZoom(double zoom);
    // Until the user looks elsewhere the view shows the file that came last.
    void follow(const QString& name);
    void showSheet(const QString& name, int page);
    // What lies at the upper edge: "job-003.pdf, página 2 de 3"; empty for nothing.
    QString presentSheet() const;
    // Whether all that is in sight is drawn, in its present size.
    bool isDrawn() const;
    // Pages whose pictures are held.
    std::size_t picturesHeld() const { return pictures_.size(); }

signals:
    void zoomTurned(bool larger);  // by the wheel
    void sheetClicked(const QString& name);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    // A page with its caption above it, or a file that can't be read, in pixels.
    struct Row {
        std::size_t file = 0;
        QString path{};
        int page = 0;  // from 1; 0 for no page
        int top = 0;
        int caption = 0;  // height
        QSize size{};     // of the page
        int bottom() const;
    };
    struct Place {
        QString path;
        int page = 0;
        double share = 0;  // of the row's height that is above the window
    };
    struct Picture {
        QImage image;  // null where the page can't be drawn
        double dots = 0;
        int version = 0;
        quint64 seen = 0;  // the painting that showed it last
    };
    using Key = std::pair<QString, int>;

    void layOut();
    void layOutAround(const std::optional<Place>& before);
    void addRows(std::size_t file);
    void relay();
    std::optional<Place> place() const;
    void goTo(const Place& place);
    std::size_t rowAt(int y) const;
    QString captionOf(const Row& row) const;
    QRect pageRect(const Row& row) const;
    void paintRow(QPainter& painter, const Row& row);
    void paintPage(QPainter& painter, const Row& row, const QRect& rect);
    SheetWanted wantedOf(const Row& row) const;
    std::optional<SheetWanted> firstMissing() const;
    void drawNext();
    void keep(const SheetWanted& wanted, const QImage& image);
    void dropOld();
    void readOut();

    SheetPile& pile_;
    SheetPainter painter_;
    std::function<QString(const SheetFile&)> story_;
    double zoom_ = 1;
    std::vector<Row> rows_;
    std::map<Key, Picture> pictures_;
    quint64 paintings_ = 0;
    std::optional<QString> following_;  // the file that came last
    bool follows_ = true;
    QTimer reading_;
};

}  // namespace tarn::dotmatrix
