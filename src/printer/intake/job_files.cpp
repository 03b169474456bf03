#include "printer/intake/job_files.h"

#include <QFileInfo>

#include "platform/job_kind.h"
#include "runtime/file_names.h"

namespace tarn::dotmatrix {

JobFiles::JobFiles(JobIntake& intake, QObject* parent) : QObject(parent), intake_(intake) {
    connect(&intake_, &JobIntake::idle, this, &JobFiles::take, Qt::QueuedConnection);
}

void JobFiles::add(const QStringList& files) {
    waiting_ += files;
    take();
}

// A piece each time round the event loop.
void JobFiles::take() {
    if (!file_) {
        if (waiting_.isEmpty() || intake_.busy()) {
            return;
        }
        file_ = std::make_unique<QFile>(waiting_.takeFirst());
        if (!file_->open(QIODevice::ReadOnly)) {
            emit failed(QStringLiteral("Não foi possível ler o trabalho \"%1\" (%2). Confira o "
                                       "nome do arquivo e a permissão de leitura.")
                            .arg(file_->fileName(), file_->errorString()));
            file_.reset();
            return take();
        }
        intake_.begin(QFileInfo(*file_).fileName(), JobIntake::Kind::LookedAt,
                      jobKindBeside(pathOf(file_->fileName().toStdString())));
    }
    const QByteArray piece = file_->read(JobIntake::readAtOnce);
    if (piece.isEmpty()) {
        const QString trouble =
            file_->error() == QFileDevice::NoError
                ? QString()
                : QStringLiteral("não foi possível ler o arquivo (%1).").arg(file_->errorString());
        file_.reset();
        intake_.end(trouble);
        return;
    }
    if (!intake_.take(piece)) {
        file_.reset();
        return;
    }
    QMetaObject::invokeMethod(this, &JobFiles::take, Qt::QueuedConnection);
}

}  // namespace tarn::dotmatrix
