// Rows below a root, and the error of reading what isn't there.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "gateway/xml_document.h"
#include "runtime/runtime_error.h"

namespace tarn::test {

class RowsTest : public testing::Test {
protected:
    const XmlNode& load(std::string_view lines) {
        EXPECT_TRUE(document_.loadXML("<?xml version='1.0'?><PRINCIPAL c='' s='OK'>" +
                                      std::string(lines) + "</PRINCIPAL>"));
        principal_ = document_.selectSingleNode("PRINCIPAL");
        return principal_;
    }

    XmlDocument document_;
    XmlNode principal_;
};

inline void expectObjectError(const auto& action) {
    try {
        action();
        ADD_FAILURE() << "no error";
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.number(), RuntimeErrorCode::ObjectVariable);
    }
}

}  // namespace tarn::test
