#include "forms/headroom.h"

#include <algorithm>
#include <set>

namespace tarn::dotmatrix {

namespace {

constexpr PaperUnits headroom = unitsPerInch / 12;

}  // namespace

void giveHeadroom(std::vector<FormBox>& boxes) {
    std::set<PaperUnits> tight;
    for (const FormBox& one : boxes) {
        const bool taken = one.y < headroom ||
                           std::any_of(boxes.begin(), boxes.end(), [&one](const FormBox& other) {
                               return other.y < one.y &&
                                      other.y + other.height > one.y - headroom &&
                                      other.x < one.x + one.width && one.x < other.x + other.width;
                           });
        if (taken) {
            tight.insert(one.y);
        }
    }
    for (FormBox& box : boxes) {
        if (tight.count(box.y) == 0) {
            box.y -= headroom;
            box.height += headroom;
        }
    }
}

}  // namespace tarn::dotmatrix
