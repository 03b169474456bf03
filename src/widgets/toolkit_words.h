// Words of the toolkit's dialogs that its own Portuguese translation lacks.
#pragma once

#include <QTranslator>

namespace tarn {

class ToolkitWords : public QTranslator {
public:
    using QTranslator::QTranslator;

    QString translate(const char* context, const char* source, const char* comment,
                      int count) const override;
    bool isEmpty() const override { return false; }
};

}  // namespace tarn
