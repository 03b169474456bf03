#include "widgets/combo_items.h"

#include <QComboBox>

namespace tarn {

void fillList(QComboBox& list, std::span<const ListItem> items) {
    list.clear();
    for (const ListItem& item : items) {
        list.addItem(QString::fromStdString(item.text), item.data);
    }
    list.setCurrentIndex(0);
}

std::int32_t currentItemData(const QComboBox& list) {
    return list.currentData().toInt();
}

}  // namespace tarn
