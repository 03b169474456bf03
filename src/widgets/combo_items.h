// Drop-down lists filled with items that carry a number.
#pragma once

#include <cstdint>
#include <span>

#include "common/list_items.h"

class QComboBox;

namespace tarn {

// Empties the list, adds the items and stands on the first one.
void fillList(QComboBox& list, std::span<const ListItem> items);

// Item data of the current item; 0 when none is.
std::int32_t currentItemData(const QComboBox& list);

}  // namespace tarn
