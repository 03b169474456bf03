// Raw jobs of a test, call by call.
#pragma once

#include <gtest/gtest.h>

#include <string_view>

#include "platform/spooler.h"

namespace tarn::test {

// On the default printer; true when all of it was taken.
inline bool beginJob(Spooler& spooler, std::string_view bytes) {
    return spooler.openPrinter(spooler.defaultPrinter()) && spooler.startDocument({}) &&
           spooler.startPage() && spooler.write(bytes) == bytes.size();
}

inline bool endJob(Spooler& spooler) {
    const bool ended = spooler.endPage() && spooler.endDocument();
    return spooler.closePrinter() && ended;
}

// Of a spooler whose printer isn't open.
inline void expectRefusals(Spooler& spooler) {
    EXPECT_FALSE(spooler.startDocument({}));
    EXPECT_FALSE(spooler.startPage());
    EXPECT_EQ(spooler.write("A"), 0U);
    EXPECT_FALSE(spooler.endPage());
    EXPECT_FALSE(spooler.endDocument());
    EXPECT_FALSE(spooler.closePrinter());
}

}  // namespace tarn::test
