#include "printer/paper/paper_name.h"

#include <QFileInfo>
#include <QRegularExpression>

#include "printer/paper/paper_region.h"

namespace tarn::dotmatrix {

namespace {

constexpr const char* numberLabel = "Número";  // of the note's own box on its form

QString noteNumber(PaperRoll& roll, const Form& shape, const FormDesign& design) {
    static const QRegularExpression digits(QStringLiteral("^[0-9]{3,9}$"));
    for (const FormBox& box : design.boxes) {
        if (box.label != numberLabel) {
            continue;
        }
        const QString text = textIn(roll, {box.x, shape.top + box.y, box.x + box.width,
                                           shape.top + box.y + box.height})
                                 .trimmed();
        if (digits.match(text).hasMatch()) {
            return text;
        }
    }
    return {};
}

// As any system takes it for a file's name.
QString asFileName(const std::string& job) {
    static const QRegularExpression others(QStringLiteral("[^\\w.-]+"),
                                           QRegularExpression::UseUnicodePropertiesOption);
    QString name = QFileInfo(QString::fromStdString(job)).fileName();
    name.remove(QRegularExpression(QStringLiteral("\\.prn$")));
    name.replace(u':', u'h').replace(others, QStringLiteral("-"));
    return name;
}

}  // namespace

QString proposedName(PaperRoll& roll, std::size_t form, const FormDesign* design) {
    const Form shape = roll.forms().at(form);
    if (design != nullptr) {
        if (const QString number = noteNumber(roll, shape, *design); !number.isEmpty()) {
            return QStringLiteral("nota-") + number;
        }
    }
    QString name;
    for (const RollJob& job : roll.jobs()) {
        if (job.y >= shape.top + shape.height) {
            break;
        }
        const QString own = asFileName(job.name);
        name = own.isEmpty() ? name : own;
    }
    return name.isEmpty() ? QStringLiteral("papel") : name;
}

}  // namespace tarn::dotmatrix
