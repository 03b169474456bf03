// What a page must draw, written down point by point as the layout gives them.
#pragma once

#include <cstdio>
#include <string>
#include <vector>

namespace tarn {

using Operations = std::vector<std::string>;

inline std::string point(double x, double y) {
    char texto[64];
    std::snprintf(texto, sizeof texto, "%.3f\t%.3f", x, y);
    return texto;
}
// A text lands half a centimetre left of and above the layout's point.
inline std::string letters(double x, double y, const char* fonte, int tamanho, bool negrito,
                           const std::string& texto) {
    return "text\t" + point(x - 0.5, y - 0.5) + "\t" + fonte + "\t" + std::to_string(tamanho) +
           (negrito ? "\t1\t" : "\t0\t") + texto;
}
inline std::string arial(double x, double y, int tamanho, const std::string& texto) {
    return letters(x, y, "Arial", tamanho, true, texto);
}
inline std::string thin(double x, double y, int tamanho, const std::string& texto) {
    return letters(x, y, "Arial", tamanho, false, texto);
}
inline std::string courier(double x, double y, int tamanho, const std::string& texto) {
    return letters(x, y, "Courier New", tamanho, true, texto);
}
inline std::string ruledLine(double x1, double y1, double x2, double y2, int largura) {
    return "line\t" + point(x1, y1) + "\t" + point(x2, y2) + "\t" + std::to_string(largura);
}
inline std::string picture(double x, double y, const std::string& nome) {
    return "picture\t" + point(x, y) + "\t" + nome;
}

}  // namespace tarn
