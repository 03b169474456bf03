// What a clerk does to a screen, by clicks and keys on the real widgets. A control that
// isn't there ends the program: a walk names the controls of its own screens.
#pragma once

#include <QComboBox>
#include <QWidget>
#include <string>

namespace tarn {

[[noreturn]] void faltaNaTela(const char* nome);

template <typename T>
T& filho(QWidget& janela, const char* nome) {
    T* achado = janela.findChild<T*>(QLatin1StringView(nome));
    if (achado == nullptr) {
        faltaNaTela(nome);
    }
    return *achado;
}

void clica(QWidget& janela, const char* botao);
// Radio buttons and check boxes are clicked on their mark, not on the middle.
void assinala(QWidget& janela, const char* opcao);
// One key stroke a character, accented ones too, where the focus is.
void tecla(QWidget& campo, const std::string& texto);
void digita(QWidget& janela, const char* campo, const std::string& texto);

// The menus of the main window.
void abreMenu(QWidget& janela, const char* menu);
void escolhe(QWidget& janela, const char* menu, const char* entrada);
// An entry that stands in the bar itself.
void clicaNaBarra(QWidget& janela, const char* entrada);

// Clicks a cell of sprDados; row and column are counted from 0.
void clicaNaGrade(QWidget& tela, int linha, int coluna);
// Opens the list and clicks the item of that row.
void escolheNaLista(QWidget& tela, const char* lista, int linha);

// Answers a message box by its default button.
void aceita(QWidget& caixa);

}  // namespace tarn
