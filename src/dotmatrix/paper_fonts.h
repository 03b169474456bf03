// The faces of the paper: the needles' own and the form's letters. Needs a QGuiApplication.
#pragma once

#include <QColor>
#include <QFont>

namespace tarn::dotmatrix {

inline constexpr double printEm = 10.5;  // points; capitals come out 7/72 inch high, as 7 needles
                                         // strike
inline const QColor printInk(28, 28, 36);

class PrintFont {
public:
    PrintFont();

    QFont face(bool bold, bool italic) const;
    double pixels() const { return plain_.pixelSize(); }
    double advance() const { return advance_; }  // of a character, in pixels

private:
    QFont plain_;
    double advance_ = 0;
};

QFont formFont();

}  // namespace tarn::dotmatrix
