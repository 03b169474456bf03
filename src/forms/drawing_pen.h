// The pen that draws a form: it sends the form's own bytes and line ends to a printer, as
// a note does, and keeps a box wherever the head is when a field begins.
#pragma once

#include <span>
#include <string_view>
#include <vector>

#include "dotmatrix/continuous_paper.h"
#include "dotmatrix/escp_interpreter.h"
#include "dotmatrix/form_design.h"
#include "notes/walk.h"

namespace tarn::dotmatrix {

// No box reaches beyond it.
inline constexpr PaperUnits carriage = Dialect{}.carriageWidth;

// Room for as many parcels and services as the form takes, and for `itemLines` items.
class DrawingPen {
public:
    DrawingPen(const FormPitch& pitch, int itemLines);
    DrawingPen(const DrawingPen&) = delete;
    DrawingPen& operator=(const DrawingPen&) = delete;

    PaperUnits height() const { return paper_.y(); }
    // Right edge of the rightmost field that has a width.
    PaperUnits reach() const { return reach_; }
    std::vector<FormBox>& boxes() { return boxes_; }
    std::vector<FormBox>& ownWords() { return ownWords_; }

    void setUp(std::string_view bytes);
    void control(std::string_view bytes);
    void margin(int) {}  // a box is where its field's column is
    void fields(std::span<const notes::Field> list);
    void end(int lineEnds);

    int parcels(const notes::Parcels& block);
    void tooMany(const notes::Parcels&) {}
    void parcel(int number) { labels_ = number <= parcelsPerRow_; }
    int belowParcels(const notes::Parcels& block, int count);

    void items(const notes::Items& block);
    void controlBelowItems(std::string_view bytes) { feed(bytes); }
    int emptyItemLines(const notes::Items& block) const { return block.constant; }

    int services() const { return notes::serviceLines; }
    bool service(int line);

    bool creditToTake() const { return true; }
    void band(const notes::Band& band);

private:
    struct Call {
        PaperUnits x = 0;  // where `column` begins
        int column = notes::firstColumn;
        int end = notes::firstColumn;  // column behind the last field
        PaperUnits cell = 0;
        bool begun = false;
    };

    void begin();
    void feed(std::string_view bytes) { printer_.feed(bytes); }
    void feedLines(int count);
    void field(const notes::Field& field, bool volumes);
    void literal(const notes::Field& field, bool volumes);
    FormBox place(int column, int room, std::string_view label) const;
    void box(int column, int room, std::string_view label);

    ContinuousPaper paper_;
    EscpInterpreter printer_;
    std::vector<FormBox> boxes_;
    std::vector<FormBox> ownWords_;
    PaperUnits reach_ = 0;
    int itemLines_;

    Call call_;
    int owed_ = 0;    // lines that the form takes from those below
    int blanks_ = 0;  // empty boxes of the call so far
    PaperUnits boxHeight_;
    bool labels_ = true;
    int parcelsPerRow_ = 1;
};
static_assert(notes::Pen<DrawingPen>);

}  // namespace tarn::dotmatrix
