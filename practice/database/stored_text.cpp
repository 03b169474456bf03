#include "practice/database/stored_text.h"

#include <QByteArray>
#include <QCryptographicHash>
#include <QString>

#include "runtime/text.h"

namespace tarn::practice {

std::string storedLogin(std::string_view typed) {
    return upperCase(trimBlanks(typed));
}

std::string passwordHash(std::int64_t company, std::string_view login, std::string_view password) {
    const std::string text =
        std::to_string(company) + ':' + storedLogin(login) + ':' + std::string(password);
    return QCryptographicHash::hash(QByteArray::fromStdString(text), QCryptographicHash::Sha256)
        .toHex()
        .toStdString();
}

std::string searchName(std::string_view name) {
    const QString parted = QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size()))
                               .normalized(QString::NormalizationForm_D)
                               .toUpper();
    QString letters;
    for (const QChar c : parted) {
        if (!c.isMark()) {
            letters.append(c);
        }
    }
    return letters.toStdString();
}

}  // namespace tarn::practice
