// A manual in the place of the one beside the programs, and a browser that keeps what it is
// asked for.
#pragma once

#include <QObject>
#include <QStringList>
#include <QTemporaryDir>
#include <QUrl>

namespace tarn::test {

class ShippedManual : public QObject {
    Q_OBJECT

public:
    // `pages` by their names in the manual's folder.
    explicit ShippedManual(const QStringList& pages = {QStringLiteral("index.html")});
    ~ShippedManual() override;

    // The files opened so far.
    QStringList opened() const { return opened_; }
    QString page(const QString& name) const { return folder_.filePath(name); }

    // The toolkit calls it by its name.
    Q_INVOKABLE void open(const QUrl& address) { opened_ += address.toLocalFile(); }

private:
    QTemporaryDir folder_;
    QStringList before_;
    QStringList opened_;
};

}  // namespace tarn::test
