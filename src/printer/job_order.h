// The order in which the files of a folder were printed.
#pragma once

#include <QString>

namespace tarn::dotmatrix {

// By the numbers in their names: job-999 comes before job-1000.
bool comesBefore(const QString& name, const QString& other);

}  // namespace tarn::dotmatrix
