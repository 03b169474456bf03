#include "printer/job_order.h"

namespace tarn::dotmatrix {

bool comesBefore(const QString& name, const QString& other) {
    return name.size() != other.size() && name.startsWith(u"job-") && other.startsWith(u"job-")
               ? name.size() < other.size()
               : name < other;
}

}  // namespace tarn::dotmatrix
