// The desk's parts, and that each is loaded when it is first needed and no sooner.
#include <gtest/gtest.h>

#include <QGuiApplication>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>

#include "platform/parts/network_part.h"
#include "platform/parts/part.h"
#include "platform/parts/printing_part.h"
#include "tests/support/loopback_server.h"
#include "tests/support/own_directory.h"

namespace tarn::test {
namespace {

// Whether a file with that in its name is part of this process.
bool isLoaded(const std::string& library) {
    std::stringstream maps;
    maps << std::ifstream("/proc/self/maps").rdbuf();
    return maps.str().find(library) != std::string::npos;
}

[[noreturn]] void endWith(bool asHoped) {
    std::_Exit(asHoped ? 0 : 1);
}

std::string troubleWith(const char* part, const char* function) {
    try {
        Part(fileOfPart(part)).function(function);
        return {};
    } catch (const std::runtime_error& error) {
        return error.what();
    }
}

TEST(LateParts, TheNetworkIsLoadedWithTheLoader) {
    // A process of its own: what is loaded stays.
    EXPECT_EXIT(
        {
            const bool before = isLoaded("libcurl");
            newNetworkLoader(nullptr);
            endWith(!before && isLoaded("libcurl") && !isLoaded("libcups"));
        },
        testing::ExitedWithCode(0), "");
}

TEST(LateParts, PrintingIsLoadedWhenThePrinterIsFirstAskedForSomething) {
    EXPECT_EXIT(
        {
            const auto pages = newLatePrinter(nullptr);
            const auto raw = newLateSpooler();
            const bool before = isLoaded("libQt6PrintSupport") || isLoaded("libcups");
            pages->setOrientation(Orientation::Portrait);
            endWith(!before && isLoaded("libQt6PrintSupport") && !isLoaded("libcurl"));
        },
        testing::ExitedWithCode(0), "");
}

TEST(LateParts, TheLoaderAsksTheServer) {
    LoopbackServer server;
    server.on("VERSAO", LoopbackReply::xml("<a/>"));
    const HttpAnswer answer = newNetworkLoader(nullptr)->get(server.baseUrl() + "VERSAO");
    EXPECT_TRUE(answer.loaded);
    EXPECT_EQ(answer.body, "<a/>");
}

TEST(LateParts, TheLoaderIsToldWhatOnlyReads) {
    LoopbackServer server;
    server.on("read", LoopbackReply::redirect(server.baseUrl() + "there"));
    server.on("write", LoopbackReply::redirect(server.baseUrl() + "there"));
    server.on("there", LoopbackReply::xml("<a/>"));
    const auto loader = newNetworkLoader(
        [](const std::string& address) { return address.find("read") != std::string::npos; });
    EXPECT_TRUE(loader->get(server.baseUrl() + "read").loaded);
    EXPECT_FALSE(loader->get(server.baseUrl() + "write").loaded);
}

TEST(LateParts, ThePrinterWritesThePagesAndTellsOfThem) {
    const OwnDirectory folder;
    const auto printer = newLatePrinter(std::make_shared<JobFiles>(folder.path()));
    std::size_t told = 0;
    printer->progress = [&told](std::size_t /*done*/, std::size_t total) { told = total; };
    EXPECT_EQ(printer->Print("a"), std::nullopt);
    EXPECT_EQ(printer->NewPage(), std::nullopt);
    EXPECT_EQ(printer->Print("b"), std::nullopt);
    EXPECT_EQ(printer->EndDoc(), std::nullopt);
    EXPECT_EQ(told, 2U);
    EXPECT_GT(std::filesystem::file_size(folder.path() / "job-001.pdf"), 500U);
}

TEST(LateParts, WhatIsThrownWithinAPartIsCaughtOutside) {
    struct Ended {};
    const OwnDirectory folder;
    const auto printer = newLatePrinter(std::make_shared<JobFiles>(folder.path()));
    printer->progress = [](std::size_t, std::size_t) { throw Ended(); };
    printer->Print("a");
    printer->NewPage();
    printer->Print("b");
    EXPECT_THROW(printer->EndDoc(), Ended);
}

TEST(LateParts, AMissingPartIsNamed) {
    const std::string trouble = troubleWith("tarn_nothing", "f");
    EXPECT_EQ(trouble.find("Falta uma parte deste programa"), 0U);
    EXPECT_NE(trouble.find("lib/tarnemissao/parts/tarn_nothing.so"), std::string::npos);
    EXPECT_NE(troubleWith("tarn_network", "tarnNothing").find("tarnNothing"), std::string::npos);
}

TEST(LateParts, AProgramInstalledMeanwhileDoesNotChangeThePart) {
    const OwnDirectory folder;
    const std::filesystem::path file = folder.path() / "tarn_printing.so";
    std::filesystem::copy_file(fileOfPart("tarn_printing"), file);
    const Part part(file);
    std::filesystem::remove(file);
    std::ofstream(file) << "of another release";
    EXPECT_NE(part.function("tarnNewPagePrinter"), nullptr);
}

}  // namespace
}  // namespace tarn::test

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const QGuiApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
