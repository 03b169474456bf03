#include "bills/company_data.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

namespace tarn::test {
namespace {

namespace fs = std::filesystem;

class BillPicturesTest : public testing::Test {
protected:
    void SetUp() override {
        folder_ = fs::temp_directory_path() / ("figuras-" + std::to_string(::getpid()));
        fs::create_directories(folder_);
    }
    void TearDown() override { fs::remove_all(folder_); }
    void save(const char* name, const std::string& bytes) const {
        std::ofstream(folder_ / name, std::ios::binary) << bytes;
    }

    fs::path folder_;
};

TEST_F(BillPicturesTest, EachHasItsFile) {
    save("LOGODUPL.jpg", std::string("l\0\n", 3));
    save("VERTDUPL.jpg", "v");
    save("ASSEMITENTE.jpg", "a");
    for (const std::string& folder : {folder_.string(), folder_.string() + "/"}) {
        const BillPictures pictures = loadPictures(folder);
        EXPECT_EQ(pictures.picLogo, Picture("picLogo", std::string("l\0\n", 3)));
        EXPECT_EQ(pictures.picVert, Picture("picVert", "v"));
        EXPECT_EQ(pictures.picAss, Picture("picAss", "a"));
    }
}

TEST_F(BillPicturesTest, WithoutAReadableFileThereIsNone) {
    fs::create_directory(folder_ / "LOGODUPL.jpg");
    save("VERTDUPL.jpg", "");
    save("assemitente.jpg", "a");
    for (const std::string& folder :
         {folder_.string(), folder_.string() + "/falta", std::string()}) {
        const BillPictures pictures = loadPictures(folder);
        EXPECT_EQ(pictures.picLogo, std::nullopt);
        EXPECT_EQ(pictures.picVert, std::nullopt);
        EXPECT_EQ(pictures.picAss, std::nullopt);
    }
}

}  // namespace
}  // namespace tarn::test
