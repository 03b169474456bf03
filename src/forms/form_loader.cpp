#include "forms/form_loader.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>

#include "dotmatrix/form_file.h"
#include "forms/form_catalogue.h"

namespace tarn::dotmatrix {

namespace {

constexpr qint64 largestText = 1024LL * 1024;

std::variant<LoadedForm, QString> withPicture(FormDesign design, const QString& file) {
    QImageReader reader(file);
    QImage picture = reader.read();
    if (picture.isNull()) {
        return QStringLiteral("não foi possível ler a figura \"%1\" (%2).")
            .arg(file, reader.errorString());
    }
    return LoadedForm{std::make_shared<const FormDesign>(std::move(design)),
                      std::make_shared<const QImage>(std::move(picture))};
}

std::variant<LoadedForm, QString> fromText(const QByteArray& bytes, const QString& file) {
    auto read = readForm({bytes.constData(), static_cast<std::size_t>(bytes.size())});
    if (const auto* error = std::get_if<FormTextError>(&read)) {
        return QStringLiteral("o formulário \"%1\" tem um erro na linha %2: %3")
            .arg(file)
            .arg(error->line)
            .arg(QString::fromStdString(error->what));
    }
    auto& design = std::get<FormDesign>(read);
    if (design.name.empty()) {
        design.name = QFileInfo(file).completeBaseName().toStdString();
    }
    if (!design.picture.empty()) {
        const QString picture =
            QFileInfo(file).dir().filePath(QString::fromStdString(design.picture));
        return withPicture(std::move(design), picture);
    }
    return LoadedForm{std::make_shared<const FormDesign>(std::move(design)), nullptr};
}

}  // namespace

std::variant<LoadedForm, QString> loadForm(const QString& form, std::optional<int> itemLines) {
    if (auto design = formDrawing(form.toStdString(), itemLines)) {
        return LoadedForm{std::make_shared<const FormDesign>(std::move(*design)), nullptr};
    }
    QFile file(form);
    if (!file.open(QIODevice::ReadOnly)) {
        return QStringLiteral(
                   "não há formulário nem arquivo \"%1\" (%2). Veja os nomes com --formularios.")
            .arg(form, file.errorString());
    }
    if (QImageReader(form).canRead()) {
        FormDesign design;
        design.name = QFileInfo(form).completeBaseName().toStdString();
        return withPicture(std::move(design), form);
    }
    const QByteArray bytes = file.read(largestText + 1);
    if (file.error() != QFileDevice::NoError) {
        return QStringLiteral("não foi possível ler o formulário \"%1\" (%2).")
            .arg(form, file.errorString());
    }
    if (bytes.size() > largestText) {
        return QStringLiteral("o formulário \"%1\" passa de %2 bytes.").arg(form).arg(largestText);
    }
    return fromText(bytes, form);
}

void lay(const LoadedForm& form, PaintOptions& options) {
    options.design = form.design;
    options.picture = form.picture;
}

}  // namespace tarn::dotmatrix
