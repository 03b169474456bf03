// Jobs over real loopback sockets.
#include "printer/intake/job_server.h"

#include <gtest/gtest.h>

#include <QTcpSocket>
#include <memory>

#include "tests/printer/intake.h"

namespace tarn::test {

using namespace dotmatrix;
namespace {

template <typename Base>
class Served : public Base {
protected:
    void SetUp() override { ASSERT_TRUE(server_.listen(QHostAddress::LocalHost, 0)); }

    std::unique_ptr<QTcpSocket> connected() {
        auto socket = std::make_unique<QTcpSocket>();
        socket->connectToHost(QHostAddress::LocalHost, server_.serverPort());
        EXPECT_TRUE(QTest::qWaitFor(
            [&] { return socket->state() == QAbstractSocket::ConnectedState; }, limit));
        return socket;
    }
    void send(const QByteArray& bytes) {
        const auto socket = connected();
        socket->write(bytes);
        socket->disconnectFromHost();
        EXPECT_TRUE(QTest::qWaitFor(
            [&] { return socket->state() == QAbstractSocket::UnconnectedState; }, limit));
    }

    JobServer server_{this->intake_};
};
using Server = Served<Intake>;
using SmallServer = Served<SmallIntake>;

TEST_F(Server, ListensOnLoopbackAsToldAndTakesManyJobs) {
    EXPECT_EQ(server_.serverAddress(), QHostAddress(QHostAddress::LocalHost));
    for (int job = 1; job <= 5; ++job) {
        send(QByteArray("trabalho ") + QByteArray::number(job) + "\r\n");
    }
    ASSERT_TRUE(waitForJobs(5));
    EXPECT_EQ(text(), "trabalho 1\ntrabalho 2\ntrabalho 3\ntrabalho 4\ntrabalho 5\n");
    EXPECT_TRUE(ended_[0].name.startsWith(QStringLiteral("rede 127.0.0.1, ")));
    EXPECT_EQ(ended_[0].remark, QString());
}

TEST_F(Server, ASecondConnectionWaitsForTheFirst) {
    const auto first = connected();
    const auto second = connected();
    first->write("primeiro ");
    ASSERT_TRUE(QTest::qWaitFor([&] { return text() == "primeiro\n"; }, limit));
    second->write("segundo\r\n");
    ASSERT_TRUE(QTest::qWaitFor([&] { return server_.waiting() == 1; }, limit));
    second->disconnectFromHost();
    first->write("ainda\r\n");
    ASSERT_TRUE(QTest::qWaitFor([&] { return text() == "primeiro ainda\n"; }, limit));
    EXPECT_EQ(ended_.size(), 0U);
    first->disconnectFromHost();
    ASSERT_TRUE(waitForJobs(2));
    EXPECT_EQ(text(), "primeiro ainda\nsegundo\n");
}

// Much more than any buffer on the way, sent while another job holds the printer.
TEST_F(Server, WhatWaitsIsWholeWhenItsTurnComes) {
    const auto first = connected();
    first->write("a\r\n");
    const auto second = connected();
    const QByteArray lines = QByteArray("linha de um trabalho longo\r\n").repeated(200'000);
    second->write(lines);
    second->disconnectFromHost();
    ASSERT_TRUE(QTest::qWaitFor([&] { return text() == "a\n"; }, limit));
    first->disconnectFromHost();
    ASSERT_TRUE(waitForJobs(2));
    EXPECT_EQ(roll_.printedForms(), (200'001U + 65) / 66);
    EXPECT_EQ(ended_[1].remark, QString());
}

TEST_F(Server, AnAbortedConnectionLeavesWhatCameAndTheNextJobPrints) {
    auto first = connected();
    first->write("meia linha");
    ASSERT_TRUE(QTest::qWaitFor([&] { return text() == "meia linha\n"; }, limit));
    first->abort();
    send("\r\noutro\r\n");
    ASSERT_TRUE(waitForJobs(2));
    EXPECT_EQ(text(), "meia linha\noutro\n");
}

TEST_F(Server, AConnectionWithoutAByteIsNoJob) {
    send("");
    send("x");
    ASSERT_TRUE(waitForJobs(1));
    EXPECT_EQ(roll_.jobs().size(), 1U);
}

TEST_F(Server, ASilentConnectionEndsWhenOthersWait) {
    server_.setPatience(std::chrono::milliseconds(50));
    const auto silent = connected();
    silent->write("um");
    ASSERT_TRUE(QTest::qWaitFor([&] { return text() == "um\n"; }, limit));
    EXPECT_EQ(ended_.size(), 0U);
    send("\r\ndois");
    ASSERT_TRUE(waitForJobs(2));
    EXPECT_EQ(ended_[0].remark,
              QStringLiteral("a conexão ficou em silêncio e outros trabalhos esperavam."));
    EXPECT_EQ(text(), "um\ndois\n");
}

TEST_F(SmallServer, AJobOverItsSizeIsCutOffAndTheNextPrints) {
    const auto big = connected();
    big->write("123456789012345");
    ASSERT_TRUE(waitForJobs(1));
    EXPECT_FALSE(ended_[0].remark.isEmpty());
    ASSERT_TRUE(
        QTest::qWaitFor([&] { return big->state() == QAbstractSocket::UnconnectedState; }, limit));
    send("\r\nx");
    ASSERT_TRUE(waitForJobs(2));
    EXPECT_EQ(text(), "1234567890\nx\n");
}

TEST_F(Server, TooManyJobsAtOnceAreTurnedAway) {
    const auto first = connected();
    first->write("a");
    ASSERT_TRUE(QTest::qWaitFor([&] { return text() == "a\n"; }, limit));
    std::vector<std::unique_ptr<QTcpSocket>> crowd;
    for (std::size_t i = 0; i < JobServer::mostWaiting; ++i) {
        crowd.push_back(connected());
        crowd.back()->write("b");
        ASSERT_TRUE(QTest::qWaitFor([&] { return server_.waitingJobs() == i + 1; }, limit));
    }
    const auto last = connected();
    ASSERT_TRUE(
        QTest::qWaitFor([&] { return last->state() == QAbstractSocket::UnconnectedState; }, limit));
    EXPECT_EQ(server_.waiting(), JobServer::mostWaiting);
}

TEST_F(Server, ASilentConnectionKeepsNoJobWaiting) {
    server_.setPatience(std::chrono::hours(1));
    const auto silent = connected();
    ASSERT_TRUE(QTest::qWaitFor([&] { return server_.waiting() == 1; }, limit));
    send("um\r\n");
    ASSERT_TRUE(waitForJobs(1));
    EXPECT_EQ(text(), "um\n");
    EXPECT_EQ(silent->state(), QAbstractSocket::ConnectedState);
    silent->write("dois");
    silent->disconnectFromHost();
    ASSERT_TRUE(waitForJobs(2));
    EXPECT_EQ(text(), "um\ndois\n");
}

TEST_F(Server, ManySilentConnectionsGiveWayToNewOnes) {
    std::vector<std::unique_ptr<QTcpSocket>> crowd;
    for (std::size_t i = 0; i < JobServer::mostWaiting + 3; ++i) {
        crowd.push_back(connected());
    }
    send("um\r\n");
    ASSERT_TRUE(waitForJobs(1));
    EXPECT_EQ(text(), "um\n");
    EXPECT_EQ(ended_[0].remark, QString());
    EXPECT_LE(server_.waiting(), JobServer::mostWaiting);
    EXPECT_EQ(crowd.front()->state(), QAbstractSocket::UnconnectedState);
    EXPECT_EQ(crowd.back()->state(), QAbstractSocket::ConnectedState);
}

TEST_F(Server, AJobThatFellSilentGoesOnWhileOnlySilentOnesWait) {
    server_.setPatience(std::chrono::milliseconds(20));
    const auto job = connected();
    job->write("um");
    ASSERT_TRUE(QTest::qWaitFor([&] { return text() == "um\n"; }, limit));
    const auto silent = connected();
    QTest::qWait(100);
    EXPECT_EQ(ended_.size(), 0U);
    job->write(" dois");
    ASSERT_TRUE(QTest::qWaitFor([&] { return text() == "um dois\n"; }, limit));
}

}  // namespace
}  // namespace tarn::test
