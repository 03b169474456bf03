// Answers for the documents, made from a fuzzer's bytes.
#pragma once

#include <string>

#include "gateway/xml_document.h"
#include "tests/fuzz/byte_source.h"

namespace tarn::fuzz {

// Each is the usual answer with some attributes changed; one in eight is the rest of the
// bytes as they are. Empty where that is no answer.
XmlDocument madeOrder(ByteSource& source);
XmlDocument madeDocuments(ByteSource& source);  // of the searches for bills and for slips
XmlDocument madeLabels(ByteSource& source);
XmlDocument madeCustomers(ByteSource& source);

// One row each, some attributes changed.
XmlDocument madeCompany(ByteSource& source);
XmlDocument madePortfolio(ByteSource& source);
XmlDocument madeSender(ByteSource& source);

}  // namespace tarn::fuzz
