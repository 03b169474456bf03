#include "widgets/combo_items.h"

#include <QComboBox>

namespace tarn {

void encheLista(QComboBox& lista, std::span<const ItemLista> itens) {
    lista.clear();
    for (const ItemLista& item : itens) {
        lista.addItem(QString::fromStdString(item.texto), item.dado);
    }
    lista.setCurrentIndex(0);
}

std::int32_t dadoDaLista(const QComboBox& lista) {
    return lista.currentData().toInt();
}

}  // namespace tarn
