#include "bills/bill_pictures.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

namespace tarn {
namespace {

namespace fs = std::filesystem;

class FigurasTest : public testing::Test {
protected:
    void SetUp() override {
        pasta_ = fs::temp_directory_path() / ("figuras-" + std::to_string(::getpid()));
        fs::create_directories(pasta_);
    }
    void TearDown() override { fs::remove_all(pasta_); }
    void grava(const char* nome, const std::string& bytes) const {
        std::ofstream(pasta_ / nome, std::ios::binary) << bytes;
    }

    fs::path pasta_;
};

TEST_F(FigurasTest, EachHasItsFile) {
    grava("LOGODUPL.jpg", std::string("l\0\n", 3));
    grava("VERTDUPL.jpg", "v");
    grava("ASSEMITENTE.jpg", "a");
    for (const std::string& pasta : {pasta_.string(), pasta_.string() + "/"}) {
        const FigurasDuplicata figuras = carregaFiguras(pasta);
        EXPECT_EQ(figuras.picLogo, Picture("picLogo", std::string("l\0\n", 3)));
        EXPECT_EQ(figuras.picVert, Picture("picVert", "v"));
        EXPECT_EQ(figuras.picAss, Picture("picAss", "a"));
    }
}

TEST_F(FigurasTest, WithoutAReadableFileThereIsNone) {
    fs::create_directory(pasta_ / "LOGODUPL.jpg");
    grava("VERTDUPL.jpg", "");
    grava("assemitente.jpg", "a");
    for (const std::string& pasta : {pasta_.string(), pasta_.string() + "/falta", std::string()}) {
        const FigurasDuplicata figuras = carregaFiguras(pasta);
        EXPECT_EQ(figuras.picLogo, std::nullopt);
        EXPECT_EQ(figuras.picVert, std::nullopt);
        EXPECT_EQ(figuras.picAss, std::nullopt);
    }
}

}  // namespace
}  // namespace tarn
