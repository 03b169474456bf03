// What the label screens ask of the server and tell the user, apart from any widget.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "gateway/sessao.h"
#include "labels/print_labels.h"
#include "labels/queue.h"
#include "tests/labels/label_answers.h"
#include "tests/support/boxes.h"
#include "tests/support/test_environment.h"

namespace tarn::test {

class LabelFlows : public testing::Test {
protected:
    LabelFlows() {
        session.NCOMPANYCODE = 2161;
        session.UserCode = "77";
        session.SERVERNAME = "SRV1";
        session.TipoEtiqueta = "F";
        values.TipoFormulario = "4";
        values.MotivoImpressao = "NATAL & ANO";
        values.FilialRemetente = 7;
    }
    bool printRange(const std::string& from, const std::string& to) {
        return printRange(env, from, to);
    }
    bool printRange(TestEnvironment& where, const std::string& from, const std::string& to) {
        const auto found = labels::fetchRange(where.environment, session, values, {from, to});
        if (found) {
            labels::printLabels(where.environment, labels::labelFormOf(values.TipoFormulario),
                                *found, {});
        }
        return found.has_value();
    }
    void expectsNothingPrinted() {
        EXPECT_TRUE(env.printer.operations.empty());
        EXPECT_TRUE(env.spooler.calls.empty());
    }

    TestEnvironment env;
    Sessao session;
    labels::LabelValues values;
};

}  // namespace tarn::test
