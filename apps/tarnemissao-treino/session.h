// A practice session: the practice server, the virtual printer and the desk, until the desk
// is closed.
#pragma once

#include <QObject>
#include <QString>

#include "apps/tarnemissao-treino/paper_file.h"
#include "apps/tarnemissao-treino/piece.h"
#include "apps/tarnemissao-treino/session_folder.h"

namespace tarn::practice {

class Session : public QObject {
    Q_OBJECT

public:
    // `folder` must be open, and outlive it.
    explicit Session(const SessionFolder& folder);

    void start();
    // Ends all of it; `ended` is told.
    void end();

signals:
    void deskOpened();
    // The session goes on without something.
    void troubled(const QString& trouble);
    // `trouble`: what happened and what to do; empty: the desk was closed.
    void ended(int status, const QString& trouble);

private:
    void connectPieces();
    void serverSaid(const QString& line);
    void openDesk(const QString& address);
    void finish(int status, const QString& trouble);
    QString troubleWith(const Piece& piece, const QString& log) const;

    const SessionFolder& folder_;
    Piece server_;
    Piece printer_;
    Piece desk_;
    PaperFile paper_;
    bool finished_ = false;
};

}  // namespace tarn::practice
